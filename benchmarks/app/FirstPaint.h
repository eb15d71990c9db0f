// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QObject>

#include <cstdio>
#include <ctime>

/// Ends the process once its window is painted for the first time, and prints what that took:
/// the nanoseconds of CPU time since the process began, loading its libraries included, and the
/// megabytes of resident memory.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(QObject *window) { window->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            // The window's children are painted after it, before anything that waits in the queue.
            QMetaObject::invokeMethod(this, &FirstPaint::report, Qt::QueuedConnection);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    static void report()
    {
        timespec time = {};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        const long long nanoseconds = 1000000000LL * time.tv_sec + time.tv_nsec;
        std::printf("%lld %f\n", nanoseconds, double(residentKilobytes()) / 1024);
        std::fflush(stdout);
        QCoreApplication::exit();
    }

    static long residentKilobytes()
    {
        QFile status(QStringLiteral("/proc/self/status"));
        if (!status.open(QIODevice::ReadOnly))
            return 0;
        const QList<QByteArray> lines = status.readAll().split('\n');
        for (const QByteArray &line : lines) {
            if (line.startsWith("VmRSS:"))
                return line.mid(6).simplified().split(' ').constFirst().toLong();
        }
        return 0;
    }
};
