// SPDX-License-Identifier: Apache-2.0
#include "QuickViews.h"
#include "support/Screens.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"

#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQmlPopupController.h>
#include <UiElements/qml/OxaQmlTypes.h>

#include <QScreen>
#include <QSignalSpy>
#include <qpa/qwindowsysteminterface.h>

using namespace QuickViews;

namespace {

constexpr char setWarning[] =
        "OxaPopupQuickView::setupActivationItem - unable to set property \"missing\"";
constexpr char resetWarning[] = "~OxaPopupQuickView - unable to set property \"missing\"";

constexpr char itemWithProperty[] = R"(
    import QtQuick 2.15
    Item { property bool isOpen: false })";

constexpr char balloon[] = R"(
    import QtQuick 2.15
    import UiElements 1.0
    Item {
        width: 100; height: 40
        OxaQmlPopupController { }
    })";

constexpr char keyCounter[] = R"(
    import QtQuick 2.15
    Item {
        property int keys: 0
        width: 100; height: 40
        focus: true
        Keys.onPressed: { ++keys; event.accepted = true; }
    })";

/// Records the signals about the arrow as one text.
void recordArrow(SignalLog &log, const OxaPopupQuickView &popup)
{
    QObject::connect(&popup, &OxaPopupQuickView::arrowFlipped, &popup, [&log](Qt::ArrowType arrow) {
        log.note(QStringLiteral("flipped to %1").arg(int(arrow)));
    });
    log.record(&popup, &OxaPopupQuickView::arrowOrthogonalChanged, QStringLiteral("orthogonal"));
}

} // namespace

class tst_OxaPopupQuickView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void isATransparentPopupOnlyWithAnEngine();
    void flipsTheArrowWhereTheScreenEnds();
    void flipsOnceWhereNeitherSideHasRoom();
    void flipsOnItsOwnScreenWhereThereIsNone();
    void opensAgainWhenItsWidthChanges();
    void opensAgainFromTheArrowThatWasAskedFor();
    void followsItsSizeAcrossTheLatestArrowOnly_data();
    void followsItsSizeAcrossTheLatestArrowOnly();
    void tellsWhereItMovesAlongTheArrow();
    void opensNothingForAnInactiveApplication();
    void opensLaterWhereAsked();
    void tellsItsControllerAboutTheArrow();
    void needsAPopupControllerToTellAboutTheArrow();

    void setsThePropertyOfTheActivationItem();
    void keepsThePropertyOfAnEarlierActivationItem();
    void warnsAboutAMissingProperty();
    void warnsAboutNothingWithoutItemOrName();
    void forgetsAnActivationItemThatDies();

    void closesAtEscapeAndActivatesTheWindowOfTheItem();
    void closesAtEscapeWithoutAnItem();
    void passesOtherKeysOn();

private:
    std::unique_ptr<OxaPopupQuickView> makePopup(const QSize &size = QSize(100, 40)) const;

    std::unique_ptr<OxaQmlEngine> m_engine;
    std::unique_ptr<QWindow> m_activeWindow;
};

void tst_OxaPopupQuickView::initTestCase()
{
    OxaQmlTypes::registerQmlTypes();
    m_engine = std::make_unique<OxaQmlEngine>(nullptr);
    m_activeWindow = std::make_unique<QWindow>();
    QCOMPARE(QGuiApplication::primaryScreen()->geometry(), QRect(0, 0, 800, 600));
}

/// Popups open for an active application only.
void tst_OxaPopupQuickView::init() { QVERIFY(showActive(*m_activeWindow)); }

void tst_OxaPopupQuickView::cleanupTestCase() { m_activeWindow.reset(); }

std::unique_ptr<OxaPopupQuickView> tst_OxaPopupQuickView::makePopup(const QSize &size) const
{
    ViewOptions options;
    options.deleteOnClose = false;
    auto popup = std::make_unique<OxaPopupQuickView>(m_engine.get(), nullptr, options);
    popup->setFlag(Qt::FramelessWindowHint);
    popup->resize(size);
    return popup;
}

