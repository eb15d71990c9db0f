// SPDX-License-Identifier: Apache-2.0
#include "Server.h"

#include "protocol/JsonLines.h"
#include "protocol/Literal.h"

#include <QJsonDocument>
#include <QLocalSocket>

#include <algorithm>
#include <cmath>

namespace {

constexpr int longestText = 20'000;
constexpr int longestKey = 100;
constexpr int rowsAtOnce = 1000;
constexpr int messagesAtOnce = 500;
constexpr qint64 mostUnread = 16'000'000; ///< Bytes that a client may leave unread.

QJsonObject error(const QString &text) { return { { u"error"_s, text } }; }

/// The rows that \a request asks for of \a total ones, and the total.
template <typename Row>
QJsonObject rows(const QJsonObject &request, int total, Row row)
{
    const int first = qBound(0, request[u"first"_s].toInt(), total);
    const int count = qBound(0, request[u"count"_s].toInt(), rowsAtOnce);
    QJsonArray rows;
    for (int i = first; i < qMin(first + count, total); ++i)
        rows.append(row(i));
    return { { u"rows"_s, rows }, { u"total"_s, total } };
}

} // namespace

Server::Server(World &world, const SeededArchive &seeded, const Options &options)
    : m_world(world), m_seeded(seeded), m_options(options), m_log(options.log)
{
    connect(&m_server, &QLocalServer::newConnection, this, &Server::accept);
    connect(&m_arrivals, &QTimer::timeout, this, &Server::letMessagesArrive);
    connect(&m_typing, &QTimer::timeout, this, &Server::letSomebodyType);
    connect(&m_levels, &QTimer::timeout, this, &Server::tellLevels);
    m_clock.start();
    if (options.rate > 0)
        m_arrivals.start(20);
    if (options.isTyping)
        m_typing.start(700);
    if (!options.log.isEmpty() && !m_log.open(QIODevice::Append | QIODevice::Unbuffered))
        qFatal("Cannot open %s", qPrintable(options.log));
}

bool Server::listen()
{
    QLocalServer::removeServer(m_options.socket);
    return m_server.listen(m_options.socket);
}

void Server::accept()
{
    while (QLocalSocket *socket = m_server.nextPendingConnection()) {
        auto *client = new JsonLines(socket);
        m_clients.append(client);
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(client, &JsonLines::received, this,
                [this, client](const QJsonObject &request) { receive(client, request); });
    }
}

void Server::receive(JsonLines *client, const QJsonObject &request)
{
    if (m_log.isOpen())
        m_log.write(QJsonDocument(request).toJson(QJsonDocument::Compact) + '\n');
    const QString name = request[u"ask"_s].toString();
    QJsonObject line = m_options.failing.removeOne(name)
            ? error(u"This failed because it was asked to."_s)
            : answer(name, request);
    line[u"answer"_s] = request[u"id"_s];
    if (!m_options.isLate) {
        send(client, line);
        return;
    }
    const int longest = name == u"files"_s ? 1500 : 300;
    QTimer::singleShot(m_random.bounded(longest), client,
                       [this, client, line] { send(client, line); });
}

QJsonObject Server::answer(const QString &name, const QJsonObject &request)
{
    if (name == u"hello"_s)
        return hello();
    if (name == u"conversations"_s)
        return rows(request, m_world.conversationCount(),
                    [this](int index) { return m_world.conversation(index); });
    if (name == u"files"_s)
        return rows(request, SeededArchive::fileCount,
                    [this](int index) { return m_seeded.file(index); });
    if (name == u"calls"_s)
        return { { u"rows"_s, m_seeded.calls() } };
    if (name == u"join"_s)
        join(request[u"call"_s]);
    else if (name == u"leave"_s)
        m_levels.stop();
    else if (name == u"fail"_s)
        m_options.failing.append(request[u"name"_s].toString());
    else if (name == u"presence"_s)
        setPresence(request[u"presence"_s].toString());
    else
        return answer(name, m_world.indexOf(request[u"conversation"_s].toString()), request);
    return {};
}

QJsonObject Server::answer(const QString &name, int conversation, const QJsonObject &request)
{
    if (conversation < 0)
        return error(u"There is no such conversation."_s);
    if (name == u"messages"_s)
        return messages(conversation, request);
    if (name == u"find"_s)
        return { { u"seq"_s, m_world.find(conversation, qint64(request[u"at"_s].toDouble())) } };
    if (name == u"send"_s)
        return post(conversation, request);
    if (name == u"react"_s)
        return react(conversation, request);
    if (name == u"read"_s)
        m_world.read(conversation, request[u"seq"_s].toInt());
    else if (name != u"typing"_s)
        return error(u"Nobody knows how to do this."_s);
    return {};
}

/// Writes \a line, unless the client does not read.
void Server::send(JsonLines *client, const QJsonObject &line)
{
    auto *socket = qobject_cast<QLocalSocket *>(client->parent());
    if (socket->bytesToWrite() > mostUnread)
        socket->abort();
    else
        client->send(line);
}

void Server::push(const QString &name, QJsonObject line)
{
    m_clients.removeAll(nullptr);
    line[u"push"_s] = name;
    const QVector<QPointer<JsonLines>> clients = m_clients;
    for (const QPointer<JsonLines> &client : clients) {
        if (client)
            send(client, line);
    }
}

