// SPDX-License-Identifier: Apache-2.0
#include "ServerProcess.h"

#include <QCoreApplication>

ServerProcess::ServerProcess(const QString &socket, const QStringList &options)
{
    m_process.setProcessChannelMode(QProcess::ForwardedChannels);
    m_process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/rooms-server"),
                    QStringList { QStringLiteral("--socket"), socket } + options);
    if (!m_process.waitForStarted())
        qWarning("There is no rooms-server beside the client: %s",
                 qUtf8Printable(m_process.errorString()));
}

ServerProcess::~ServerProcess() { stop(); }

void ServerProcess::stop()
{
    m_process.terminate();
    m_process.waitForFinished(2000);
}
