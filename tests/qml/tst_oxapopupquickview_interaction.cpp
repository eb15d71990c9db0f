// SPDX-License-Identifier: Apache-2.0
#include "QuickViews.h"
#include "support/RealInput.h"
#include "support/TestApplication.h"

#include <UiElements/qml/OxaPopupQuickView.h>

#include <QAbstractNativeEventFilter>
#include <QScreen>
#include <QSignalSpy>

using namespace QuickViews;

namespace {

constexpr char filledItem[] = R"(
    import QtQuick 2.15
    Rectangle {
        property bool isOpen: false
        property int keys: 0
        width: 100; height: 40
        color: "red"
        focus: true
        Keys.onPressed: ++keys
    })";

/// Counts native events, and keeps them from Qt where asked.
class Counter : public QAbstractNativeEventFilter
{
public:
    explicit Counter(bool keeps) : m_keeps(keeps) { }

    bool nativeEventFilter(const QByteArray &eventType, void *, long *) override
    {
        type = eventType;
        ++count;
        return m_keeps;
    }

    QByteArray type;
    int count = 0;

private:
    const bool m_keeps;
};

} // namespace

/// Popups that a window manager places and activates.
class tst_OxaPopupQuickView_interaction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { m_window.reset(); }

    void opensWhereItIsPlaced_data();
    void opensWhereItIsPlaced();
    void staysBesideTheRectangleAsItsContentGrows();
    void opensAgainWhenItsSizeChangesWhileHidden();
    void closesAtEscape();
    void closesAtAClickElsewhere();
    void staysClosedWhileAnotherWindowIsAsked();
    void knowsWhetherThePointerIsInside();
    void showsNativeEventsToItsHandler();

private:
    OxaPopupQuickView *makePopup() const;

    std::unique_ptr<OxaQmlEngine> m_engine;
    std::unique_ptr<QWidget> m_window;
};

void tst_OxaPopupQuickView_interaction::initTestCase()
{
    QCOMPARE(QGuiApplication::primaryScreen()->availableGeometry(), QRect(0, 0, 1280, 1024));
    m_engine = std::make_unique<OxaQmlEngine>(nullptr);
}

/// Popups open for an active application only.
void tst_OxaPopupQuickView_interaction::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->setGeometry(900, 700, 200, 100);
    QVERIFY(showActive(*m_window));
}

/// Makes a popup with the options and flags of those that an application opens.
OxaPopupQuickView *tst_OxaPopupQuickView_interaction::makePopup() const
{
    const ViewOptions options { false, true, true, false, m_window->windowHandle() };
    auto *popup = new OxaPopupQuickView(m_engine.get(), nullptr, options);
    popup->setFlags(popup->flags() | Qt::FramelessWindowHint);
    popup->setFlag(Qt::Dialog, true);
    popup->setResizeMode(QQuickView::SizeRootObjectToView);
    load(*popup, filledItem)->setSize(QSizeF(100, 40));
    popup->setupFixedSize();
    return popup;
}

