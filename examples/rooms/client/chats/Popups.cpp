// SPDX-License-Identifier: Apache-2.0
#include "Popups.h"

#include <UiElements/widgets/PopupWidget.h>

#include <QPushButton>

namespace {

WidgetData looks(bool isAbove)
{
    return WidgetData(OxaThemeUtils::AppThemeType::Global)
            .arrowPostion(isAbove ? WidgetData::ArrowPostion::Bottom
                                  : WidgetData::ArrowPostion::Top)
            .cornerRadius(WidgetData::PopupSize::Small)
            .activateOnShow(true);
}

PopupWidget *deletedWhenHidden(PopupWidget *popup)
{
    QObject::connect(popup, &PopupWidget::widgetHidden, popup, &QObject::deleteLater);
    return popup;
}

} // namespace

PopupWidget *Popups::show(QPushButton *button, QWidget *content, bool isAbove)
{
    return deletedWhenHidden(PopupWidget::createAndShow(button, content, looks(isAbove)));
}

PopupWidget *Popups::show(QWidget *parent, const QRect &rect, QWidget *content)
{
    auto *popup = new PopupWidget(parent, looks(true));
    popup->registerWidget(content);
    popup->showSmooth(rect);
    content->setFocus();
    return deletedWhenHidden(popup);
}
