// SPDX-License-Identifier: Apache-2.0
#include "PaintedItems.h"
#include "support/TestApplication.h"

#include <UiElements/qml/OxaQmlBalloon.h>

#include <QPainterPath>

namespace {

using Balloon = OxaQmlBalloon;
using PaintedItems::differenceOf;
using PaintedItems::drawn;
using PaintedItems::Stage;

const QColor background(255, 220, 0);
const QColor border(0, 0, 160);

constexpr int tolerance = 2;

/// What a balloon looks like with its arrow at the top, at \a center: its outline, point by point.
QPainterPath outlineWithArrowAtTop(const QSizeF &size, double arrow, double radius, double center)
{
    const double width = size.width();
    const double height = size.height();
    const double round = 2 * radius;
    QPainterPath path;
    path.moveTo(center - arrow, arrow);
    path.lineTo(center, 0);
    path.lineTo(center + arrow, arrow);
    path.lineTo(width - radius, arrow);
    path.arcTo(width - round, arrow, round, round, 90, -90);
    path.lineTo(width, height - radius);
    path.arcTo(width - round, height - round, round, round, 0, -90);
    path.lineTo(radius, height);
    path.arcTo(0, height - round, round, round, 270, -90);
    path.lineTo(0, arrow + radius);
    path.arcTo(0, arrow, round, round, 180, -90);
    path.closeSubpath();
    return path;
}

/// The same with the arrow on any side: the other sides are mirror images of the first.
QPainterPath outline(Balloon::ArrowAnchor anchor, const QSizeF &size, double arrow, double radius,
                     double center)
{
    const QTransform upsideDown(1, 0, 0, -1, 0, size.height());
    const QTransform leftToRight(-1, 0, 0, 1, size.width(), 0);
    const QTransform transposed(0, 1, 1, 0, 0, 0);
    const bool isAcross = anchor == Balloon::Left || anchor == Balloon::Right;
    const QPainterPath path = outlineWithArrowAtTop(isAcross ? size.transposed() : size, arrow,
                                                    radius, center);
    if (anchor == Balloon::Bottom)
        return upsideDown.map(path);
    if (anchor == Balloon::Left)
        return transposed.map(path);
    if (anchor == Balloon::Right)
        return (transposed * leftToRight).map(path);
    return path;
}

void setPen(QPainter *painter, int borderWidth)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(background);
    painter->setPen(QPen(border, borderWidth));
}

std::unique_ptr<Balloon> makeBalloon(const QSizeF &size)
{
    auto balloon = std::make_unique<Balloon>();
    balloon->setSize(size);
    balloon->setBackgroundColor(background);
    balloon->setBorderColor(border);
    return balloon;
}

/// Returns what \a balloon paints by itself, without a scene graph.
QImage painted(Balloon &balloon, qreal devicePixelRatio)
{
    return drawn(devicePixelRatio, [&balloon](QPainter *painter) { balloon.paint(painter); });
}

} // namespace

Q_DECLARE_METATYPE(OxaQmlBalloon::ArrowAnchor)
Q_DECLARE_METATYPE(OxaQmlBalloon::ArrowAlignment)

/// The pictures of balloons, compared with outlines that the test draws point by point.
class tst_OxaQmlBalloonPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawsOneOutline_data();
    void drawsOneOutline();
    void drawsARoundedRectangleWithoutAnArrow_data();
    void drawsARoundedRectangleWithoutAnArrow();
    void drawsAtSizesBelowThoseOfItsParts_data();
    void drawsAtSizesBelowThoseOfItsParts();
    void drawsNothingWithoutASize();
    void drawsInfiniteSizes_data();
    void drawsInfiniteSizes();
    void drawsNothingInItsFirstColors();
    void drawsAnewWhateverChanged();
};

