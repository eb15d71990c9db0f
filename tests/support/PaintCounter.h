// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTest>
#include <QWidget>

/// Shows a widget and counts its paint events.
class PaintCounter : public QObject
{
    Q_DISABLE_COPY_MOVE(PaintCounter)

public:
    /// Shows \a widget's window and waits until all of it is painted.
    explicit PaintCounter(QWidget &widget)
    {
        widget.window()->show();
        if (!QTest::qWaitForWindowExposed(widget.window()))
            qFatal("The window does not show.");
        widget.installEventFilter(this);
        take();
    }

    /// Returns how often the widget was painted since the last take().
    int count() const { return m_paints; }

    /// Returns how often the widget is painted until the event loop is idle, and counts from zero
    /// again.
    int take()
    {
        // What an event posts, such as a queued call or an update, is sent in the next turn.
        for (int turn = 0; turn < 3; ++turn)
            QCoreApplication::processEvents();
        return std::exchange(m_paints, 0);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++m_paints;
        return QObject::eventFilter(watched, event);
    }

private:
    int m_paints = 0;
};
