// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Keyboard.h"

#include <QPointer>
#include <QSet>
#include <QVector>

class QAbstractButton;
class QComboBox;

/// Someone who works a window by keyboard alone, and notes what that does not do.
class KeyboardUser
{
public:
    KeyboardUser(Keyboard &keyboard, const QWidget &window) : m_keyboard(keyboard), m_window(window)
    {
    }

    /// Goes once around the window by Tab. Each stop must be in view, show the focus, and let go of
    /// it.
    void walk();

    /// Goes around by Shift+Tab, through the same stops.
    void walkBack();

    /// Goes around by Tab and works each control in \a part by its keys, also the controls beside
    /// it that arrow keys lead to. All that take the focus must be reached.
    void work(const QWidget &part);

    /// Returns what was noted, a line for each problem.
    QString problems() const { return m_problems.join(QLatin1Char('\n')); }

private:
    using Stop = QPointer<QWidget>;

    QWidget *typed(const QByteArray &key);
    QWidget *left(const QByteArray &key);
    void note(const QWidget *widget, const char *problem);

    void workStop(const Stop &stop);
    void workValue(QWidget *stop);
    bool isKnown(const QWidget *widget) const;
    void exploreBeside(QWidget *stop);
    void explore(const QByteArray &key, const QByteArray &back);
    void press(QAbstractButton *button);
    void openAndClose(QComboBox *combo);
    void openContextMenu(QWidget *field);
    void workDialog(const QString &button);
    void leave(const QPointer<QWindow> &opened, const Stop &opener, const QString &button = {});
    void noteUnreached(const QWidget &part);

    Keyboard &m_keyboard;
    const QWidget &m_window;
    QVector<Stop> m_controls; ///< What takes the focus, before anything was worked.
    QVector<Stop> m_stops;
    QSet<const QWidget *> m_reached;
    QStringList m_unpressed; ///< Buttons of a dialog, which may close it.
    QStringList m_problems;
    bool m_isInDialog = false;
};
