// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

class QWidget;

/// Signals that the tab order of a window, or a widget's position in it, may have changed.
class WindowWatcher : public QObject
{
    Q_OBJECT

public:
    /// Watches \a window, which owns the watcher.
    explicit WindowWatcher(QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Something changed; emitted once in a turn of the event loop.
    void changed();

private:
    void announceLater();
    void announce();

    QWidget *m_window;
    bool m_isAnnounced = false;
};
