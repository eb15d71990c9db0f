// SPDX-License-Identifier: Apache-2.0
#include "PopupRules.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/widgets/PopupPlacement_p.h>

using PopupRules::Alignment;
using PopupRules::Answer;
using PopupRules::Case;
using PopupRules::Side;

namespace {

// A small screen with a panel at its top at negative coordinates, a large one, and one above it.
const std::vector<PopupRules::Screen> threeScreens = {
    { QRect(0, 0, 1280, 1024), QRect(0, 0, 1280, 1000) },
    { QRect(-800, -100, 800, 600), QRect(-800, -70, 800, 570) },
    { QRect(200, -700, 640, 480), QRect(210, -700, 630, 480) },
};

PopupPlacement::Request requestOf(const Case &c)
{
    return {
        c.source, c.offset, c.size, PopupRules::margin, PopupRules::margin, c.alignment, c.side
    };
}

QVector<PopupPlacement::Screen> screensOf(const std::vector<PopupRules::Screen> &screens)
{
    QVector<PopupPlacement::Screen> found;
    for (const PopupRules::Screen &screen : screens)
        found.append({ screen.all, screen.available });
    return found;
}

QString text(const PopupPlacement::Placement &placement)
{
    return Answer { placement.geometry, placement.arrow }.text();
}

/// Calls \a check for each source at an edge of \a area and each size, on the current row's side.
template <typename Check>
void forEachCase(const QRect &area, const Check &check)
{
    QFETCH(const int, alignment);
    QFETCH(const int, side);
    for (const QRect &source : PopupRules::sources(area)) {
        for (const QSize &size : PopupRules::sizes(area)) {
            for (const QPoint &offset : { QPoint(0, 0), QPoint(-71, 25) })
                check(Case { source, offset, size, Alignment(alignment), Side(side) });
        }
    }
}

void addSideRows()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<int>("side");
    for (int side = 0; side < 6; ++side) {
        for (int alignment = 0; alignment < 3; ++alignment)
            QTest::addRow("%s, aligned %s", PopupRules::sideNames[side],
                          PopupRules::alignmentNames[alignment])
                    << alignment << side;
    }
}

PopupPlacement::MappedRect same(const QRect &rect) { return { rect, rect }; }

} // namespace

/// Where popups lie, as functions on numbers.
class tst_PopupPlacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksForThePlaceBesideItsSource_data();
    void asksForThePlaceBesideItsSource();
    void staysOnTheScreen_data() { addSideRows(); }
    void staysOnTheScreen();
    void staysOnTheScreenOfItsSource_data() { addSideRows(); }
    void staysOnTheScreenOfItsSource();
    void staysInTheWindow_data() { addSideRows(); }
    void staysInTheWindow();
    void flipsWhenItDoesNotFit_data();
    void flipsWhenItDoesNotFit();
    void doesNotFlipAtTheNearEdges_data();
    void doesNotFlipAtTheNearEdges();
    void isNowhereWithoutAScreen();
    void takesTheFirstOfEqualScreens();
    void truncatesTowardsZero();
    void startsAtThePointer_data();
    void startsAtThePointer();
    void startsInTheLargerPartOfAParentAcrossScreens_data();
    void startsInTheLargerPartOfAParentAcrossScreens();
};

void tst_PopupPlacement::asksForThePlaceBesideItsSource_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<int>("side");
    QTest::addColumn<QPoint>("place");
    // The source covers the pixels 100 to 159 across and 200 to 219 down; the popup is 40 by 30.
    const struct
    {
        const char *name;
        Alignment alignment;
        Side side;
        QPoint place;
    } rows[] = {
        { "below, left", Alignment::Left, Side::Top, { 96, 219 } },
        { "below, centre", Alignment::Center, Side::Top, { 109, 219 } },
        { "below, right", Alignment::Right, Side::Top, { 123, 219 } },
        { "below without arrow", Alignment::Center, Side::NoArrowBelow, { 109, 219 } },
        { "above, left", Alignment::Left, Side::Bottom, { 96, 170 } },
        { "above, centre", Alignment::Center, Side::Bottom, { 109, 170 } },
        { "above, right", Alignment::Right, Side::Bottom, { 123, 170 } },
        { "above without arrow", Alignment::Center, Side::NoArrowAbove, { 109, 170 } },
        { "right, whatever the alignment", Alignment::Left, Side::Left, { 159, 194 } },
        { "left, whatever the alignment", Alignment::Right, Side::Right, { 60, 194 } },
    };
    for (const auto &row : rows)
        QTest::newRow(row.name) << int(row.alignment) << int(row.side) << row.place;
}

void tst_PopupPlacement::asksForThePlaceBesideItsSource()
{
    QFETCH(const int, alignment);
    QFETCH(const int, side);
    QFETCH(const QPoint, place);
    Case c { QRect(100, 200, 60, 20), QPoint(), QSize(40, 30), Alignment(alignment), Side(side) };
    QCOMPARE(PopupPlacement::calculateProposedRect(requestOf(c)), QRect(place, c.size));
    c.offset = QPoint(-3, 8);
    QCOMPARE(PopupPlacement::calculateProposedRect(requestOf(c)), QRect(place + c.offset, c.size));
}

