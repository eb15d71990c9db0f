// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"

#include <UiElements/qml/OxaQmlBalloon.h>

#include <QImage>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr QSize size(320, 200);
constexpr int radius = 8;
constexpr int arrow = 10;
const QColor background(255, 250, 230);
const QColor border(90, 90, 90);

/// Returns the outline of a balloon with its arrow in the middle of its top.
QPainterPath finishedOutline()
{
    constexpr int round = 2 * radius;
    constexpr int right = size.width();
    constexpr int bottom = size.height();
    QPainterPath path;
    path.moveTo(right, arrow + radius);
    path.arcTo(right - round, arrow, round, round, 0, 90);
    path.arcTo(0, arrow, round, round, 90, 90);
    path.arcTo(0, bottom - round, round, round, 180, 90);
    path.arcTo(right - round, bottom - round, round, round, 270, 90);
    path.closeSubpath();
    constexpr int middle = right / 2;
    path.addPolygon(
            QPolygonF({ { middle + arrow, arrow }, { middle, 0 }, { middle - arrow, arrow } }));
    return path.simplified();
}

/// The peer: an item that only draws the finished outline.
class Outline : public QQuickPaintedItem
{
public:
    void paint(QPainter *painter) override
    {
        painter->setBrush(background);
        painter->setPen(QPen(border, 1));
        painter->setRenderHint(QPainter::Antialiasing);
        painter->drawPath(m_outline);
    }

private:
    const QPainterPath m_outline = finishedOutline();
};

/// Paints \a item as the scene graph does: on a picture of its own.
QImage picture(QQuickPaintedItem &item)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    item.paint(&painter);
    return image;
}

void repaint(benchmark::State &state)
{
    OxaQmlBalloon balloon;
    balloon.setSize(size);
    balloon.setProperty("radius", radius);
    balloon.setBackgroundColor(background);
    balloon.setBorderColor(border);
    Outline outline;
    outline.setSize(size);
    if (picture(balloon) != picture(outline))
        return state.SkipWithError("The pictures differ.");

    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([&balloon] { picture(balloon); }, [&outline] { picture(outline); }, 10);
    comparison.ratioAtMost(1.05);
}

BENCHMARK(repaint)
        ->Name("repaint of OxaBalloon/an item that draws the finished path")
        ->Iterations(300)
        ->UseManualTime();

} // namespace
