// SPDX-License-Identifier: Apache-2.0
#include "DrawUtils.h"

void DrawUtils::fitRectangle(QRectF &rect, double aspectRatio)
{
    const double ratio = rect.height() / rect.width() * aspectRatio;
    if (ratio <= 1.0) {
        const double inset = (rect.width() - rect.width() * ratio) * 0.5;
        rect.adjust(inset, 0.0, -inset, 0.0);
    } else {
        const double inset = (rect.height() - rect.height() / ratio) * 0.5;
        rect.adjust(0.0, inset, 0.0, -inset);
    }
}

QPixmap DrawUtils::adjustPixmapToRect(const QPixmap &pixmap, QRectF &rect, double devicePixelRatio)
{
    fitRectangle(rect, double(pixmap.width()) / pixmap.height());
    const QSize size(static_cast<int>(rect.width() * devicePixelRatio),
                     static_cast<int>(rect.height() * devicePixelRatio));
    QPixmap scaled = pixmap.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(devicePixelRatio);
    return scaled;
}
