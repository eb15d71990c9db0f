// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLocalServer>
#include <QLocalSocket>
#include <QPointer>

/// A bad line between a client and the server: it loses some of what the server tells.
class Relay
{
public:
    Relay(const QString &name, const QString &server) : m_name(name), m_server(server)
    {
        QObject::connect(&m_listener, &QLocalServer::newConnection, &m_listener,
                         [this] { accept(); });
        open();
    }

    const QString &name() const { return m_name; }

    void open() { m_listener.listen(m_name); }

    void close()
    {
        m_listener.close();
        delete m_client;
    }

    /// Loses each \a count th message that the server tells of; none if it is 0.
    void dropEvery(int count) { m_dropEvery = count; }

private:
    void accept()
    {
        QLocalSocket *client = m_client = m_listener.nextPendingConnection();
        auto *server = new QLocalSocket(client);
        QObject::connect(client, &QLocalSocket::readyRead, server,
                         [=] { server->write(client->readAll()); });
        QObject::connect(server, &QLocalSocket::readyRead, client, [=] { pass(*server, *client); });
        QObject::connect(server, &QLocalSocket::stateChanged, client, [=] {
            if (server->state() == QLocalSocket::UnconnectedState)
                client->abort();
        });
        server->connectToServer(m_server);
    }

    void pass(QLocalSocket &server, QLocalSocket &client)
    {
        while (server.canReadLine()) {
            const QByteArray line = server.readLine();
            const bool isTold = line.contains("\"push\":\"message\"");
            if (!isTold || m_dropEvery == 0 || ++m_told % m_dropEvery != 0)
                client.write(line);
        }
    }

    const QString m_name;
    const QString m_server;
    QLocalServer m_listener;
    QPointer<QLocalSocket> m_client;
    int m_dropEvery = 0;
    int m_told = 0;
};
