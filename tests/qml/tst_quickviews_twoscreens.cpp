// SPDX-License-Identifier: Apache-2.0
#include "QuickViews.h"
#include "support/TestApplication.h"

#include <UiElements/qml/OxaPopupQuickView.h>

#include <QRegularExpression>
#include <QScreen>

#include <memory>

using namespace QuickViews;

namespace {

const QRect smallScreen(0, 0, 800, 600);
const QRect largeScreen(0, 0, 1280, 1024);

} // namespace

/// Popups on a desktop of two screens of unlike size, of which the small one covers the top left of
/// the large one.
class tst_QuickViewsTwoScreens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_window.reset(); }
    void opensAPopupOnTheScreenOfItsCorner_data();
    void opensAPopupOnTheScreenOfItsCorner();
    void opensAViewOnTheScreenThatIsGiven();
    void makesAPopupOnTheScreenOfItsParent();

private:
    std::unique_ptr<OxaQmlEngine> m_engine;
    std::unique_ptr<QWindow> m_window;
};

void tst_QuickViewsTwoScreens::initTestCase()
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    QCOMPARE(screens.size(), 2);
    QCOMPARE(screens.at(0)->geometry(), smallScreen);
    QCOMPARE(screens.at(1)->geometry(), largeScreen);
    m_engine = std::make_unique<OxaQmlEngine>(nullptr);
    m_window = std::make_unique<QWindow>();
    m_window->setGeometry(1000, 800, 100, 100);
}

void tst_QuickViewsTwoScreens::opensAPopupOnTheScreenOfItsCorner_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<int>("arrow");
    QTest::addColumn<QPoint>("expected");
    QTest::addColumn<int>("screen");
    const auto row = [](const char *name, const QRectF &rect, Qt::ArrowType arrow,
                        const QPoint &expected, int screen) {
        QTest::newRow(name) << rect << int(arrow) << expected << screen;
    };
    // The popup has 100 by 40 pixels.
    row("on the small one", { 300, 300, 20, 10 }, Qt::UpArrow, { 260, 310 }, 0);
    row("across its right edge", { 770, 300, 20, 10 }, Qt::UpArrow, { 700, 310 }, 0);
    row("flipped at its bottom", { 300, 570, 20, 10 }, Qt::UpArrow, { 260, 530 }, 0);
    row("flipped at its right edge", { 770, 300, 20, 10 }, Qt::LeftArrow, { 670, 285 }, 0);
    row("below its last line", { 300, 595, 20, 10 }, Qt::UpArrow, { 260, 605 }, 1);
    row("right of its last column", { 790, 300, 20, 10 }, Qt::LeftArrow, { 810, 285 }, 1);
    row("on the large one", { 900, 700, 20, 10 }, Qt::UpArrow, { 860, 710 }, 1);
    row("across the right edge of the large one", { 1250, 700, 20, 10 }, Qt::UpArrow, { 1180, 710 },
        1);
    row("flipped at the bottom of the large one", { 900, 1000, 20, 10 }, Qt::UpArrow, { 860, 960 },
        1);
    // Its corner above the rectangle is on the small one.
    row("from the large one to the small one", { 700, 620, 20, 10 }, Qt::DownArrow, { 660, 560 },
        0);
}

void tst_QuickViewsTwoScreens::opensAPopupOnTheScreenOfItsCorner()
{
    QFETCH(const QRectF, rect);
    QFETCH(const int, arrow);
    QFETCH(const QPoint, expected);
    QFETCH(const int, screen);
    QVERIFY(showActive(*m_window));
    OxaPopupQuickView popup(m_engine.get(), nullptr, {});
    popup.setFlags(popup.flags() | Qt::FramelessWindowHint);
    popup.setFlag(Qt::Dialog, true);
    popup.resize(100, 40);
    popup.showAtRect(rect, Qt::ArrowType(arrow));
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    QTRY_COMPARE(popup.frameGeometry(), QRect(expected, QSize(100, 40)));
    QCOMPARE(QGuiApplication::screenAt(expected), QGuiApplication::screens().at(screen));
}

void tst_QuickViewsTwoScreens::opensAViewOnTheScreenThatIsGiven()
{
    OxaQuickView view(m_engine.get(), nullptr, {});
    view.setFlag(Qt::FramelessWindowHint);
    view.resize(100, 40);
    view.showAt(QPoint(750, 300), QGuiApplication::screens().at(0));
    QTRY_COMPARE(view.position(), QPoint(700, 300));
    view.showAt(QPoint(750, 300), QGuiApplication::screens().at(1));
    QTRY_COMPARE(view.position(), QPoint(750, 300));
}

void tst_QuickViewsTwoScreens::makesAPopupOnTheScreenOfItsParent()
{
    const std::unique_ptr<OxaQmlEngine> engine(
            static_cast<TestApplication *>(qApp)->getQmlEngine());
    for (QScreen *const screen : QGuiApplication::screens()) {
        QWindow parent(screen);
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(
                                     QStringLiteral("^qrc:/Qml/None.qml: No such file")));
        const std::unique_ptr<OxaPopupQuickView> popup(
                OxaQmlEngine::createQmlPopup(QStringLiteral("None.qml"), &parent, {}, {}, true));
        QCOMPARE(popup->screen(), screen);
    }
}

UIELEMENTS_TEST_MAIN(tst_QuickViewsTwoScreens)
#include "tst_quickviews_twoscreens.moc"
