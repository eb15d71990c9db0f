// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QImage>

#include <functional>

class QPainter;
class QWidget;

/// Rendering widgets, and checking the result.
namespace Pixels {

/// Paints \a widget with its background as on screen, over \a background, at \a devicePixelRatio.
QImage render(QWidget &widget, const QColor &background = Qt::white, qreal devicePixelRatio = 1.0);

/// Returns a white image of \a size.
QImage paper(const QSize &size);

/// Returns what \a draw paints on a white image of \a size.
QImage drawing(const QSize &size, const std::function<void(QPainter *)> &draw);

/// Returns how many pixels of \a image inside \a area, or in all of it, are near \a color: each
/// channel within \a tolerance.
int countNear(const QImage &image, const QColor &color, const QRect &area = QRect(),
              int tolerance = 24);

/// Returns the smallest rectangle around the pixels that are near \a color; null when none is.
QRect boundsNear(const QImage &image, const QColor &color, int tolerance = 24);

} // namespace Pixels