void tst_OxaQmlBalloonPainting::drawsOneOutline_data()
{
    using B = Balloon;
    QTest::addColumn<B::ArrowAnchor>("anchor");
    QTest::addColumn<B::ArrowAlignment>("alignment");
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("arrow");
    QTest::addColumn<int>("radius");
    QTest::addColumn<int>("borderWidth");
    QTest::addColumn<int>("margin");
    QTest::addColumn<double>("center");
    const auto row = [](const char *name, B::ArrowAnchor anchor, B::ArrowAlignment alignment,
                        int offset, const QVector<int> &lengths, double center) {
        QTest::newRow(name) << anchor << alignment << offset << lengths[0] << lengths[1]
                            << lengths[2] << lengths[3] << center;
    };
    // The item is 120 by 80. Lengths: arrow, radius, border, margin.
    row("at the top", B::Top, B::CenterAlignment, 0, { 10, 8, 1, 0 }, 60);
    row("at the bottom", B::Bottom, B::CenterAlignment, 0, { 10, 8, 1, 0 }, 60);
    row("at the left", B::Left, B::CenterAlignment, 0, { 10, 8, 1, 0 }, 40);
    row("at the right", B::Right, B::CenterAlignment, 0, { 10, 8, 1, 0 }, 40);
    row("without corners", B::Top, B::CenterAlignment, 0, { 10, 0, 1, 0 }, 60);
    row("without corners, at the left", B::Left, B::CenterAlignment, 0, { 10, 0, 1, 0 }, 40);
    row("moved to the right", B::Top, B::CenterAlignment, 15, { 10, 8, 1, 0 }, 75);
    row("moved to the left", B::Bottom, B::CenterAlignment, -15, { 10, 8, 1, 0 }, 45);
    row("moved down", B::Left, B::CenterAlignment, 7, { 10, 8, 1, 0 }, 47);
    row("moved up", B::Right, B::CenterAlignment, -7, { 10, 8, 1, 0 }, 33);
    row("too far to the right", B::Top, B::CenterAlignment, 5000, { 10, 8, 1, 0 }, 102);
    row("too far to the left", B::Top, B::CenterAlignment, -5000, { 10, 8, 1, 0 }, 18);
    row("too far down", B::Right, B::CenterAlignment, 5000, { 10, 8, 1, 0 }, 62);
    row("too far up", B::Right, B::CenterAlignment, -5000, { 10, 8, 1, 0 }, 18);
    row("far beyond any number", B::Top, B::RightAlignment, INT_MAX, { 10, 8, 1, 0 }, 102);
    row("aligned to the left, at the corner", B::Top, B::LeftAlignment, 0, { 10, 8, 1, 0 }, 18);
    row("aligned to the left, moved", B::Top, B::LeftAlignment, 20, { 10, 8, 1, 0 }, 30);
    row("aligned to the right, at the corner", B::Bottom, B::RightAlignment, 0, { 10, 8, 1, 0 },
        102);
    row("aligned to the right, moved", B::Bottom, B::RightAlignment, -20, { 10, 8, 1, 0 }, 90);
    row("aligned to the top, at the corner", B::Left, B::TopAlignment, 0, { 10, 8, 1, 0 }, 18);
    row("aligned to the top, moved", B::Left, B::TopAlignment, 20, { 10, 8, 1, 0 }, 30);
    row("aligned to the bottom, at the corner", B::Right, B::BottomAlignment, 0, { 10, 8, 1, 0 },
        62);
    row("aligned to the bottom, moved", B::Right, B::BottomAlignment, -20, { 10, 8, 1, 0 }, 50);
    row("at the top, aligned to the top", B::Top, B::TopAlignment, 0, { 10, 8, 1, 0 }, 60);
    row("at the top, aligned to the bottom", B::Top, B::BottomAlignment, 0, { 10, 8, 1, 0 }, 60);
    row("at the left, aligned to the left", B::Left, B::LeftAlignment, 0, { 10, 8, 1, 0 }, 40);
    row("at the left, aligned to the right", B::Left, B::RightAlignment, 0, { 10, 8, 1, 0 }, 40);
    row("a small arrow", B::Top, B::CenterAlignment, 0, { 3, 8, 1, 0 }, 60);
    row("a large arrow", B::Left, B::CenterAlignment, 0, { 30, 8, 1, 0 }, 40);
    row("large corners", B::Bottom, B::CenterAlignment, 0, { 10, 30, 1, 0 }, 60);
    row("a wide border", B::Right, B::CenterAlignment, 0, { 10, 8, 6, 0 }, 40);
    row("a hairline", B::Top, B::CenterAlignment, 0, { 10, 8, 0, 0 }, 60);
    row("shortened, at the top", B::Top, B::CenterAlignment, 0, { 10, 8, 1, 20 }, 60);
    row("shortened, at the bottom", B::Bottom, B::CenterAlignment, 0, { 10, 8, 1, 20 }, 60);
    row("shortened, at the left", B::Left, B::CenterAlignment, 0, { 10, 8, 1, 20 }, 30);
    row("lengthened, at the right", B::Right, B::BottomAlignment, 0, { 10, 8, 1, -12 }, 74);
}

