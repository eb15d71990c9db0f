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
