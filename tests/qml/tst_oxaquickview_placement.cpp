// SPDX-License-Identifier: Apache-2.0
#include "QuickViews.h"
#include "support/Screens.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"

using namespace QuickViews;

namespace {

/// A screen to the left of the first one, with a panel at its left, its top and its right.
const QRect sideScreen(-1000, -300, 1000, 700);
const QRect sideArea(-990, -270, 970, 670);

} // namespace

/// Where a view opens.
class tst_OxaQuickView_placement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_engine = std::make_unique<OxaQmlEngine>(nullptr); }

    void movesToAPointAndShows_data();
    void movesToAPointAndShows();
    void takesItsOwnScreenForNone();
    void doesNothingWithoutAScreen();
    void centresItselfBelowAWidget_data();
    void centresItselfBelowAWidget();

private:
    std::unique_ptr<OxaQmlEngine> m_engine;
};

void tst_OxaQuickView_placement::movesToAPointAndShows_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("expected");
    const QSize size(200, 100);
    const auto row = [](const char *name, const QPoint &point, const QSize &viewSize,
                        const QPoint &expected) {
        QTest::newRow(name) << point << viewSize << expected;
    };
    // The area is from -990 to -20 and from -270 to 400.
    row("in the middle", { -500, 0 }, size, { -500, 0 });
    row("fitting exactly at the top left", { -990, -270 }, size, { -990, -270 });
    row("fitting exactly at the bottom right", { -220, 300 }, size, { -220, 300 });
    row("across the left edge", { -1000, 0 }, size, { -990, 0 });
    row("more than half across the left edge", { -1150, 0 }, size, { -990, 0 });
    row("across the top", { -500, -300 }, size, { -500, -270 });
    row("more than half across the top", { -500, -360 }, size, { -500, -270 });
    row("across the right edge", { -219, 0 }, size, { -220, 0 });
    row("more than half across the right edge", { -30, 0 }, size, { -220, 0 });
    row("across the bottom", { -500, 301 }, size, { -500, 300 });
    row("across the top left corner", { -1000, -300 }, size, { -990, -270 });
    row("across the top right corner", { -200, -300 }, size, { -220, -270 });
    row("across the bottom left corner", { -1000, 350 }, size, { -990, 300 });
    row("across the bottom right corner", { -100, 399 }, size, { -220, 300 });
    row("outside at the left", { -1190, 0 }, size, { -1190, 0 });
    row("outside at the right", { -20, 0 }, size, { -20, 0 });
    row("outside at the top", { -500, -370 }, size, { -500, -370 });
    row("outside at the bottom", { -500, 400 }, size, { -500, 400 });
    row("wider than the area", { -500, 0 }, { 1200, 100 }, { -990, 0 });
    row("wider than the area, from its left", { -990, 0 }, { 1200, 100 }, { -990, 0 });
    row("higher than the area", { -500, 0 }, { 200, 900 }, { -500, -270 });
    row("without a size", { -1000, 0 }, { 0, 0 }, { -1000, 0 });
}

void tst_OxaQuickView_placement::movesToAPointAndShows()
{
    QFETCH(const QPoint, point);
    QFETCH(const QSize, size);
    QFETCH(const QPoint, expected);
    const ScreenGuard side(sideScreen, sideArea);
    OxaQuickView view(m_engine.get(), nullptr, {});
    view.setFlag(Qt::FramelessWindowHint);
    view.resize(size);
    SignalLog log;
    log.record(&view, &OxaQuickView::aboutToShow, QStringLiteral("aboutToShow"));
    view.showAt(point, side.screen());
    QCOMPARE(view.position(), expected);
    QCOMPARE(view.screen(), side.screen());
    QVERIFY(view.isVisible());
    QCOMPARE(log.take(), QStringLiteral("aboutToShow"));
}

void tst_OxaQuickView_placement::takesItsOwnScreenForNone()
{
    const ScreenGuard side(sideScreen, sideArea);
    OxaQuickView view(m_engine.get(), nullptr, {});
    view.setFlag(Qt::FramelessWindowHint);
    view.setScreen(side.screen());
    view.resize(200, 100);
    view.showAt(QPoint(-100, 0), nullptr);
    QCOMPARE(view.position(), QPoint(-220, 0));
    QCOMPARE(view.screen(), side.screen());
}

void tst_OxaQuickView_placement::doesNothingWithoutAScreen()
{
    OxaQuickView view(m_engine.get(), nullptr, {});
    const QPoint before = view.position();
    {
        const NoScreenGuard noScreen;
        QVERIFY(!view.screen());
        view.showAt(QPoint(10, 10), nullptr);
    }
    QVERIFY(!view.isVisible());
    QCOMPARE(view.position(), before);
}

void tst_OxaQuickView_placement::centresItselfBelowAWidget_data()
{
    QTest::addColumn<QRect>("widget");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isAtSide");
    QTest::addColumn<QPoint>("expected");
    // The centre of a widget of an even size is left of and above its middle.
    QTest::newRow("even sizes") << QRect(300, 200, 100, 40) << QSize(60, 30) << false
                                << QPoint(319, 239);
    QTest::newRow("odd sizes") << QRect(300, 200, 101, 41) << QSize(61, 31) << false
                               << QPoint(320, 240);
    QTest::newRow("at the right edge")
            << QRect(700, 200, 100, 40) << QSize(200, 30) << false << QPoint(600, 239);
    QTest::newRow("at the right edge of another screen")
            << QRect(-120, 200, 100, 40) << QSize(200, 30) << true << QPoint(-220, 239);
}

void tst_OxaQuickView_placement::centresItselfBelowAWidget()
{
    QFETCH(const QRect, widget);
    QFETCH(const QSize, size);
    QFETCH(const bool, isAtSide);
    QFETCH(const QPoint, expected);
    const ScreenGuard side(sideScreen, sideArea);
    QWidget window(nullptr, Qt::FramelessWindowHint);
    QWidget child(&window);
    window.setGeometry(widget.translated(-5, -7));
    child.setGeometry(QRect(QPoint(5, 7), widget.size()));
    OxaQuickView view(m_engine.get(), nullptr, {});
    view.setFlag(Qt::FramelessWindowHint);
    view.resize(size);
    view.showAt(static_cast<const QWidget *>(nullptr), nullptr);
    QVERIFY(!view.isVisible());
    view.showAt(&child, isAtSide ? side.screen() : QGuiApplication::primaryScreen());
    QCOMPARE(view.position(), expected);
    QVERIFY(view.isVisible());
}

UIELEMENTS_TEST_MAIN(tst_OxaQuickView_placement)
#include "tst_oxaquickview_placement.moc"
