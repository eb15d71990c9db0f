// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QEvent>
#include <QLayout>
#include <QPushButton>

/// Which button of a row or column takes the focus for all of it. Qt gives the focus to a focus
/// proxy even if that is hidden, and passes the whole row over if the proxy is disabled.
namespace FocusStop {

/// True unless \a button was hidden, or is disabled while its parent is not. A button that its
/// layout has yet to show counts as visible.
inline bool canBe(const QPushButton &button)
{
    return button.isEnabledTo(button.parentWidget())
            && !(button.isHidden() && button.testAttribute(Qt::WA_WState_ExplicitShowHide));
}

/// Returns the first button in \a layout that can be the stop, or null.
inline QPushButton *firstIn(const QLayout &layout)
{
    for (int i = 0; i < layout.count(); ++i) {
        auto *button = qobject_cast<QPushButton *>(layout.itemAt(i)->widget());
        if (button && canBe(*button))
            return button;
    }
    return nullptr;
}

/// True when a button may be the stop from \a event on, or no longer.
inline bool isAffectedBy(const QEvent &event)
{
    return event.type() == QEvent::EnabledChange || event.type() == QEvent::HideToParent
            || event.type() == QEvent::ShowToParent;
}

} // namespace FocusStop
