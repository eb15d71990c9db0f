// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRect>

/// Lengths and places that come from QML or from a client, made small enough for an int.
///
/// They may be infinite, not a number, or so far away that a sum of two does not fit. All are
/// bounded by more than any desktop has, and by little enough that sums of several fit.
namespace BoundedPixels {

constexpr double limit = 1 << 24;

/// Returns the next value within the limits; the lowest for what is not a number.
inline double bounded(double value) { return qBound(-limit, value, limit); }

inline QPoint bounded(const QPointF &point)
{
    return QPointF(bounded(point.x()), bounded(point.y())).toPoint();
}

inline QSize bounded(const QSizeF &size)
{
    return QSizeF(bounded(size.width()), bounded(size.height())).toSize();
}

inline QRect bounded(const QRect &rect)
{
    return { bounded(QPointF(rect.topLeft())), bounded(QPointF(rect.bottomRight())) };
}

} // namespace BoundedPixels
