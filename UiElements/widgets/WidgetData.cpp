// SPDX-License-Identifier: Apache-2.0
#include "WidgetData.h"

WidgetData::WidgetData(OxaThemeUtils::AppThemeType theme)
    : m_theme(theme),
      m_widgetColour(normalColour(QStringLiteral("background-primary"))),
      m_widgetBorderColour(normalColour(QStringLiteral("oxa-default-border"))),
      m_widgetBorderBlurColour(normalColour(QStringLiteral("oxa-popupDropShadow")))
{
}

WidgetData::ArrowPostion WidgetData::toArrowPosition(Qt::ArrowType arrow)
{
    switch (arrow) {
    case Qt::UpArrow:
        return ArrowPostion::Top;
    case Qt::LeftArrow:
        return ArrowPostion::Left;
    case Qt::RightArrow:
        return ArrowPostion::Right;
    case Qt::DownArrow:
        return ArrowPostion::Bottom;
    case Qt::NoArrow:
        break;
    }
    return ArrowPostion::NoArrowAbove;
}

WidgetData &WidgetData::cornerRadius(PopupSize size)
{
    switch (size) {
    case PopupSize::Small:
        return cornerRadius(8);
    case PopupSize::Large:
        return cornerRadius(12);
    }
    return *this;
}

QColor WidgetData::normalColour(const QString &setName) const
{
    return OxaThemeUtils::getColorSet(setName.toStdString(), m_theme).normal;
}