void tst_OxaQmlBalloonPainting::drawsOneOutline()
{
    QFETCH(const OxaQmlBalloon::ArrowAnchor, anchor);
    QFETCH(const OxaQmlBalloon::ArrowAlignment, alignment);
    QFETCH(const int, offset);
    QFETCH(const int, arrow);
    QFETCH(const int, radius);
    QFETCH(const int, borderWidth);
    QFETCH(const int, margin);
    QFETCH(const double, center);
    const QSizeF size(120, 80);
    const auto balloon = makeBalloon(size);
    balloon->setArrowAnchor(anchor);
    balloon->setArrowAlignment(alignment);
    balloon->setArrowOffset(offset);
    balloon->setArrowSize(arrow);
    balloon->setProperty("radius", radius);
    balloon->setBorderWidth(borderWidth);
    balloon->setTopMargin(margin);
    // Qt replaces the corners of a simplified path by short lines.
    const QPainterPath path = outline(anchor, size - QSizeF(0, margin), arrow, radius, center)
                                      .simplified();
    const auto draw = [&path, borderWidth](QPainter *painter) {
        setPen(painter, borderWidth);
        painter->drawPath(path);
    };
    for (const qreal ratio : { 1.0, 2.0 })
        QCOMPARE(differenceOf(painted(*balloon, ratio), drawn(ratio, draw), tolerance), QString());

    Stage stage(*balloon);
    const QImage expected = drawn(stage.devicePixelRatio(), [&draw, &size](QPainter *painter) {
        painter->setClipRect(QRectF(QPointF(0, 0), size));
        draw(painter);
    });
    QCOMPARE(differenceOf(stage.picture(), expected, tolerance), QString());
}

void tst_OxaQmlBalloonPainting::drawsARoundedRectangleWithoutAnArrow_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<int>("radius");
    QTest::addColumn<int>("margin");
    QTest::addColumn<QRect>("rectangle");
    QTest::newRow("corners") << QSizeF(120, 80) << 8 << 0 << QRect(0, 0, 120, 80);
    QTest::newRow("no corners") << QSizeF(120, 80) << 0 << 0 << QRect(0, 0, 120, 80);
    QTest::newRow("shortened") << QSizeF(120, 80) << 8 << 25 << QRect(0, 0, 120, 55);
    QTest::newRow("fractions") << QSizeF(100.9, 70.9) << 8 << 0 << QRect(0, 0, 100, 70);
    QTest::newRow("corners too large") << QSizeF(60, 20) << 40 << 0 << QRect(0, 0, 60, 20);
}

void tst_OxaQmlBalloonPainting::drawsARoundedRectangleWithoutAnArrow()
{
    QFETCH(const QSizeF, size);
    QFETCH(const int, radius);
    QFETCH(const int, margin);
    QFETCH(const QRect, rectangle);
    const auto balloon = makeBalloon(size);
    balloon->setArrowAnchor(Balloon::None);
    balloon->setProperty("radius", radius);
    balloon->setTopMargin(margin);
    for (const qreal ratio : { 1.0, 2.0 }) {
        const QImage expected = drawn(ratio, [=](QPainter *painter) {
            setPen(painter, 1);
            painter->drawRoundedRect(rectangle, radius, radius);
        });
        QCOMPARE(painted(*balloon, ratio), expected);
    }
}

void tst_OxaQmlBalloonPainting::drawsAtSizesBelowThoseOfItsParts_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<OxaQmlBalloon::ArrowAnchor>("anchor");
    QTest::addColumn<QPolygonF>("arrow");
    QTest::addColumn<QRectF>("body");
    const auto row = [](const char *name, const QSizeF &size, Balloon::ArrowAnchor anchor,
                        const QPolygonF &arrow, const QRectF &body) {
        QTest::newRow(name) << size << anchor << arrow << body;
    };
    // The arrow's size is 10. Where its corners leave no room, the first one counts.
    row("an arrow as wide as the body", QSizeF(20, 40), Balloon::Top,
        QPolygonF({ { 20, 10 }, { 10, 0 }, { 0, 10 } }), QRectF(0, 10, 20, 30));
    row("an arrow wider than the body", QSizeF(12, 40), Balloon::Top,
        QPolygonF({ { 20, 10 }, { 10, 0 }, { 0, 10 } }), QRectF(0, 10, 12, 30));
    row("an arrow wider than the body, below", QSizeF(12, 40), Balloon::Bottom,
        QPolygonF({ { 20, 30 }, { 10, 40 }, { 0, 30 } }), QRectF(0, 0, 12, 30));
    row("an arrow higher than the body", QSizeF(40, 12), Balloon::Left,
        QPolygonF({ { 10, 20 }, { 0, 10 }, { 10, 0 } }), QRectF(10, 0, 30, 12));
    row("an arrow higher than the body, at the right", QSizeF(40, 12), Balloon::Right,
        QPolygonF({ { 30, 20 }, { 40, 10 }, { 30, 0 } }), QRectF(0, 0, 30, 12));
    row("nothing but the arrow", QSizeF(40, 10), Balloon::Top,
        QPolygonF({ { 30, 10 }, { 20, 0 }, { 10, 10 } }), QRectF());
    row("nothing but the arrow, at the right", QSizeF(10, 40), Balloon::Right,
        QPolygonF({ { 0, 30 }, { 10, 20 }, { 0, 10 } }), QRectF());
}

