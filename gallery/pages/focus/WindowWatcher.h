// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

class QWidget;

/// Tells when the tab order of a window, or the place of what it stops at, may have changed.
class WindowWatcher : public QObject
{
    Q_OBJECT

public:
    /// Watches \a window, which owns the watcher.
    explicit WindowWatcher(QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Something changed; once for all that changes in one turn of the event loop.
    void changed();

private:
    void announceLater();
    void announce();

    QWidget *m_window;
    bool m_isAnnounced = false;
};
