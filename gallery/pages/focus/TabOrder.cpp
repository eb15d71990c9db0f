// SPDX-License-Identifier: Apache-2.0
#include "TabOrder.h"

#include <UiElements/keyboard/TabOrderUtils.h>

#include <QAbstractButton>

std::vector<QWidget *> TabOrder::of(QWidget *window)
{
    std::vector<QWidget *> stops;
    QWidget *const first = TabOrderUtils::getNextPrevFocusableWidget(window, true, nullptr);
    QWidget *stop = first;
    while (stop) {
        stops.push_back(stop);
        stop = TabOrderUtils::getNextPrevFocusableWidget(stop, true, nullptr);
        if (stop == first)
            break;
    }
    return stops;
}

QString TabOrder::describe(const QWidget &widget)
{
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    const QString name = button ? button->text() : widget.accessibleName();
    const QString kind = QString::fromLatin1(widget.metaObject()->className());
    return name.isEmpty() ? kind : QStringLiteral("%1 “%2”").arg(kind, name);
}
