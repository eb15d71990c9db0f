// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QObject>

#include <cstdio>

/// Ends the process at the first paint of a window, and writes its resident memory in kilobytes.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(QObject *window) { window->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            std::printf("%ld\n", residentKilobytes());
            std::fflush(stdout);
            QCoreApplication::exit();
        }
        return QObject::eventFilter(watched, event);
    }

private:
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
