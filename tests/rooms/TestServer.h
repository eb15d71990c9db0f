// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <sys/prctl.h>

#include <csignal>

/// The server of examples/rooms, with a folder for its socket and its files. Killed at the end.
class TestServer
{
public:
    ~TestServer() { kill(); }

    QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    QString socket() const { return path("socket"); }

    /// Starts it with \a options; what was posted before a kill() is still there.
    void start(const QStringList &options = {})
    {
        m_process.start(QStringLiteral(ROOMS_SERVER),
                        QStringList { QStringLiteral("--socket"), socket(),
                                      QStringLiteral("--state"), path("state"),
                                      QStringLiteral("--log"), path("log") }
                                + options);
    }

    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    bool isRunning() const { return m_process.state() == QProcess::Running; }

    /// The requests \a name that the server has received.
    QVector<QJsonObject> requests(const QString &name) const
    {
        QVector<QJsonObject> requests;
        QFile log(path("log"));
        if (!log.open(QIODevice::ReadOnly))
            return requests;
        while (!log.atEnd()) {
            const QJsonObject request = QJsonDocument::fromJson(log.readLine()).object();
            if (request[QStringLiteral("ask")] == name)
                requests.append(request);
        }
        return requests;
    }

private:
    /// Ends with the test, however that ends.
    class Process : public QProcess
    {
        void setupChildProcess() override { prctl(PR_SET_PDEATHSIG, SIGKILL); }
    };

    const QTemporaryDir m_folder;
    Process m_process;
};
