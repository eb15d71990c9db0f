// SPDX-License-Identifier: Apache-2.0
#include "ServerProcess.h"

#include <QCoreApplication>

#ifdef Q_OS_LINUX
#include <sys/prctl.h>

#include <csignal>
#endif

ServerProcess::ServerProcess(const QString &socket, const QStringList &options)
{
    setProcessChannelMode(QProcess::ForwardedChannels);
    start(QCoreApplication::applicationDirPath() + QStringLiteral("/rooms-server"),
          QStringList { QStringLiteral("--socket"), socket } + options);
    if (!waitForStarted())
        qWarning("There is no rooms-server beside the client: %s", qUtf8Printable(errorString()));
}

ServerProcess::~ServerProcess() { stop(); }

void ServerProcess::stop()
{
    terminate();
    waitForFinished(2000);
}

void ServerProcess::setupChildProcess()
{
#ifdef Q_OS_LINUX
    prctl(PR_SET_PDEATHSIG, SIGTERM);
#endif
}
