// SPDX-License-Identifier: Apache-2.0
#include "IconShapes.h"
#include "support/Comparison.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>

namespace {

const QColor knownColor(Qt::red);

/// Returns a colour that no call has returned before.
QColor newColor()
{
    static QRgb rgb = 0;
    return { ++rgb };
}

void setColor(const IconShape &shape, const QColor &color)
{
    shape.icon->setColorSet(OxaColorSet(QStringLiteral("icon"), color));
}

/// Paints one icon at the painter's origin.
using PaintIcon = void (*)(QPainter &, const IconShape &, const QColor &);

/// In the colour that the icon has.
void paintOurs(QPainter &painter, const IconShape &shape, const QColor &)
{
    shape.icon->draw(&painter, QStyle::State_Enabled);
}

void paintOursAnew(QPainter &painter, const IconShape &shape, const QColor &color)
{
    setColor(shape, color);
    shape.icon->draw(&painter, QStyle::State_Enabled);
}

/// The lower bound: painting the ready shape at its place in its colour.
void paintPath(QPainter &painter, const IconShape &shape, const QColor &color)
{
    painter.setTransform(shape.place);
    painter.setBrush(color);
    painter.drawPath(shape.path);
}

/// What a program does without the library: it changes the colour in the file's text.
void paintCopy(QPainter &painter, const IconShape &shape, const QColor &color)
{
    QByteArray copy = shape.file;
    copy.replace("<path ", "<path fill=\"" + color.name().toLatin1() + "\" ");
    QSvgRenderer renderer(copy);
    renderer.render(&painter, QRectF(QPointF(), shape.icon->getIconSize()));
}

/// An image with a painter that is ready for icons.
class Canvas
{
public:
    explicit Canvas(int size) : m_image(size, size, QImage::Format_ARGB32_Premultiplied)
    {
        m_image.fill(Qt::transparent);
        m_painter.begin(&m_image);
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.setPen(Qt::NoPen);
    }

    void paint(PaintIcon paintIcon, const IconShape &shape, const QColor &color)
    {
        m_painter.resetTransform();
        paintIcon(m_painter, shape, color);
    }

    void paint(PaintIcon paintIcon, const std::vector<IconShape> &shapes, const QColor &color)
    {
        for (const IconShape &shape : shapes)
            paint(paintIcon, shape, color);
    }

    const QImage &image() const { return m_image; }

private:
    QImage m_image;
    QPainter m_painter;
};

/// True when the two paint the same pictures of \a shapes.
bool agree(const std::vector<IconShape> &shapes, int size, PaintIcon ours, PaintIcon peer)
{
    return !shapes.empty()
            && std::all_of(shapes.begin(), shapes.end(), [=](const IconShape &shape) {
                   setColor(shape, knownColor);
                   Canvas oursCanvas(size);
                   Canvas peerCanvas(size);
                   oursCanvas.paint(ours, shape, knownColor);
                   peerCanvas.paint(peer, shape, knownColor);
                   return oursCanvas.image() == peerCanvas.image();
               });
}

/// Each round paints all icons.
void againstPath(benchmark::State &state, int size, double limit)
{
    const auto shapes = IconShapes::load(QStringLiteral("*.svg"), size);
    if (!agree(shapes, size, paintOurs, paintPath))
        state.SkipWithError("an icon looks unlike its shape");

    Canvas canvas(size);
    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([&] { canvas.paint(paintOurs, shapes, knownColor); },
                         [&] { canvas.paint(paintPath, shapes, knownColor); }, 10);
    comparison.ratioAtMost(limit);
}
BENCHMARK_CAPTURE(againstPath, 16, 16, 1.09)
        ->Name("icon at 16 px/QPainter::drawPath")
        ->Iterations(200)
        ->UseManualTime();
BENCHMARK_CAPTURE(againstPath, 24, 24, 1.06)
        ->Name("icon at 24 px/QPainter::drawPath")
        ->Iterations(200)
        ->UseManualTime();
BENCHMARK_CAPTURE(againstPath, 48, 48, 1.06)
        ->Name("icon at 48 px/QPainter::drawPath")
        ->Iterations(100)
        ->UseManualTime();

/// Both sides are ours. Each round paints all icons, which got their colours before.
void newAgainstKnown(benchmark::State &state, int size)
{
    const auto ours = IconShapes::load(QStringLiteral("*.svg"), size);
    const auto peer = IconShapes::load(QStringLiteral("*.svg"), size);
    Canvas canvas(size);
    Comparison comparison(state);
    for (auto _ : state) {
        for (const IconShape &shape : ours)
            setColor(shape, newColor());
        for (const IconShape &shape : peer)
            setColor(shape, knownColor);
        comparison.round([&] { canvas.paint(paintOurs, ours, QColor()); },
                         [&] { canvas.paint(paintOurs, peer, QColor()); });
    }
    comparison.ratioAtMost(1.02);
}
BENCHMARK_CAPTURE(newAgainstKnown, 16, 16)
        ->Name("icon at 16 px in a new colour/in a known one")
        ->Iterations(1000)
        ->UseManualTime();
BENCHMARK_CAPTURE(newAgainstKnown, 24, 24)
        ->Name("icon at 24 px in a new colour/in a known one")
        ->Iterations(1000)
        ->UseManualTime();
BENCHMARK_CAPTURE(newAgainstKnown, 48, 48)
        ->Name("icon at 48 px in a new colour/in a known one")
        ->Iterations(500)
        ->UseManualTime();

/// Each round paints one icon, so that the result is that of the median icon: the parsing is saved,
/// which matters less the more there is to paint. The icons are those drawn on a
/// grid of 24 by 24 units, as icon packs are.
void againstCopy(benchmark::State &state)
{
    constexpr int size = 16;
    const auto shapes = IconShapes::load(QStringLiteral("*_24.svg"), size);
    if (!agree(shapes, size, paintOursAnew, paintCopy))
        state.SkipWithError("an icon looks unlike a re-coloured copy");

    Canvas canvas(size);
    Comparison comparison(state);
    std::size_t next = 0;
    for (auto _ : state) {
        const IconShape &shape = shapes[next++ % shapes.size()];
        comparison.round([&] { canvas.paint(paintOursAnew, shape, newColor()); },
                         [&] { canvas.paint(paintCopy, shape, newColor()); }, 20);
    }
    comparison.gainAtLeast(2.8);
}
BENCHMARK(againstCopy)
        ->Name("icon at 16 px in a new colour/parsing and rendering a re-coloured copy")
        ->Iterations(1800)
        ->UseManualTime();

} // namespace