void tst_PopupPlacement::staysOnTheScreen()
{
    for (const PopupRules::Screen &screen : threeScreens) {
        forEachCase(screen.available, [](const Case &c) {
            const auto placement = PopupPlacement::onScreen(requestOf(c), screensOf(threeScreens),
                                                            false);
            QVERIFY(placement);
            QCOMPARE(text(*placement), PopupRules::onScreens(c, threeScreens).text());
        });
    }
}

void tst_PopupPlacement::staysOnTheScreenOfItsSource()
{
    for (const PopupRules::Screen &screen : threeScreens) {
        forEachCase(screen.available, [](const Case &c) {
            const auto placement = PopupPlacement::onScreen(requestOf(c), screensOf(threeScreens),
                                                            true);
            QVERIFY(placement);
            QCOMPARE(text(*placement), PopupRules::onScreens(c, threeScreens, true).text());
        });
    }
}

void tst_PopupPlacement::staysInTheWindow()
{
    for (const QRect &window : { QRect(100, 50, 700, 500), QRect(-300, -200, 401, 303) }) {
        forEachCase(window, [&window](const Case &c) {
            QCOMPARE(text(PopupPlacement::inWindow(requestOf(c), window)),
                     PopupRules::inWindow(c, window).text());
        });
    }
}

void tst_PopupPlacement::flipsWhenItDoesNotFit_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QPoint>("source"); // Beside which 100 by 100 pixels just fit.
    QTest::addColumn<QPoint>("step");
    QTest::addColumn<int>("onScreen");
    QTest::addColumn<int>("inWindow");
    const auto row = [](const char *name, Side side, const QPoint &source, const QPoint &step,
                        Side onScreen, Side inWindow) {
        QTest::addRow("%s, fits exactly", name)
                << int(side) << source << QPoint() << int(side) << int(side);
        QTest::addRow("%s, one pixel more", name)
                << int(side) << source << step << int(onScreen) << int(inWindow);
    };
    row("below", Side::Top, { 500, 905 }, { 0, 1 }, Side::Bottom, Side::Bottom);
    row("right", Side::Left, { 1121, 500 }, { 1, 0 }, Side::Right, Side::Right);
    row("above without arrow", Side::NoArrowAbove, { 500, 100 }, { 0, -1 }, Side::NoArrowBelow,
        Side::NoArrowAbove);
}

void tst_PopupPlacement::flipsWhenItDoesNotFit()
{
    QFETCH(const int, side);
    QFETCH(const QPoint, source);
    QFETCH(const QPoint, step);
    const Case c { QRect(source + step, QSize(60, 20)), QPoint(), QSize(100, 100),
                   Alignment::Center, Side(side) };
    const QRect area(0, 0, 1280, 1024);
    QTEST(int(PopupPlacement::onScreen(requestOf(c), { { area, area } }, false)->arrow),
          "onScreen");
    QTEST(int(PopupPlacement::inWindow(requestOf(c), area).arrow), "inWindow");
}

void tst_PopupPlacement::doesNotFlipAtTheNearEdges_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QRect>("source");
    QTest::addColumn<QRect>("onScreen"); // Half the size at most.
    QTest::addColumn<QRect>("inWindow");
    QTest::newRow("above a source at the top")
            << int(Side::Bottom) << QRect(500, 10, 60, 20) << QRect(479, -40, 100, 100)
            << QRect(479, 0, 100, 100);
    QTest::newRow("left of a source at the left")
            << int(Side::Right) << QRect(10, 500, 60, 20) << QRect(-40, 459, 100, 100)
            << QRect(0, 459, 100, 100);
}

void tst_PopupPlacement::doesNotFlipAtTheNearEdges()
{
    QFETCH(const int, side);
    QFETCH(const QRect, source);
    QFETCH(const QRect, onScreen);
    QFETCH(const QRect, inWindow);
    const Case c { source, QPoint(), QSize(100, 100), Alignment::Center, Side(side) };
    const QRect area(0, 0, 1280, 1024);
    QCOMPARE(text(*PopupPlacement::onScreen(requestOf(c), { { area, area } }, false)),
             (Answer { onScreen, Side(side) }.text()));
    QCOMPARE(text(PopupPlacement::inWindow(requestOf(c), area)),
             (Answer { inWindow, Side(side) }.text()));
}

void tst_PopupPlacement::isNowhereWithoutAScreen()
{
    QVERIFY(!PopupPlacement::bestScreen(QRect(0, 0, 1, 1), {}));
    QVERIFY(!PopupPlacement::onScreen(requestOf(Case()), {}, false));
}

