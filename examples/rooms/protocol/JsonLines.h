// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QObject>

class QLocalSocket;

/// One JSON object per line over a local socket, both ways. Belongs to the socket.
class JsonLines : public QObject
{
    Q_OBJECT

public:
    /// Reads and writes \a socket. A line of over 1 MB, or one that is no object, aborts it.
    explicit JsonLines(QLocalSocket *socket);

    /// Writes \a object as a line.
    void send(const QJsonObject &object);

Q_SIGNALS:
    /// A line has arrived.
    void received(const QJsonObject &object);

private:
    void read();

    QLocalSocket *const m_socket;
};
