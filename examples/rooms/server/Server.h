// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SeededArchive.h"
#include "World.h"

#include <QElapsedTimer>
#include <QFile>
#include <QLocalServer>
#include <QPointer>
#include <QRandomGenerator>
#include <QTimer>

class JsonLines;

/// Answers requests and tells all clients what happens, as protocol/README.md has it.
class Server : public QObject
{
    Q_OBJECT

public:
    struct Options
    {
        QString socket;
        int rate = 0;          ///< Messages that arrive in a second.
        bool isLate = false;   ///< Answers come late and in any order, files above all.
        bool isTyping = false; ///< Somebody types; presences change.
        QString failing;       ///< The next request of this name fails.
        QString log;           ///< A file for the requests, one JSON line each.
    };

    Server(World &world, const SeededArchive &seeded, const Options &options);

    /// False if there is no such socket.
    bool listen();

private:
    using Handler = QJsonObject (Server::*)(const QJsonObject &);

    void accept();
    void receive(JsonLines *client, const QJsonObject &request);
    QJsonObject answer(const QJsonObject &request);
    void send(JsonLines *client, const QJsonObject &line);
    void push(const QString &name, QJsonObject line);

    QJsonObject hello(const QJsonObject &request);
    QJsonObject conversations(const QJsonObject &request);
    QJsonObject messages(const QJsonObject &request);
    QJsonObject find(const QJsonObject &request);
    QJsonObject post(const QJsonObject &request);
    QJsonObject react(const QJsonObject &request);
    QJsonObject read(const QJsonObject &request);
    QJsonObject files(const QJsonObject &request);
    QJsonObject calls(const QJsonObject &request);
    QJsonObject join(const QJsonObject &request);
    QJsonObject leave(const QJsonObject &request);
    QJsonObject fail(const QJsonObject &request);
    QJsonObject setPresence(const QJsonObject &request);
    QJsonObject nothing(const QJsonObject &request);

    void letMessagesArrive();
    void letSomebodyType();
    void tellLevels();

    World &m_world;
    const SeededArchive &m_seeded;
    const Options m_options;
    const QHash<QString, Handler> m_handlers;
    QLocalServer m_server;
    QVector<QPointer<JsonLines>> m_clients;
    QStringList m_failing;
    QString m_presence; ///< The user's; empty until they choose one.
    QStringList m_inCall;
    QElapsedTimer m_joined;
    QFile m_log;
    QRandomGenerator m_random { 1 };
    QTimer m_arrivals;
    QTimer m_typing;
    QTimer m_levels;
    QElapsedTimer m_clock;
    qint64 m_arrived = 0;
};
