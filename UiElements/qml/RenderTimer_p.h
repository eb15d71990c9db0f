// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QElapsedTimer>
#include <QQuickWindow>

#include <memory>

/// Measures how long a window takes to render, for an owner that tells it by its signal
/// finishedRendering().
namespace RenderTimer {

/// Turns the measuring of \a window on or off. \a timer is a member of \a owner, null while it is
/// off.
///
/// Qt may render in a thread of its own: the connections have the window as their context, so that
/// it touches neither the timer nor the owner. A call that is on its way when the timer is deleted
/// still arrives.
template <typename Owner>
void setEnabled(bool enabled, Owner *owner, QQuickWindow *window,
                std::unique_ptr<QElapsedTimer> &timer)
{
    if (enabled == bool(timer))
        return;
    if (!enabled) {
        QObject::disconnect(window, &QQuickWindow::beforeRendering, window, nullptr);
        QObject::disconnect(window, &QQuickWindow::afterRendering, window, nullptr);
        timer.reset();
        return;
    }
    timer = std::make_unique<QElapsedTimer>();
    timer->start();
    QObject::connect(window, &QQuickWindow::beforeRendering, window, [&timer] {
        if (timer)
            timer->restart();
    });
    QObject::connect(window, &QQuickWindow::afterRendering, window, [owner, &timer] {
        if (timer)
            Q_EMIT owner->finishedRendering(owner->objectName(), timer->elapsed());
    });
}

} // namespace RenderTimer
