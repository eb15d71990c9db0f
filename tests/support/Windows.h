// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPixmap>
#include <QScreen>
#include <QTest>
#include <QWidget>

/// What tests do with windows.
namespace Windows {

/// Shows \a window and returns whether it becomes the active one.
inline bool activate(QWidget &window)
{
    window.show();
    window.activateWindow();
    return QTest::qWaitForWindowActive(&window);
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