void tst_OxaPopupQuickView::isATransparentPopupOnlyWithAnEngine()
{
    const OxaPopupQuickView popup(m_engine.get(), nullptr, {});
    QCOMPARE(popup.type(), Qt::Popup);
    QCOMPARE(popup.color(), QColor(Qt::transparent));
    QVERIFY(popup.activationRect().isNull());
    const OxaPopupQuickView plain;
    QCOMPARE(plain.type(), Qt::Window);
    QCOMPARE(plain.color(), QColor(Qt::white));
}

void tst_OxaPopupQuickView::flipsTheArrowWhereTheScreenEnds()
{
    const auto popup = makePopup();
    SignalLog log;
    recordArrow(log, *popup);
    popup->showAtRect(QRectF(300, 550, 20, 10), Qt::UpArrow);
    QCOMPARE(log.take(), QStringLiteral("orthogonal | orthogonal")); // As it moves, and then.
    QCOMPARE(popup->position(), QPoint(260, 560));
    // One pixel more.
    popup->showAtRect(QRectF(300, 551, 20, 10), Qt::UpArrow);
    QCOMPARE(log.take(), QStringLiteral("flipped to 2 | orthogonal"));
    QCOMPARE(popup->position(), QPoint(260, 511));
}

void tst_OxaPopupQuickView::flipsOnceWhereNeitherSideHasRoom()
{
    const auto popup = makePopup(QSize(100, 590));
    SignalLog log;
    recordArrow(log, *popup);
    popup->showAtRect(QRectF(300, 300, 20, 10), Qt::UpArrow);
    QCOMPARE(log.take(), QStringLiteral("flipped to 2 | orthogonal | orthogonal"));
    QCOMPARE(popup->position(), QPoint(260, 0));
    popup->showAtRect(QRectF(300, 300, 20, 10), Qt::DownArrow);
    QCOMPARE(log.take(), QStringLiteral("flipped to 1 | orthogonal"));
    QCOMPARE(popup->position(), QPoint(260, 10));
}

void tst_OxaPopupQuickView::flipsOnItsOwnScreenWhereThereIsNone()
{
    const ScreenGuard side(QRect(-1000, 0, 1000, 300), QRect(-1000, 0, 1000, 300));
    const auto popup = makePopup();
    popup->setScreen(side.screen());
    SignalLog log;
    recordArrow(log, *popup);
    popup->showAtRect(QRectF(-500, 400, 20, 10), Qt::UpArrow); // Not below the first screen.
    QCOMPARE(log.take(), QStringLiteral("flipped to 2 | orthogonal | orthogonal"));
    QCOMPARE(popup->position(), QPoint(-540, 360));
    QCOMPARE(popup->adjustArrowOffset(Qt::LeftArrow), 125);
}

void tst_OxaPopupQuickView::opensAgainWhenItsWidthChanges()
{
    const auto popup = makePopup();
    QQuickItem *root = loadItem(*popup, QSize(100, 40));
    SignalLog log;
    recordArrow(log, *popup);
    popup->showAtRect(QRectF(700, 400, 20, 10), Qt::UpArrow);
    QCOMPARE(popup->position(), QPoint(660, 410));
    log.take();
    root->setWidth(300);
    QTRY_COMPARE(popup->width(), 300);
    QTRY_COMPARE(popup->position(), QPoint(500, 410));
    QCOMPARE(popup->adjustArrowOffset(Qt::UpArrow), 60);
    QVERIFY(log.take().endsWith(QLatin1String("orthogonal")));
    root->setHeight(250); // Its height does not count with this arrow.
    QTRY_COMPARE(popup->geometry(), QRect(500, 410, 300, 250));
    QCOMPARE(log.take(), QString());
    root->setWidth(301); // Now there is no room below.
    QTRY_COMPARE(popup->position(), QPoint(499, 150));
    QVERIFY(log.take().contains(QLatin1String("flipped to 2 | ")));
}

