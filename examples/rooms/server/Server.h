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
        QStringList failing;   ///< The next requests of these names fail.
        QString log;           ///< A file for the requests, one JSON line each.
    };

    Server(World &world, const SeededArchive &seeded, const Options &options);

    /// False if there is no such socket.
    bool listen();

private:
    void accept();
    void receive(JsonLines *client, const QJsonObject &request);
    QJsonObject answer(const QString &name, const QJsonObject &request);
    QJsonObject answer(const QString &name, int conversation, const QJsonObject &request);
    void send(JsonLines *client, const QJsonObject &line);
    void push(const QString &name, QJsonObject line);

    QJsonObject hello() const;
    QJsonObject messages(int conversation, const QJsonObject &request) const;
    QJsonObject post(int conversation, const QJsonObject &request);
    QJsonObject react(int conversation, const QJsonObject &request);
    void join(const QJsonValue &title);
    void setPresence(const QString &presence);

    void pushMessage(int conversation, const QJsonObject &message);
    void letMessagesArrive();
    void letSomebodyType();
    void tellLevels();

    World &m_world;
    const SeededArchive &m_seeded;
    Options m_options;
    QLocalServer m_server;
    QVector<QPointer<JsonLines>> m_clients;
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
