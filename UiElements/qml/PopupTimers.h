// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/qml/PopupContextTimer.h>

#include <QPointer>

/// The two timers of a popup.
struct UIELEMENTS_EXPORT PopupTimers
{
    Q_DISABLE_COPY_MOVE(PopupTimers)

    /// Makes the timers: a close timer of single shot, and an open timer that repeats.
    PopupTimers();

    /// Stops the timers and deletes them later.
    ~PopupTimers();

    /// Runs between the mouse leaving and the popup closing.
    QPointer<PopupContextTimer> closeTimer;

    /// Runs before the popup opens, and then goes on to ask whether the mouse is still there.
    QPointer<PopupContextTimer> openTimer;
};