void tst_OxaPopupQuickView::opensAgainFromTheArrowThatWasAskedFor()
{
    const auto popup = makePopup(QSize(100, 250));
    SignalLog log;
    recordArrow(log, *popup);
    popup->showAtRect(QRectF(300, 400, 20, 10), Qt::UpArrow);
    QCOMPARE(popup->position(), QPoint(260, 150));
    QCOMPARE(log.take(), QStringLiteral("flipped to 2 | orthogonal | orthogonal"));
    // Below there is room for a lower popup.
    popup->resize(110, 50);
    QTRY_COMPARE(popup->position(), QPoint(255, 410));
    QVERIFY(!log.take().contains(QLatin1String("flipped")));
    // And a second request flips by itself, whatever the first one did.
    popup->resize(100, 250);
    popup->showAtRect(QRectF(300, 400, 20, 10), Qt::UpArrow);
    QVERIFY(log.take().contains(QLatin1String("flipped to 2")));
    popup->showAtRect(QRectF(300, 100, 20, 10), Qt::UpArrow);
    QVERIFY(!log.take().contains(QLatin1String("flipped")));
    QCOMPARE(popup->position(), QPoint(260, 110));
}

void tst_OxaPopupQuickView::followsItsSizeAcrossTheLatestArrowOnly_data()
{
    QTest::addColumn<int>("arrow");
    QTest::addColumn<bool>("followsWidth");
    QTest::addColumn<bool>("followsHeight");
    QTest::newRow("up") << int(Qt::UpArrow) << true << false;
    QTest::newRow("down") << int(Qt::DownArrow) << true << false;
    QTest::newRow("left") << int(Qt::LeftArrow) << false << true;
    QTest::newRow("right") << int(Qt::RightArrow) << false << true;
    QTest::newRow("none") << int(Qt::NoArrow) << false << false;
}

void tst_OxaPopupQuickView::followsItsSizeAcrossTheLatestArrowOnly()
{
    QFETCH(const int, arrow);
    QFETCH(const bool, followsWidth);
    QFETCH(const bool, followsHeight);
    const auto popup = makePopup();
    SignalLog log;
    for (const Qt::ArrowType earlier : { Qt::UpArrow, Qt::LeftArrow, Qt::ArrowType(arrow) }) {
        popup->showAtRect(QRectF(300, 300, 20, 10), earlier);
        QCoreApplication::processEvents();
    }
    recordArrow(log, *popup);
    popup->resize(130, 40);
    QCoreApplication::processEvents();
    QCOMPARE(!log.take().isEmpty(), followsWidth);
    popup->resize(130, 90);
    QCoreApplication::processEvents();
    QCOMPARE(!log.take().isEmpty(), followsHeight);
    popup->setX(popup->x() + 1);
    QCoreApplication::processEvents();
    QCOMPARE(log.take(), followsWidth ? QStringLiteral("orthogonal") : QString());
    popup->setY(popup->y() + 1);
    QCoreApplication::processEvents();
    QCOMPARE(log.take(), followsHeight ? QStringLiteral("orthogonal") : QString());
}

void tst_OxaPopupQuickView::tellsWhereItMovesAlongTheArrow()
{
    const auto popup = makePopup();
    popup->showAtRect(QRectF(-10, 300, 20, 10), Qt::UpArrow);
    QCOMPARE(popup->position(), QPoint(0, 310));
    QCOMPARE(popup->adjustArrowOffset(Qt::UpArrow), -50);
    QCOMPARE(popup->adjustArrowOffset(Qt::DownArrow), -50);
    QCOMPARE(popup->adjustArrowOffset(Qt::LeftArrow), 0);
    QCOMPARE(popup->adjustArrowOffset(Qt::NoArrow), 0);
    popup->showAtRect(QRectF(400, 585.5, 20, 10), Qt::LeftArrow);
    QCOMPARE(popup->position(), QPoint(420, 560));
    QCOMPARE(popup->adjustArrowOffset(Qt::LeftArrow), 10); // Of 10.5.
    popup->showAtRect(QRectF(400, 2.25, 20, 10), Qt::RightArrow);
    QCOMPARE(popup->adjustArrowOffset(Qt::RightArrow), -12); // Of -12.75.
}

