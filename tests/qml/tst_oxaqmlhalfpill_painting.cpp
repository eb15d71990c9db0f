// SPDX-License-Identifier: Apache-2.0
#include "PaintedItems.h"
#include "support/TestApplication.h"

#include <UiElements/qml/OxaQmlHalfPill.h>

#include <QPainterPath>

namespace {

using HalfPill = OxaQmlHalfPill;
using PaintedItems::drawn;
using PaintedItems::Stage;

constexpr int tolerance = 2;

/// A half pill and what it is made of.
struct Picture
{
    const char *name;
    HalfPill::RoundEdge edge;
    QSizeF size;
    int borderWidth;
    const char *borders; ///< The first letters of the sides.
    QRectF ellipse;
    QRectF bar;
    QVector<QLineF> lines; ///< In the order in which they are added.
    QRectF arc;
    int span = 0; ///< In degrees, from the top.
};

const Picture pictures[] = {
    { "round at the left",
      HalfPill::Left,
      { 100, 40 },
      2,
      "ltrb",
      { 1, 1, 40, 39 },
      { 22, 0, 100, 40 },
      { { 21, 1, 100, 1 }, { 21, 39, 100, 39 }, { 99, 1, 99, 40 } },
      { 1, 1, 40, 38 },
      180 },
    { "round at the left, without its border",
      HalfPill::Left,
      { 100, 40 },
      2,
      "trb",
      { 0, 0, 40, 40 },
      { 22, 0, 100, 40 },
      { { 21, 1, 100, 1 }, { 21, 39, 100, 39 }, { 99, 1, 99, 40 } },
      {},
      0 },
    { "round at the left, without the others",
      HalfPill::Left,
      { 100, 40 },
      2,
      "l",
      { 1, 1, 40, 39 },
      { 22, 0, 100, 40 },
      {},
      { 1, 1, 40, 38 },
      180 },
    { "round at the left, the top alone",
      HalfPill::Left,
      { 100, 40 },
      2,
      "t",
      { 0, 0, 40, 40 },
      { 22, 0, 100, 40 },
      { { 21, 1, 100, 1 } },
      {},
      0 },
    { "round at the right",
      HalfPill::Right,
      { 100, 40 },
      2,
      "ltrb",
      { 59, 1, 40, 39 },
      { 0, 0, 78, 40 },
      { { -1, 1, 78, 1 }, { -1, 39, 78, 39 }, { 1, 1, 1, 40 } },
      { 59, 1, 40, 38 },
      -180 },
    { "round at the right, without its border",
      HalfPill::Right,
      { 100, 40 },
      2,
      "ltb",
      { 60, 0, 40, 40 },
      { 0, 0, 78, 40 },
      { { -1, 1, 78, 1 }, { -1, 39, 78, 39 }, { 1, 1, 1, 40 } },
      {},
      0 },
    { "round at the right, the bottom alone",
      HalfPill::Right,
      { 100, 40 },
      2,
      "b",
      { 60, 0, 40, 40 },
      { 0, 0, 78, 40 },
      { { -1, 39, 78, 39 } },
      {},
      0 },
    { "round nowhere",
      HalfPill::None,
      { 100, 40 },
      2,
      "ltrb",
      {},
      { 0, 0, 100, 40 },
      { { -1, 1, 100, 1 }, { -1, 39, 100, 39 }, { 99, 1, 99, 40 }, { 1, 1, 1, 40 } },
      {},
      0 },
    { "round nowhere, left and right",
      HalfPill::None,
      { 100, 40 },
      2,
      "lr",
      {},
      { 0, 0, 100, 40 },
      { { 99, 1, 99, 40 }, { 1, 1, 1, 40 } },
      {},
      0 },
    { "round nowhere, no border",
      HalfPill::None,
      { 100, 40 },
      2,
      "",
      {},
      { 0, 0, 100, 40 },
      {},
      {},
      0 },
    { "an odd border",
      HalfPill::Left,
      { 100, 40 },
      3,
      "ltrb",
      { 1.5, 1.5, 40, 38.5 },
      { 23, 0, 100, 40 },
      { { 21.5, 1.5, 100, 1.5 }, { 21.5, 38.5, 100, 38.5 }, { 98.5, 1.5, 98.5, 40 } },
      { 1.5, 1.5, 40, 37 },
      180 },
    { "a hairline",
      HalfPill::Right,
      { 100, 40 },
      0,
      "ltrb",
      { 60, 0, 40, 40 },
      { 0, 0, 80, 40 },
      { { 0, 0, 80, 0 }, { 0, 40, 80, 40 }, { 0, 0, 0, 40 } },
      { 60, 0, 40, 40 },
      -180 },
    { "an odd height",
      HalfPill::Left,
      { 90, 33 },
      1,
      "ltrb",
      { 0.5, 0.5, 33, 32.5 },
      { 17.5, 0, 90, 33 },
      { { 17, 0.5, 90, 0.5 }, { 17, 32.5, 90, 32.5 }, { 89.5, 0.5, 89.5, 33 } },
      { 0.5, 0.5, 33, 32 },
      180 },
    { "higher than wide",
      HalfPill::Right,
      { 20, 40 },
      2,
      "ltrb",
      { -21, 1, 40, 39 },
      { -2, 0, 2, 40 },
      { { -1, 1, -2, 1 }, { -1, 39, -2, 39 }, { 1, 1, 1, 40 } },
      { -21, 1, 40, 38 },
      -180 },
    { "a pixel",
      HalfPill::None,
      { 1, 1 },
      1,
      "ltrb",
      {},
      { 0, 0, 1, 1 },
      { { -0.5, 0.5, 1, 0.5 }, { -0.5, 0.5, 1, 0.5 }, { 0.5, 0.5, 0.5, 1 }, { 0.5, 0.5, 0.5, 1 } },
      {},
      0 },
};

void draw(const Picture &picture, const QColor &background, const QColor &border, QPainter *painter)
{
    painter->setPen(Qt::transparent);
    painter->setBrush(background);
    painter->setRenderHint(QPainter::Antialiasing);
    if (!picture.ellipse.isNull())
        painter->drawEllipse(picture.ellipse);
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->drawRect(picture.bar);

    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(border, picture.borderWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    // Each line is drawn again with the following ones.
    for (int count = 1; count <= picture.lines.size(); ++count) {
        QPainterPath path;
        for (const QLineF &line : picture.lines.mid(0, count)) {
            path.moveTo(line.p1());
            path.lineTo(line.p2());
        }
        painter->drawPath(path);
    }
    if (picture.span != 0)
        painter->drawArc(picture.arc, 90 * 16, picture.span * 16);
}

void setUp(HalfPill &pill, const Picture &picture, const QColor &background, const QColor &border)
{
    const QByteArray borders = picture.borders;
    pill.setSize(picture.size);
    pill.setBackgroundColor(background);
    pill.setBorderColor(border);
    pill.setProperty("edge", picture.edge);
    pill.setProperty("borderWidth", picture.borderWidth);
    pill.setProperty("borderLeft", borders.contains('l'));
    pill.setProperty("borderTop", borders.contains('t'));
    pill.setProperty("borderRight", borders.contains('r'));
    pill.setProperty("borderBottom", borders.contains('b'));
}

struct Colors
{
    QColor background;
    QColor border;
};

const Colors colors[] = {
    { QColor(255, 220, 0), QColor(0, 0, 160) },
    { QColor(255, 220, 0, 120), QColor(0, 0, 160, 90) },
    { Qt::transparent, QColor(0, 0, 160) },
};

QImage painted(HalfPill &pill, qreal devicePixelRatio)
{
    return drawn(devicePixelRatio, [&pill](QPainter *painter) { pill.paint(painter); });
}

} // namespace

/// The pictures of half pills, compared with ellipses, rectangles and lines that the test draws.
class tst_OxaQmlHalfPillPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawsItsParts_data();
    void drawsItsParts();
    void isCutAtItsEdges_data();
    void isCutAtItsEdges();
    void drawsNothingWithoutASize();
    void leavesThePainterWithItsOwnPen();
};

