// SPDX-License-Identifier: Apache-2.0
#include "support/Pixels.h"

#include <QPainter>
#include <QWidget>

namespace {

bool isNear(QRgb pixel, const QColor &color, int tolerance)
{
    return qAbs(qRed(pixel) - color.red()) <= tolerance
            && qAbs(qGreen(pixel) - color.green()) <= tolerance
            && qAbs(qBlue(pixel) - color.blue()) <= tolerance;
}

template <typename Visitor>
void visitNear(const QImage &image, const QColor &color, const QRect &area, int tolerance,
               Visitor visit)
{
    const QRect whole = area.isNull() ? image.rect() : area.intersected(image.rect());
    for (int y = whole.top(); y <= whole.bottom(); ++y) {
        for (int x = whole.left(); x <= whole.right(); ++x) {
            if (isNear(image.pixel(x, y), color, tolerance))
                visit(QPoint(x, y));
        }
    }
}

} // namespace

QImage Pixels::render(QWidget &widget, const QColor &background, qreal devicePixelRatio)
{
    QImage image(widget.size() * devicePixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(background);
    widget.ensurePolished();
    QPainter painter(&image);
    widget.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QImage Pixels::paper(const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

QImage Pixels::drawing(const QSize &size, const std::function<void(QPainter *)> &draw)
{
    QImage image = paper(size);
    QPainter painter(&image);
    draw(&painter);
    return image;
}

int Pixels::countNear(const QImage &image, const QColor &color, const QRect &area, int tolerance)
{
    int count = 0;
    visitNear(image, color, area, tolerance, [&count](const QPoint &) { ++count; });
    return count;
}

QRect Pixels::boundsNear(const QImage &image, const QColor &color, int tolerance)
{
    QRect bounds;
    visitNear(image, color, QRect(), tolerance,
              [&bounds](const QPoint &point) { bounds |= QRect(point, QSize(1, 1)); });
    return bounds;
}
