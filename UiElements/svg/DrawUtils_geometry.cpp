// SPDX-License-Identifier: Apache-2.0
#include "DrawUtils.h"

#include <limits>

namespace {

/// Returns \a size in whole pixels; an empty size if an int is too small for it.
QSize truncated(const QSizeF &size)
{
    const auto fits = [](double length) {
        return length >= 0.0 && length <= std::numeric_limits<int>::max();
    };
    if (!fits(size.width()) || !fits(size.height()))
        return {};
    return { static_cast<int>(size.width()), static_cast<int>(size.height()) };
}

} // namespace

void DrawUtils::fitRectangle(QRectF &rect, double aspectRatio)
{
    const double ratio = rect.height() / rect.width() * aspectRatio;
    const bool isNarrower = ratio <= 1.0;
    const double length = isNarrower ? rect.width() : rect.height();
    const double inset = (length - (isNarrower ? length * ratio : length / ratio)) * 0.5;
    if (!qIsFinite(inset))
        return;
    if (isNarrower)
        rect.adjust(inset, 0.0, -inset, 0.0);
    else
        rect.adjust(0.0, inset, 0.0, -inset);
}

QPixmap DrawUtils::adjustPixmapToRect(const QPixmap &pixmap, QRectF &rect, double devicePixelRatio)
{
    if (pixmap.isNull())
        return {};
    fitRectangle(rect, double(pixmap.width()) / pixmap.height());
    QPixmap scaled = pixmap.scaled(truncated(rect.size() * devicePixelRatio), Qt::KeepAspectRatio,
                                   Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(devicePixelRatio);
    return scaled;
}
