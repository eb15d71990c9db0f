// SPDX-License-Identifier: Apache-2.0
#include "support/TestApplication.h"

#include <UiElements/qml/OxaQmlBalloon.h>

#include <QQuickWindow>
#include <QTest>

namespace {

using Balloon = OxaQmlBalloon;

struct Place
{
    const char *name;
    Balloon::ArrowAnchor anchor;
    Balloon::ArrowAlignment alignment;
    QPoint position;
};

// The item is at (130, 90) and 21 by 11 pixels: its last column is 150, its last row 100, and its
// middle is at (140, 95). The box is 60 by 30, moved by 4 and with an inset of 7.
const Place places[] = {
    { "above, centred", Balloon::Bottom, Balloon::CenterAlignment, { 106, 60 } },
    { "above, from the left", Balloon::Bottom, Balloon::LeftAlignment, { 129, 60 } },
    { "above, from the right", Balloon::Bottom, Balloon::RightAlignment, { 83, 60 } },
    { "above, from the top", Balloon::Bottom, Balloon::TopAlignment, { 106, 60 } },
    { "below, centred", Balloon::Top, Balloon::CenterAlignment, { 106, 100 } },
    { "below, from the left", Balloon::Top, Balloon::LeftAlignment, { 129, 100 } },
    { "below, from the right", Balloon::Top, Balloon::RightAlignment, { 83, 100 } },
    { "below, from the bottom", Balloon::Top, Balloon::BottomAlignment, { 106, 100 } },
    { "at the right, centred", Balloon::Left, Balloon::CenterAlignment, { 150, 76 } },
    { "at the right, from the top", Balloon::Left, Balloon::TopAlignment, { 150, 84 } },
    { "at the right, from the bottom", Balloon::Left, Balloon::BottomAlignment, { 150, 68 } },
    { "at the right, from the left", Balloon::Left, Balloon::LeftAlignment, { 150, 76 } },
    { "at the left, centred", Balloon::Right, Balloon::CenterAlignment, { 70, 76 } },
    { "at the left, from the top", Balloon::Right, Balloon::TopAlignment, { 70, 84 } },
    { "at the left, from the bottom", Balloon::Right, Balloon::BottomAlignment, { 70, 68 } },
    { "at the left, from the right", Balloon::Right, Balloon::RightAlignment, { 70, 76 } },
    { "nowhere, centred", Balloon::None, Balloon::CenterAlignment, { 106, 90 } },
    { "nowhere, from the left", Balloon::None, Balloon::LeftAlignment, { 129, 90 } },
    { "nowhere, from the right", Balloon::None, Balloon::RightAlignment, { 83, 90 } },
    { "nowhere, from the top", Balloon::None, Balloon::TopAlignment, { 106, 90 } },
};

} // namespace

/// The functions of a balloon that place popups.
class tst_OxaQmlBalloonPosition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placesABoxBesideAnItem_data();
    void placesABoxBesideAnItem();
    void dividesOddNumbersDownwards();
    void roundsTheItem();
    void staysFarAwayForAnItemFarAway();
    void takesAnItemWithoutAWindowAtItsPlaceInTheScene();
    void answersZeroWithoutAnItem();
    void convertsAnchorsAndArrows_data();
    void convertsAnchorsAndArrows();
    void flipsAnchors();
};

void tst_OxaQmlBalloonPosition::placesABoxBesideAnItem_data()
{
    QTest::addColumn<int>("row");
    int row = 0;
    for (const Place &place : places)
        QTest::newRow(place.name) << row++;
}

void tst_OxaQmlBalloonPosition::placesABoxBesideAnItem()
{
    QFETCH(const int, row);
    const auto &[name, anchor, alignment, position] = places[row];
    QQuickWindow window;
    window.setGeometry(100, 50, 200, 100);
    QQuickItem item(window.contentItem());
    item.setPosition(QPointF(30, 40));
    item.setSize(QSizeF(21, 11));
    QCOMPARE(Balloon::calcArrowPos(&item, QSize(60, 30), anchor, alignment, 4, 7), position);
}

