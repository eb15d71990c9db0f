// SPDX-License-Identifier: Apache-2.0
#include "DrawUtils.h"

#include <UiElements/theme/FocusFrame_p.h>

#include <QPainter>

namespace {

QColor inverse(const QColor &color)
{
    if (!color.isValid())
        return Qt::transparent;
    return { 255 - color.red(), 255 - color.green(), 255 - color.blue() };
}

void drawDottedFrame(QPainter *painter, const QRect &rect, const QColor &color)
{
    painter->save();
    painter->setBackgroundMode(Qt::TransparentMode);
    painter->setBrush(QBrush(inverse(color), Qt::Dense4Pattern));
    painter->setBrushOrigin(rect.topLeft());
    painter->setPen(Qt::NoPen);
    painter->drawRect(rect.left(), rect.top(), rect.width(), 1);
    painter->drawRect(rect.left(), rect.bottom(), rect.width(), 1);
    painter->drawRect(rect.left(), rect.top(), 1, rect.height());
    painter->drawRect(rect.right(), rect.top(), 1, rect.height());
    painter->restore();
}

} // namespace

void DrawUtils::drawFocusRect(QPainter *painter, const QFlags<QStyle::StateFlag> &state,
                              const QRect &rect, const QColor &color, const QWidget *widget)
{
    if (!FocusFrame::isShown(state))
        return;
    if (widget && FocusFrame::areBordersGlobal())
        FocusFrame::draw(painter, FocusFrame::optionFor(widget, rect), widget);
    else
        drawDottedFrame(painter, rect, color);
}

void DrawUtils::drawLegacyFocusRect(QPainter *painter, const QFlags<QStyle::StateFlag> &state,
                                    const QRect &rect, const QColor &color)
{
    if (FocusFrame::isShown(state) && !FocusFrame::areBordersGlobal())
        drawDottedFrame(painter, rect, color);
}