QJsonObject Server::hello() const
{
    QJsonArray people = m_world.archive().people();
    QJsonObject me = people[0].toObject();
    if (!m_presence.isEmpty() && !me.isEmpty()) {
        me[u"presence"_s] = m_presence;
        people[0] = me;
    }
    return { { u"me"_s, u"p0"_s }, { u"people"_s, people } };
}

QJsonObject Server::messages(int conversation, const QJsonObject &request) const
{
    const int total = m_world.total(conversation);
    const int before = request[u"before"_s].toInt(-1);
    const int end = before < 0 ? total : qMin(before, total);
    const int count = qBound(0, request[u"count"_s].toInt(), messagesAtOnce);
    QJsonArray rows;
    for (int seq = qMax(0, end - count); seq < end; ++seq)
        rows.append(m_world.message(conversation, seq));
    return { { u"rows"_s, rows }, { u"total"_s, total } };
}

QJsonObject Server::post(int conversation, const QJsonObject &request)
{
    static const QStringList kinds { u"text"_s, u"gif"_s, u"file"_s };
    const QString key = request[u"key"_s].toString();
    const QString text = request[u"text"_s].toString();
    if (key.isEmpty() || key.size() > longestKey || text.isEmpty() || text.size() > longestText
        || !kinds.contains(request[u"kind"_s].toString()))
        return error(u"This is no message."_s);
    const int total = m_world.total(conversation);
    QJsonObject answer = m_world.post(conversation,
                                      { { u"author"_s, u"p0"_s },
                                        { u"kind"_s, request[u"kind"_s] },
                                        { u"text"_s, text },
                                        { u"key"_s, key },
                                        { u"reactions"_s, QJsonArray() } });
    if (m_world.total(conversation) > total)
        pushMessage(conversation, m_world.message(conversation, total));
    return answer;
}

QJsonObject Server::react(int conversation, const QJsonObject &request)
{
    const int seq = request[u"seq"_s].toInt(-1);
    const QString emoji = request[u"emoji"_s].toString();
    if (seq < 0 || seq >= m_world.total(conversation) || emoji.isEmpty()
        || emoji.size() > longestKey)
        return error(u"There is no such message."_s);
    push(u"reactions"_s,
         { { u"conversation"_s, World::idOf(conversation) },
           { u"seq"_s, seq },
           { u"reactions"_s, m_world.react(conversation, seq, emoji) } });
    return {};
}

void Server::join(const QJsonValue &title)
{
    m_inCall = QStringList { u"p0"_s, u"p1"_s, u"p2"_s, u"p3"_s };
    const QJsonArray calls = m_seeded.calls();
    const auto call = std::find_if(calls.begin(), calls.end(),
                                   [&title](const QJsonValue &candidate) {
                                       return candidate[u"title"_s] == title;
                                   });
    if (call != calls.end())
        m_inCall = (*call)[u"people"_s].toVariant().toStringList();
    m_joined.start();
    m_levels.start(100);
}

void Server::setPresence(const QString &presence)
{
    m_presence = presence;
    push(u"presence"_s, { { u"person"_s, u"p0"_s }, { u"presence"_s, presence } });
}

void Server::pushMessage(int conversation, const QJsonObject &message)
{
    push(u"message"_s,
         { { u"conversation"_s, World::idOf(conversation) }, { u"message"_s, message } });
}

/// The first conversations are the busiest: at random, a quarter of the messages goes to the first
/// one.
void Server::letMessagesArrive()
{
    const qint64 due = m_clock.elapsed() * m_options.rate / 1000;
    for (; m_arrived < due; ++m_arrived) {
        const double random = m_random.generateDouble();
        const int conversation = int(std::pow(double(m_world.conversationCount()), random * random))
                - 1;
        if (conversation < 0)
            return;
        pushMessage(conversation, m_world.arrive(conversation));
    }
}

void Server::letSomebodyType()
{
    static const QStringList presences { u"active"_s, u"away"_s, u"busy"_s, u"offline"_s };
    const QJsonArray people = m_world.archive().people();
    if (people.size() < 2 || m_world.conversationCount() == 0)
        return;
    const int person = m_random.bounded(1, people.size());
    const QJsonValue id = people[person][u"id"_s];
    if (m_random.bounded(4) == 0)
        push(u"presence"_s,
             { { u"person"_s, id }, { u"presence"_s, presences[m_random.bounded(4)] } });
    const int conversation = m_random.bounded(qMin(8, m_world.conversationCount()));
    push(u"typing"_s, { { u"conversation"_s, World::idOf(conversation) }, { u"person"_s, id } });
}

void Server::tellLevels()
{
    QJsonObject levels;
    for (int i = 0; i < m_inCall.size(); ++i) {
        // They come one after the other, and the last one is away for a while now and then.
        const qint64 since = m_joined.elapsed() - i * 300;
        if (since < 0 || (i > 1 && i == m_inCall.size() - 1 && since % 30000 > 24000))
            continue;
        const double wave = std::sin(double(m_clock.elapsed()) / (700.0 + 200 * i) + i);
        levels[m_inCall[i]] = qMax(0, int(wave * 70) + m_random.bounded(30));
    }
    push(u"levels"_s, { { u"levels"_s, levels } });
}
