// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QProcess>
#include <QStringList>
#include <QTest>
#include <QWidget>

/// Input that comes from the X server, as from a user, for tests that run with XVFB. Each function
/// returns whether the input was sent; its effect follows later.
namespace RealInput {

/// Runs xdotool with \a arguments while this program goes on handling events.
inline bool send(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral("xdotool"), arguments);
    const bool ends =
            QTest::qWaitFor([&process] { return process.state() == QProcess::NotRunning; }, 10000);
    return ends && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

/// Types the keys \a names, by their X names: "Tab", "KP_Enter", "shift+Tab".
inline bool typeKeys(const QStringList &names)
{
    return send(QStringList(QStringLiteral("key")) + names);
}

/// Moves the pointer to \a position in \a widget.
inline bool moveTo(const QWidget &widget, const QPoint &position)
{
    const QPoint onScreen = widget.mapToGlobal(position);
    return send({ QStringLiteral("mousemove"), QString::number(onScreen.x()),
                  QString::number(onScreen.y()) });
}

/// Moves the pointer to the corner of the screen, away from windows.
inline bool parkPointer()
{
    return send({ QStringLiteral("mousemove"), QStringLiteral("0"), QStringLiteral("0") });
}

/// Clicks at \a position in \a widget. Buttons are numbered as in X: 1 left, 2 middle, 3 right.
inline bool click(const QWidget &widget, const QPoint &position, int button = 1)
{
    return moveTo(widget, position) && send({ QStringLiteral("click"), QString::number(button) });
}

/// Drags the left button in \a widget from \a from to \a to.
inline bool drag(const QWidget &widget, const QPoint &from, const QPoint &to)
{
    const QString left = QString::number(1);
    return moveTo(widget, from) && send({ QStringLiteral("mousedown"), left }) && moveTo(widget, to)
            && send({ QStringLiteral("mouseup"), left });
}

/// Sets the keyboard layout of the X server, and restores the American one when it is destroyed.
class KeyboardLayoutGuard
{
    Q_DISABLE_COPY_MOVE(KeyboardLayoutGuard)

public:
    explicit KeyboardLayoutGuard(const QString &layout) { set(layout); }
    ~KeyboardLayoutGuard() { set(QStringLiteral("us")); }

private:
    static void set(const QString &layout)
    {
        QProcess::execute(QStringLiteral("setxkbmap"), { layout });
        QCoreApplication::processEvents();
    }
};

} // namespace RealInput
