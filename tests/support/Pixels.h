// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QImage>

#include <functional>

class QPainter;
class QWidget;

/// Pictures of widgets, and what is in them.
namespace Pixels {

/// Paints \a widget with its background as it would stand on screen, over \a ground, at
/// \a devicePixelRatio.
QImage render(QWidget &widget, const QColor &ground = Qt::white, qreal devicePixelRatio = 1.0);

/// Returns white paper of \a size.
QImage paper(const QSize &size);

/// Returns what \a draw paints on white paper of \a size.
QImage drawing(const QSize &size, const std::function<void(QPainter *)> &draw);

/// Returns how many pixels of \a image inside \a area, or in all of it, lie near \a color: each
/// channel within \a tolerance.
int countNear(const QImage &image, const QColor &color, const QRect &area = QRect(),
              int tolerance = 24);

/// Returns the smallest rectangle around the pixels that lie near \a color; null when none does.
QRect boundsNear(const QImage &image, const QColor &color, int tolerance = 24);

} // namespace Pixels
