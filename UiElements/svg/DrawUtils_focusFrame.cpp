// SPDX-License-Identifier: Apache-2.0
#include "DrawUtils.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QVariant>
#include <QWidget>

namespace {

bool hasKeyboardFocus(QStyle::State state)
{
    return state.testFlag(QStyle::State_HasFocus)
            && state.testFlag(QStyle::State_KeyboardFocusChange);
}

bool usesGlobalFocusBorders()
{
    const QCoreApplication *app = QCoreApplication::instance();
    return app && app->property("useGlobalFocusBorders").toBool();
}

QColor inverse(const QColor &color)
{
    return { 255 - color.red(), 255 - color.green(), 255 - color.blue() };
}

void drawStyledFrame(QPainter *painter, const QRect &rect, const QWidget *widget)
{
    QStyleOptionFocusRect option;
    option.initFrom(widget);
    if (!rect.isNull()) {
        option.rect = rect;
        option.styleObject->setProperty("hasCustomRect", true);
    }
    QApplication::style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, painter, widget);
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
    if (!hasKeyboardFocus(state))
        return;
    if (widget && usesGlobalFocusBorders())
        drawStyledFrame(painter, rect, widget);
    else
        drawDottedFrame(painter, rect, color);
}

void DrawUtils::drawLegacyFocusRect(QPainter *painter, const QFlags<QStyle::StateFlag> &state,
                                    const QRect &rect, const QColor &color)
{
    if (hasKeyboardFocus(state) && !usesGlobalFocusBorders())
        drawDottedFrame(painter, rect, color);
}
