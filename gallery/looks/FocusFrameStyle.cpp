// SPDX-License-Identifier: Apache-2.0
#include "FocusFrameStyle.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <QPainter>
#include <QSlider>
#include <QStyleOption>
#include <QTextEdit>
#include <QVariant>

namespace {

constexpr int width = 2;

/// A slider asks for the frame of a handle that runs from left to right.
QRect frameRect(const QStyleOption &option, const QWidget &widget)
{
    return qobject_cast<const QSlider *>(&widget)
            ? QStyle::visualRect(option.direction, widget.rect(), option.rect)
            : option.rect;
}

} // namespace

FocusFrameStyle::FocusFrameStyle() : QProxyStyle(QStringLiteral("Fusion")) { }

void FocusFrameStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                    QPainter *painter, const QWidget *widget) const
{
    if (element != PE_FrameFocusRect || !widget) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    // The border of an editor shows its focus. A frame would be inside of it, under the text.
    const bool isEditor = qobject_cast<const QTextEdit *>(widget) != nullptr;
    if (isEditor || !option->state.testFlag(State_KeyboardFocusChange) || !painter->isActive())
        return;
    const OxaColorSet colors = OxaThemeUtils::getColorSet("gallery-focus-border", widget);
    const qreal radius = widget->property("focusBorderRadius").toInt();
    constexpr qreal half = width / 2.0;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(colors.normal, width));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(frameRect(*option, *widget)).adjusted(half, half, -half, -half),
                             radius, radius);
    painter->restore();
}