void tst_OxaPopupQuickView::opensNothingForAnInactiveApplication()
{
    const auto popup = makePopup();
    popup->showAtRect(QRectF(300, 300, 20, 10), Qt::UpArrow);
    QVERIFY(popup->isVisible());
    popup->hide();
    QWindowSystemInterface::handleWindowActivated(nullptr);
    QTRY_VERIFY(QGuiApplication::applicationState() != Qt::ApplicationActive);
    SignalLog log;
    recordArrow(log, *popup);
    popup->showAtRect(QRectF(300, 590, 20, 10), Qt::UpArrow);
    // The arrow is the one that the popup will have when it opens there.
    QCOMPARE(log.take(), QStringLiteral("flipped to 2 | orthogonal"));
    QCOMPARE(popup->position(), QPoint(260, 310));
    QCOMPARE(popup->activationRect(), QRectF(300, 590, 20, 10));
    QCoreApplication::processEvents();
    QVERIFY(!popup->isVisible());
}

void tst_OxaPopupQuickView::opensLaterWhereAsked()
{
    const auto popup = makePopup();
    ViewOptions options = popup->getViewOptions();
    options.deferShow = true;
    popup->setViewOptions(options);
    popup->showAtRect(QRectF(300, 300, 20, 10), Qt::UpArrow);
    QCOMPARE(popup->position(), QPoint(260, 310));
    QVERIFY(!popup->isVisible());
    QTRY_VERIFY(popup->isVisible());
    QTRY_COMPARE(QGuiApplication::focusWindow(), popup.get());
}

void tst_OxaPopupQuickView::tellsItsControllerAboutTheArrow()
{
    const auto popup = makePopup();
    const QQuickItem *root = load(*popup, balloon);
    const auto *controller = root->findChild<OxaQmlPopupController *>();
    popup->showAtRect(QRectF(770, 580, 20, 10), Qt::UpArrow);
    QCOMPARE(controller->arrowAnchor(), OxaQmlBalloon::Top);
    popup->setControllerView();
    popup->showAtRect(QRectF(770, 580, 20, 10), Qt::UpArrow);
    QCOMPARE(controller->arrowAnchor(), OxaQmlBalloon::Bottom);
    QCOMPARE(controller->arrowOffset(), 30);
}

void tst_OxaPopupQuickView::needsAPopupControllerToTellAboutTheArrow()
{
    const auto popup = makePopup();
    popup->setControllerView();
    load(*popup, "import UiElements 1.0\nimport QtQuick 2.15\nItem { OxaQmlDialogController { } }");
    popup->setControllerView();
    popup->showAtRect(QRectF(770, 580, 20, 10), Qt::UpArrow);
    QVERIFY(popup->isVisible());
}

void tst_OxaPopupQuickView::setsThePropertyOfTheActivationItem()
{
    OxaQuickView view(m_engine.get(), nullptr, {});
    QQuickItem *item = load(view, itemWithProperty);
    auto popup = makePopup();
    QVERIFY(popup->hasActivationItem(nullptr));
    popup->setupActivationItem(item, QStringLiteral("isOpen"));
    QVERIFY(popup->hasActivationItem(item));
    QVERIFY(!popup->hasActivationItem(nullptr));
    QVERIFY(item->property("isOpen").toBool());
    popup->showAtRect(QRectF(300, 300, 20, 10), Qt::UpArrow);
    popup->hide();
    QVERIFY(item->property("isOpen").toBool());
    popup.reset();
    QVERIFY(!item->property("isOpen").toBool());
}

void tst_OxaPopupQuickView::keepsThePropertyOfAnEarlierActivationItem()
{
    OxaQuickView firstView(m_engine.get(), nullptr, {});
    OxaQuickView secondView(m_engine.get(), nullptr, {});
    QQuickItem *first = load(firstView, itemWithProperty);
    QQuickItem *second = load(secondView, itemWithProperty);
    auto popup = makePopup();
    popup->setupActivationItem(first, QStringLiteral("isOpen"));
    popup->setupActivationItem(second, QStringLiteral("isOpen"));
    QVERIFY(!popup->hasActivationItem(first));
    popup.reset();
    QVERIFY(first->property("isOpen").toBool());
    QVERIFY(!second->property("isOpen").toBool());
}

