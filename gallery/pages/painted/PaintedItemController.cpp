// SPDX-License-Identifier: Apache-2.0
#include "PaintedItemController.h"

void PaintedItemController::setItem(QQuickItem *item)
{
    m_item = item;
    Q_EMIT itemChanged();
}

void PaintedItemController::setColors(const QColor &surface, const QColor &background,
                                      const QColor &border)
{
    m_surface = surface;
    m_background = background;
    m_border = border;
    Q_EMIT colorsChanged();
}