void tst_OxaQmlBalloonPosition::dividesOddNumbersDownwards()
{
    QQuickItem item;
    item.setSize(QSizeF(20, 10));
    // The middle is 19 - 10 across and 9 - 5 down, half of the box 30 across and 15 down.
    QCOMPARE(Balloon::calcArrowPos(&item, QSize(61, 31), Balloon::Top, Balloon::CenterAlignment, 0,
                                   0),
             QPoint(-21, 9));
    QCOMPARE(Balloon::calcArrowPos(&item, QSize(61, 31), Balloon::Left, Balloon::CenterAlignment, 0,
                                   0),
             QPoint(19, -11));
}

void tst_OxaQmlBalloonPosition::roundsTheItem()
{
    QQuickItem item;
    item.setPosition(QPointF(10.6, 10.4));
    item.setSize(QSizeF(20.4, 9.5));
    QCOMPARE(Balloon::calcArrowPos(&item, QSize(0, 0), Balloon::Top, Balloon::CenterAlignment, 0,
                                   0),
             QPoint(20, 19));
}

void tst_OxaQmlBalloonPosition::staysFarAwayForAnItemFarAway()
{
    QQuickItem item;
    item.setPosition(QPointF(1e300, INT_MAX));
    item.setSize(QSizeF(qInf(), INT_MAX));
    const QPoint place = Balloon::calcArrowPos(&item, QSize(INT_MAX, 8), Balloon::Left,
                                               Balloon::CenterAlignment, INT_MIN, 0);
    QVERIFY(place.x() > 1000000 && place.y() > 1000000);
}

void tst_OxaQmlBalloonPosition::takesAnItemWithoutAWindowAtItsPlaceInTheScene()
{
    QQuickItem parent;
    parent.setPosition(QPointF(100, 200));
    QQuickItem item(&parent);
    item.setPosition(QPointF(10, 20));
    QCOMPARE(Balloon::calcArrowPos(&item, QSize(8, 8), Balloon::Right, Balloon::TopAlignment, 0, 0),
             QPoint(102, 219));
}

void tst_OxaQmlBalloonPosition::answersZeroWithoutAnItem()
{
    QCOMPARE(Balloon::calcArrowPos(nullptr, QSize(60, 30), Balloon::Top, Balloon::LeftAlignment, 4,
                                   7),
             QPoint(0, 0));
}

void tst_OxaQmlBalloonPosition::convertsAnchorsAndArrows_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("arrow");
    QTest::addColumn<int>("anchor");
    QTest::addColumn<int>("flipped");
    QTest::newRow("below") << -1 << 0 << 0 << 0;
    QTest::newRow("none") << 0 << 0 << 0 << 0;
    QTest::newRow("up") << 1 << int(Qt::UpArrow) << int(Balloon::Top) << int(Balloon::Bottom);
    QTest::newRow("down") << 2 << int(Qt::DownArrow) << int(Balloon::Bottom) << int(Balloon::Top);
    QTest::newRow("left") << 3 << int(Qt::LeftArrow) << int(Balloon::Left) << int(Balloon::Right);
    QTest::newRow("right") << 4 << int(Qt::RightArrow) << int(Balloon::Right) << int(Balloon::Left);
    QTest::newRow("above") << 5 << 0 << 0 << 0;
}

void tst_OxaQmlBalloonPosition::convertsAnchorsAndArrows()
{
    QFETCH(const int, number);
    QFETCH(const int, arrow);
    QFETCH(const int, anchor);
    QFETCH(const int, flipped);
    QCOMPARE(int(Balloon::arrowAnchorFromArrowType(static_cast<Qt::ArrowType>(number))), anchor);
    const auto own = static_cast<Balloon::ArrowAnchor>(number);
    QCOMPARE(int(Balloon::arrowTypeFromArrowAnchor(own)), arrow);
    QCOMPARE(int(Balloon::flipAnchor(own)), flipped);
}

void tst_OxaQmlBalloonPosition::flipsAnchors()
{
    QCOMPARE(Balloon::flipAnchor(Balloon::None), Balloon::None);
}

UIELEMENTS_TEST_MAIN(tst_OxaQmlBalloonPosition)
#include "tst_oxaqmlballoon_position.moc"