void tst_OxaPopupQuickView_interaction::opensWhereItIsPlaced_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<int>("arrow");
    QTest::addColumn<QPoint>("expected");
    QTest::addColumn<int>("flipped");
    const auto row = [](const char *name, const QRectF &rect, Qt::ArrowType arrow,
                        const QPoint &expected, Qt::ArrowType flipped = Qt::NoArrow) {
        QTest::newRow(name) << rect << int(arrow) << expected << int(flipped);
    };
    // The popup has 100 by 40 pixels, the screen 1280 by 1024.
    const QRectF middle(600, 500, 20, 10);
    row("below", middle, Qt::UpArrow, { 560, 510 });
    row("above", middle, Qt::DownArrow, { 560, 460 });
    row("right", middle, Qt::LeftArrow, { 620, 485 });
    row("left", middle, Qt::RightArrow, { 500, 485 });
    row("without an arrow", middle, Qt::NoArrow, { 610, 505 });
    const QRectF bottom(600, 1000, 20, 10);
    row("above instead of below", bottom, Qt::UpArrow, { 560, 960 }, Qt::DownArrow);
    row("beside, at the bottom", bottom, Qt::LeftArrow, { 620, 984 });
    const QRectF top(600, 10, 20, 10);
    row("below instead of above", top, Qt::DownArrow, { 560, 20 }, Qt::UpArrow);
    row("beside, at the top", top, Qt::RightArrow, { 500, 0 });
    const QRectF right(1250, 500, 20, 10);
    row("left instead of right", right, Qt::LeftArrow, { 1150, 485 }, Qt::RightArrow);
    row("below, at the right", right, Qt::UpArrow, { 1180, 510 });
    const QRectF left(10, 500, 20, 10);
    row("right instead of left", left, Qt::RightArrow, { 30, 485 }, Qt::LeftArrow);
    row("above, at the left", left, Qt::DownArrow, { 0, 460 });
    const QRectF corner(1250, 1000, 20, 10);
    row("above instead of below, in the corner", corner, Qt::UpArrow, { 1180, 960 }, Qt::DownArrow);
}

void tst_OxaPopupQuickView_interaction::opensWhereItIsPlaced()
{
    QFETCH(const QRectF, rect);
    QFETCH(const int, arrow);
    QFETCH(const QPoint, expected);
    QFETCH(const int, flipped);
    const QPointer<OxaPopupQuickView> popup = makePopup();
    QVector<int> flips;
    connect(popup.data(), &OxaPopupQuickView::arrowFlipped, this,
            [&flips](Qt::ArrowType flippedArrow) { flips += flippedArrow; });
    popup->showAtRect(rect, Qt::ArrowType(arrow));
    QVERIFY(QTest::qWaitForWindowExposed(popup));
    QTRY_COMPARE(popup->frameGeometry(), QRect(expected, QSize(100, 40)));
    QCOMPARE(flips, flipped == Qt::NoArrow ? QVector<int>() : QVector<int> { flipped });
    // And there it is on the screen.
    const QPoint centre = popup->geometry().center();
    const auto colorThere = [&centre] {
        QScreen *screen = QGuiApplication::primaryScreen();
        return screen->grabWindow(0, centre.x(), centre.y(), 1, 1).toImage().pixelColor(0, 0);
    };
    QTRY_COMPARE(colorThere(), QColor(Qt::red));
    delete popup;
}

void tst_OxaPopupQuickView_interaction::staysBesideTheRectangleAsItsContentGrows()
{
    const QPointer<OxaPopupQuickView> popup = makePopup();
    popup->showAtRect(QRectF(600, 500, 20, 10), Qt::UpArrow);
    QVERIFY(showActive(*popup));
    QTRY_COMPARE(popup->geometry(), QRect(560, 510, 100, 40));
    QSignalSpy changes(popup.data(), &OxaPopupQuickView::arrowOrthogonalChanged);
    popup->rootObject()->setWidth(300);
    QTRY_COMPARE(popup->geometry(), QRect(460, 510, 300, 40));
    QVERIFY(!changes.isEmpty());
    QCOMPARE(popup->minimumSize(), QSize(300, 40));
    QCOMPARE(popup->maximumSize(), QSize(300, 40));
    delete popup;
}

void tst_OxaPopupQuickView_interaction::opensAgainWhenItsSizeChangesWhileHidden()
{
    const QPointer<OxaPopupQuickView> popup = makePopup();
    popup->showAtRect(QRectF(600, 500, 20, 10), Qt::UpArrow);
    QVERIFY(QTest::qWaitForWindowExposed(popup));
    popup->hide();
    QVERIFY(showActive(*m_window));
    popup->rootObject()->setWidth(120);
    QTRY_VERIFY(popup->isVisible());
    delete popup;
}

