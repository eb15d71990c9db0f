// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QEventLoop>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QProcess>
#include <QSet>
#include <QTimer>

/// A keyboard of the X server, for tests that type thousands of keys: they come from one process,
/// and each has been handled when type() returns.
class Keyboard : public QObject
{
    Q_DISABLE_COPY_MOVE(Keyboard)

public:
    Keyboard()
    {
        qApp->installEventFilter(this);
        m_timeout.setSingleShot(true);
        connect(&m_timeout, &QTimer::timeout, &m_handled, &QEventLoop::quit);
        m_xdotool.start(QStringLiteral("xdotool"), { QStringLiteral("-") });
    }
    ~Keyboard() override
    {
        m_xdotool.closeWriteChannel();
        m_xdotool.waitForFinished();
    }

    /// Types the key \a name, by its X name: "Tab", "shift+Tab".
    void type(const QByteArray &name)
    {
        m_pending = 1 + int(name.count('+'));
        m_pressed.clear();
        m_xdotool.write("key --delay 0 " + name + '\n');
        m_timeout.start(longestMs);
        m_handled.exec();
        m_timeout.stop();
        QCoreApplication::processEvents(); // What a slot has posted: a scroll, a new layout.
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched->isWindowType())
            follow(*event);
        return QObject::eventFilter(watched, event);
    }

private:
    static constexpr int longestMs = 5000;

    static quint32 codeOf(const QEvent &event)
    {
        return static_cast<const QKeyEvent &>(event).nativeScanCode();
    }

    void follow(const QEvent &event)
    {
        if (event.type() == QEvent::KeyPress)
            m_pressed += codeOf(event);
        else if (event.type() == QEvent::KeyRelease && m_pressed.remove(codeOf(event)))
            --m_pending;
        // The release of a key whose press has closed a window comes much later, or never.
        const bool hasClosed = event.type() == QEvent::Hide && !m_pressed.isEmpty();
        if (m_pending == 0 || hasClosed)
            m_handled.quit();
    }

    QProcess m_xdotool;
    QEventLoop m_handled;
    QTimer m_timeout;
    QSet<quint32> m_pressed;
    int m_pending = 0; ///< The keys that have not been released.
};
