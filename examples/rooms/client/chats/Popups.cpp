// SPDX-License-Identifier: Apache-2.0
#include "Popups.h"

#include <UiElements/widgets/PopupWidget.h>

#include <QPushButton>

namespace {

WidgetData looks()
{
    return WidgetData(OxaThemeUtils::AppThemeType::Global)
            .arrowPostion(WidgetData::ArrowPostion::Bottom)
            .cornerRadius(WidgetData::PopupSize::Small)
            .activateOnShow(true);
}

PopupWidget *deletedWhenHidden(PopupWidget *popup)
{
    QObject::connect(popup, &PopupWidget::widgetHidden, popup, &QObject::deleteLater);
    return popup;
}

} // namespace

PopupWidget *Popups::show(QPushButton *button, QWidget *content)
{
    return deletedWhenHidden(PopupWidget::createAndShow(button, content, looks()));
}

PopupWidget *Popups::show(QWidget *parent, const QRect &rect, QWidget *content)
{
    auto *popup = new PopupWidget(parent, looks());
    popup->registerWidget(content);
    popup->showSmooth(rect);
    content->setFocus();
    return deletedWhenHidden(popup);
}
