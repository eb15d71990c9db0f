// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QTest>
#include <QWidget>
#include <QWindow>

/// What tests do with windows.
namespace Windows {

/// Shows \a window and returns whether it becomes the active one.
inline bool activate(QWidget &window)
{
    window.show();
    window.activateWindow();
    return QTest::qWaitForWindowActive(&window);
}

inline void request(QWindow &window) { window.requestActivate(); }
inline void request(QWidget &window) { window.activateWindow(); }

inline const QWindow *handleOf(const QWindow &window) { return &window; }
inline const QWindow *handleOf(const QWidget &window) { return window.windowHandle(); }

/// Waits until \a window, which is a QWindow or a QWidget, is the active one. QWindow::isActive()
/// would also be true while a window that belongs to it is.
template <typename Window>
bool waitForActive(const Window &window, int timeoutMs = 5000)
{
    return QTest::qWaitFor([&window] { return QGuiApplication::focusWindow() == handleOf(window); },
                           timeoutMs);
}

/// Makes \a window the active one. A window manager activates a window that is shown by itself: a
/// second request might reach it after later ones for others.
template <typename Window>
bool showActive(Window &window)
{
    if (window.isVisible())
        request(window);
    window.show();
    if (waitForActive(window, 1000))
        return true;
    request(window);
    return waitForActive(window);
}

/// Waits until the window manager has handled what this program did to its windows so far, and
/// returns whether it has. It may otherwise take a window away that is shown again right after it
/// was hidden.
inline bool waitForWindowManager()
{
    QWidget probe;
    probe.show();
    return QTest::qWaitForWindowExposed(&probe); // It maps windows in the order of the requests.
}

/// Returns what the screen shows of \a widget.
inline QImage onScreen(const QWidget &widget)
{
    const QPoint position = widget.mapTo(widget.window(), QPoint());
    return widget.screen()
            ->grabWindow(widget.window()->winId(), position.x(), position.y(), widget.width(),
                         widget.height())
            .toImage();
}

} // namespace Windows