void tst_OxaQmlBalloonPainting::drawsAtSizesBelowThoseOfItsParts()
{
    QFETCH(const QSizeF, size);
    QFETCH(const OxaQmlBalloon::ArrowAnchor, anchor);
    QFETCH(const QPolygonF, arrow);
    QFETCH(const QRectF, body);
    const auto balloon = makeBalloon(size);
    balloon->setBorderColor(Qt::transparent);
    balloon->setArrowAnchor(anchor);
    QPainterPath both;
    both.addRect(body);
    both.addPolygon(arrow);
    for (const qreal ratio : { 1.0, 2.0 }) {
        const QImage expected = drawn(ratio, [&both](QPainter *painter) {
            painter->setRenderHint(QPainter::Antialiasing);
            painter->fillPath(both, background);
        });
        QCOMPARE(differenceOf(painted(*balloon, ratio), expected, tolerance), QString());
    }
}

void tst_OxaQmlBalloonPainting::drawsNothingWithoutASize()
{
    for (const QSizeF size : { QSizeF(0, 0), QSizeF(40, 0), QSizeF(0, 40), QSizeF(-5, -5) }) {
        for (const auto anchor : { Balloon::None, Balloon::Top, Balloon::Right }) {
            const auto balloon = makeBalloon(size);
            balloon->setArrowAnchor(anchor);
            balloon->setProperty("radius", 8);
            Stage stage(*balloon);
            const QImage blank = drawn(stage.devicePixelRatio(), [](QPainter *) {});
            QCOMPARE(stage.picture().convertToFormat(blank.format()), blank);
            painted(*balloon, 1);
        }
    }
}

void tst_OxaQmlBalloonPainting::drawsInfiniteSizes_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("width") << QSizeF(qInf(), 60);
    QTest::newRow("height") << QSizeF(60, qInf());
}

void tst_OxaQmlBalloonPainting::drawsInfiniteSizes()
{
    QFETCH(const QSizeF, size);
    const auto balloon = makeBalloon(size);
    QCOMPARE(painted(*balloon, 1).pixelColor(30, 30), QColor(background));
}

void tst_OxaQmlBalloonPainting::drawsNothingInItsFirstColors()
{
    Balloon balloon;
    balloon.setSize(QSizeF(120, 80));
    QCOMPARE(painted(balloon, 1), drawn(1, [](QPainter *) {}));
}

void tst_OxaQmlBalloonPainting::drawsAnewWhateverChanged()
{
    // Each property counts: a balloon keeps its outline until one changes.
    const auto balloon = makeBalloon(QSizeF(120, 80));
    QVariantMap changes;
    QImage before = painted(*balloon, 1);
    for (const char *property : { "arrowOffset", "arrowSize", "radius", "borderWidth", "topMargin",
                                  "width", "height", "arrowAlignment", "arrowAnchor" }) {
        changes[QLatin1String(property)] = balloon->property(property).toInt() / 2 + 2;
        const auto other = makeBalloon(QSizeF(120, 80));
        for (auto change = changes.cbegin(); change != changes.cend(); ++change)
            other->setProperty(qPrintable(change.key()), change.value());
        balloon->setProperty(property, changes[QLatin1String(property)]);
        const QImage after = painted(*balloon, 1);
        QVERIFY2(after != before, property);
        QCOMPARE(after, painted(*other, 1));
        before = after;
    }
}

UIELEMENTS_TEST_MAIN(tst_OxaQmlBalloonPainting)
#include "tst_oxaqmlballoon_painting.moc"