void tst_OxaPopupQuickView::warnsAboutAMissingProperty()
{
    QQuickItem item;
    auto popup = makePopup();
    QTest::ignoreMessage(QtWarningMsg, setWarning);
    popup->setupActivationItem(&item, QStringLiteral("missing"));
    QVERIFY(popup->hasActivationItem(&item));
    QTest::ignoreMessage(QtWarningMsg, resetWarning);
    popup.reset();
}

void tst_OxaPopupQuickView::warnsAboutNothingWithoutItemOrName()
{
    QQuickItem item;
    auto popup = makePopup();
    popup->setupActivationItem(&item, QString());
    popup->setupActivationItem(nullptr, QStringLiteral("missing"));
    QVERIFY(popup->hasActivationItem(nullptr));
    popup.reset();
}

void tst_OxaPopupQuickView::forgetsAnActivationItemThatDies()
{
    auto item = std::make_unique<QQuickItem>();
    auto popup = makePopup();
    popup->setupActivationItem(item.get(), QStringLiteral("enabled"));
    QVERIFY(item->isEnabled());
    item.reset();
    QVERIFY(popup->hasActivationItem(nullptr));
    QTest::keyPress(popup.get(), Qt::Key_Escape);
    popup.reset();
}

void tst_OxaPopupQuickView::closesAtEscapeAndActivatesTheWindowOfTheItem()
{
    OxaQuickView view(m_engine.get(), nullptr, {});
    QQuickItem *item = load(view, itemWithProperty);
    QVERIFY(showActive(view));
    const Owned<OxaPopupQuickView> popup(m_engine.get(), nullptr, ViewOptions());
    popup->setupActivationItem(item, QStringLiteral("isOpen"));
    load(*popup, keyCounter);
    QVERIFY(showActive(*popup));
    const QWindow *focusWhenClosing = nullptr;
    connect(popup.get(), &OxaQuickView::aboutToClose, popup.get(), [&focusWhenClosing] {
        QCoreApplication::processEvents();
        focusWhenClosing = QGuiApplication::focusWindow();
    });
    QTest::keyPress(popup.get(), Qt::Key_Escape);
    QCOMPARE(focusWhenClosing, &view);
    QTRY_VERIFY(!popup);
    QCOMPARE(QGuiApplication::focusWindow(), &view);
    QVERIFY(!item->property("isOpen").toBool());
}

void tst_OxaPopupQuickView::closesAtEscapeWithoutAnItem()
{
    const auto popup = makePopup();
    const QQuickItem *root = load(*popup, keyCounter);
    QVERIFY(showActive(*popup));
    QSignalSpy closes(popup.get(), &OxaQuickView::aboutToClose);
    QTest::keyPress(popup.get(), Qt::Key_Escape);
    QCOMPARE(closes.size(), 1);
    QVERIFY(!popup->isVisible());
    QCOMPARE(root->property("keys").toInt(), 0);
    // An item that is in no window.
    QQuickItem item;
    popup->setupActivationItem(&item, QString());
    QVERIFY(showActive(*popup));
    QTest::keyPress(popup.get(), Qt::Key_Escape);
    QCOMPARE(closes.size(), 2);
}

void tst_OxaPopupQuickView::passesOtherKeysOn()
{
    const auto popup = makePopup();
    const QQuickItem *root = load(*popup, keyCounter);
    QVERIFY(showActive(*popup));
    QTest::keyClick(popup.get(), Qt::Key_A);
    QTest::keyClick(popup.get(), Qt::Key_Return);
    QCOMPARE(root->property("keys").toInt(), 2);
    QVERIFY(popup->isVisible());
}

UIELEMENTS_TEST_MAIN(tst_OxaPopupQuickView)
#include "tst_oxapopupquickview.moc"
