// SPDX-License-Identifier: Apache-2.0
#include "RoomsStyle.h"

#include "RoomsApplication.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <QCheckBox>
#include <QPainter>
#include <QSlider>
#include <QStyleOption>

RoomsStyle::RoomsStyle() : QProxyStyle(QStringLiteral("Fusion")) { }

void RoomsStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const
{
    if (element != PE_FrameFocusRect) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    if (!qobject_cast<const QCheckBox *>(widget) && !qobject_cast<const QSlider *>(widget))
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(OxaThemeUtils::getColorSet("focus", widget).normal, 2));
    painter->drawRoundedRect(QRectF(option->rect).adjusted(1, 1, -1, -1), 4, 4);
    painter->restore();
}

int RoomsStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                          QStyleHintReturn *data) const
{
    const RoomsApplication *application = RoomsApplication::get();
    if (hint == SH_Widget_Animation_Duration && application && application->animationsDisabled())
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
}