void tst_PopupPlacement::takesTheFirstOfEqualScreens()
{
    const auto screens = screensOf({ { QRect(0, 0, 100, 100), QRect(0, 0, 100, 90) },
                                     { QRect(100, 0, 100, 100), QRect(100, 0, 100, 90) } });
    const auto best = [&screens](const QRect &rect) {
        return int(PopupPlacement::bestScreen(rect, screens) - screens.constData());
    };
    QCOMPARE(best(QRect(90, 10, 20, 20)), 0); // Half on each.
    QCOMPARE(best(QRect(91, 10, 20, 20)), 1);
    QCOMPARE(best(QRect(500, 500, 20, 20)), 0); // On none.
    QCOMPARE(best(QRect()), 0);
    // By the whole screen, and not by what a panel leaves of it.
    QCOMPARE(best(QRect(85, 92, 20, 8)), 0);
}

void tst_PopupPlacement::truncatesTowardsZero()
{
    // Sums of edges at negative coordinates, and odd sizes.
    const Case c { QRect(-101, -52, 4, 4), QPoint(), QSize(7, 5), Alignment::Center, Side::Top };
    QCOMPARE(PopupPlacement::calculateProposedRect(requestOf(c)), QRect(-102, -49, 7, 5));
    Case left = c;
    left.side = Side::Left;
    QCOMPARE(PopupPlacement::calculateProposedRect(requestOf(left)), QRect(-98, -52, 7, 5));
    const QRect area(0, 0, 1280, 1024);
    QCOMPARE(PopupPlacement::onScreen(requestOf(c), { { area, area } }, false)->geometry,
             QRect(-99, -47, 7, 5)); // By 3 and 2, half of 7 and 5.
}

void tst_PopupPlacement::startsAtThePointer_data()
{
    QTest::addColumn<QRect>("parent");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QPoint>("cursor");
    QTest::addColumn<QPoint>("origin");
    const QRect window(100, 100, 400, 300);
    QTest::newRow("inside") << window << QRect(150, 150, 50, 40) << QPoint(160, 170)
                            << QPoint(160, 170);
    QTest::newRow("outside of the rectangle")
            << window << QRect(150, 150, 51, 41) << QPoint(10, 10) << QPoint(175, 170);
    QTest::newRow("inside, but outside of the parent")
            << window << QRect(50, 50, 100, 100) << QPoint(60, 60) << QPoint(124, 124);
    QTest::newRow("beside the screen") << QRect(-200, 100, 400, 300) << QRect(-100, 150, 150, 41)
                                       << QPoint(-50, 160) << QPoint(24, 170);
}

void tst_PopupPlacement::startsAtThePointer()
{
    QFETCH(const QRect, parent);
    QFETCH(const QRect, rect);
    QFETCH(const QPoint, cursor);
    QFETCH(const QPoint, origin);
    const QVector<PopupPlacement::Screen> screens { { QRect(0, 0, 1280, 1024),
                                                      QRect(0, 0, 1280, 1000) } };
    for (const QPoint &offset : { QPoint(0, 0), QPoint(3, -4) })
        QCOMPARE(PopupPlacement::originAtCursor(same(parent), same(rect), screens, cursor, offset),
                 QRect(origin + offset, QSize(1, 1)));
}

void tst_PopupPlacement::startsInTheLargerPartOfAParentAcrossScreens_data()
{
    // The parent's top left is on the first screen, and its bottom right where a row says.
    QTest::addColumn<QPoint>("parentsLast");
    QTest::addColumn<QRect>("byTopLeft");
    QTest::addColumn<QRect>("byBottomRight");
    QTest::addColumn<QPoint>("origin");
    const QRect half(950, 150, 100, 100); // Of which the first screen shows the left half.
    QTest::newRow("more on the second")
            << QPoint(1500, 500) << half << QRect(1200, 250, 100, 100) << QPoint(1249, 299);
    QTest::newRow("more on the first")
            << QPoint(1500, 500) << half << QRect(980, 250, 60, 100) << QPoint(974, 199);
    QTest::newRow("as much on both")
            << QPoint(1500, 500) << half << QRect(1200, 250, 50, 100) << QPoint(1224, 299);
    QTest::newRow("no screen at the bottom right")
            << QPoint(1500, 2000) << half << QRect(1200, 1750, 100, 100) << QPoint(974, 199);
}

void tst_PopupPlacement::startsInTheLargerPartOfAParentAcrossScreens()
{
    QFETCH(const QPoint, parentsLast);
    QFETCH(const QRect, byTopLeft);
    QFETCH(const QRect, byBottomRight);
    QFETCH(const QPoint, origin);
    const QRect first(0, 0, 1000, 1000);
    const QRect second(1000, 0, 1000, 1000);
    PopupPlacement::MappedRect parent { QRect(900, 100, 600, 400), QRect(0, 0, 600, 400) };
    parent.byBottomRight.moveBottomRight(parentsLast);
    QCOMPARE(PopupPlacement::originAtCursor(parent, { byTopLeft, byBottomRight },
                                            { { first, first }, { second, second } }, QPoint(5, 5),
                                            QPoint()),
             QRect(origin, QSize(1, 1)));
}

UIELEMENTS_TEST_MAIN(tst_PopupPlacement)
#include "tst_popupplacement.moc"