void tst_OxaPopupQuickView_interaction::closesAtEscape()
{
    const Owned<OxaQuickView> source(m_engine.get(), nullptr, ViewOptions());
    QQuickItem *item = load(*source, filledItem);
    source->setPosition(100, 100);
    QVERIFY(showActive(*source));
    const QPointer<OxaPopupQuickView> popup = makePopup();
    const QPointer<QQuickItem> root = popup->rootObject();
    popup->setupActivationItem(item, QStringLiteral("isOpen"));
    popup->showAtRect(QRectF(600, 500, 20, 10), Qt::UpArrow);
    QVERIFY(showActive(*popup));
    QVERIFY(item->property("isOpen").toBool());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("a") }));
    QTRY_COMPARE(root->property("keys").toInt(), 1);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Escape") }));
    QTRY_VERIFY(!popup);
    QVERIFY(!item->property("isOpen").toBool());
    QTRY_COMPARE(QGuiApplication::focusWindow(), source.get());
}

void tst_OxaPopupQuickView_interaction::closesAtAClickElsewhere()
{
    const QPointer<OxaPopupQuickView> popup = makePopup();
    popup->showAtRect(QRectF(600, 500, 20, 10), Qt::UpArrow);
    QVERIFY(showActive(*popup));
    QVERIFY(RealInput::click(*m_window, QPoint(100, 50)));
    QTRY_VERIFY(!popup);
}

void tst_OxaPopupQuickView_interaction::staysClosedWhileAnotherWindowIsAsked()
{
    const QPointer<OxaPopupQuickView> popup = makePopup();
    m_window->hide();
    QTRY_VERIFY(QGuiApplication::applicationState() != Qt::ApplicationActive);
    QSignalSpy changes(popup.data(), &OxaPopupQuickView::arrowOrthogonalChanged);
    popup->showAtRect(QRectF(600, 500, 20, 10), Qt::UpArrow);
    QCOMPARE(changes.size(), 1);
    QCoreApplication::processEvents();
    QVERIFY(!popup->isVisible());
    delete popup;
}

void tst_OxaPopupQuickView_interaction::knowsWhetherThePointerIsInside()
{
    const QPointer<OxaPopupQuickView> popup = makePopup();
    popup->showAtRect(QRectF(600, 500, 20, 10), Qt::UpArrow);
    QVERIFY(QTest::qWaitForWindowExposed(popup));
    const auto move = [](int x, int y) {
        return RealInput::send(
                { QStringLiteral("mousemove"), QString::number(x), QString::number(y) });
    };
    QVERIFY(move(559, 510));
    QVERIFY(!popup->underMouse());
    QVERIFY(move(560, 510));
    QVERIFY(popup->underMouse());
    QVERIFY(move(659, 549));
    QVERIFY(popup->underMouse());
    QVERIFY(move(660, 549));
    QVERIFY(!popup->underMouse());
    delete popup;
}

void tst_OxaPopupQuickView_interaction::showsNativeEventsToItsHandler()
{
    const QPointer<OxaPopupQuickView> popup = makePopup();
    const QPointer<QQuickItem> root = popup->rootObject();
    popup->showAtRect(QRectF(600, 500, 20, 10), Qt::UpArrow);
    QVERIFY(showActive(*popup));
    const auto watching = std::make_shared<Counter>(false);
    popup->setCustomNativeHandler(watching);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("a") }));
    QTRY_COMPARE(root->property("keys").toInt(), 1);
    QVERIFY(watching->count > 0);
    QCOMPARE(watching->type, QByteArray("xcb_generic_event_t"));
    const auto keeping = std::make_shared<Counter>(true);
    popup->setCustomNativeHandler(keeping);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("b") }));
    QTRY_VERIFY(keeping->count > 0);
    QCoreApplication::processEvents();
    QCOMPARE(root->property("keys").toInt(), 1);
    delete popup;
}

UIELEMENTS_TEST_MAIN(tst_OxaPopupQuickView_interaction)
#include "tst_oxapopupquickview_interaction.moc"
