// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QRectF>
#include <QTimer>

/// A timer of PopupContext, which remembers the request that it serves. It has no parent.
class UIELEMENTS_EXPORT PopupContextTimer : public QTimer
{
    Q_OBJECT

public:
    /// Makes a timer that is not active.
    PopupContextTimer();

    /// True when a newer request waits until this timer has been stopped. Off by default.
    bool popupPending() const { return m_popupPending; }
    void setPopupPending(bool pending) { m_popupPending = pending; }

    /// Returns the rectangle of the latest request. Empty by default.
    QRectF requestedRect() const { return m_requestedRect; }
    void setRequestedRect(const QRectF &rect) { m_requestedRect = rect; }

Q_SIGNALS:
    /// The timer was stopped by stopAndEmit().
    void stopped();

public Q_SLOTS:
    /// Stops the timer and deletes it later.
    void stopAndDelete();

    /// Stops the timer and emits stopped(). Unless a request is pending, removes all receivers of
    /// that signal before, so that nothing hears it.
    void stopAndEmit();

private:
    bool m_popupPending = false;
    QRectF m_requestedRect;
};
