// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QProcess>

/// The server of a client that was given none: the program "rooms-server" beside the client's. It
/// ends with this object, and on Linux also with a client that is killed.
class ServerProcess : public QProcess
{
    Q_OBJECT

public:
    /// Starts it with the socket called \a socket and \a options. Warns if it is not there.
    ServerProcess(const QString &socket, const QStringList &options);
    ~ServerProcess() override;

    void stop();

protected:
    void setupChildProcess() override;
};