void tst_OxaQmlHalfPillPainting::drawsItsParts_data()
{
    QTest::addColumn<int>("row");
    int row = 0;
    for (const Picture &picture : pictures)
        QTest::newRow(picture.name) << row++;
}

void tst_OxaQmlHalfPillPainting::drawsItsParts()
{
    QFETCH(const int, row);
    for (const auto &[background, border] : colors) {
        HalfPill pill;
        setUp(pill, pictures[row], background, border);
        for (const qreal ratio : { 1.0, 2.0 }) {
            const QImage expected = drawn(ratio,
                                          [row, &background = background,
                                           &border = border](QPainter *painter) {
                                              draw(pictures[row], background, border, painter);
                                          });
            QCOMPARE(painted(pill, ratio), expected);
        }
    }
}

void tst_OxaQmlHalfPillPainting::isCutAtItsEdges_data() { drawsItsParts_data(); }

void tst_OxaQmlHalfPillPainting::isCutAtItsEdges()
{
    QFETCH(const int, row);
    const Picture &picture = pictures[row];
    HalfPill pill;
    setUp(pill, picture, colors[0].background, colors[0].border);
    Stage stage(pill);
    const QImage expected = drawn(stage.devicePixelRatio(), [&picture](QPainter *painter) {
        painter->setClipRect(QRectF(QPointF(0, 0), picture.size));
        draw(picture, colors[0].background, colors[0].border, painter);
    });
    QCOMPARE(PaintedItems::differenceOf(stage.picture(), expected, tolerance), QString());
}

void tst_OxaQmlHalfPillPainting::drawsNothingWithoutASize()
{
    for (const auto edge : { HalfPill::Left, HalfPill::Right, HalfPill::None }) {
        HalfPill pill;
        setUp(pill, { "", edge, { 0, 0 }, 1, "ltrb", {}, {}, {}, {} }, Qt::yellow, Qt::blue);
        Stage stage(pill);
        const QImage blank = drawn(stage.devicePixelRatio(), [](QPainter *) {});
        QCOMPARE(PaintedItems::differenceOf(stage.picture(), blank, tolerance), QString());
        painted(pill, 1);
    }
}

void tst_OxaQmlHalfPillPainting::leavesThePainterWithItsOwnPen()
{
    HalfPill pill;
    setUp(pill, pictures[0], Qt::yellow, Qt::blue);
    QImage image(100, 40, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing); // For which the bar has no use.
    pill.paint(&painter);
    QVERIFY(painter.pen() != QPen(Qt::blue, 2));
    QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
}

UIELEMENTS_TEST_MAIN(tst_OxaQmlHalfPillPainting)
#include "tst_oxaqmlhalfpill_painting.moc"
