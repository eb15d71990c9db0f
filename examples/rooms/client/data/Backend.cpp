// SPDX-License-Identifier: Apache-2.0
#include "Backend.h"

#include "ConversationModel.h"
#include "History.h"
#include "Link.h"
#include "PagedFiles.h"
#include "protocol/Literal.h"

#include <QDir>
#include <QJsonArray>
#include <QUuid>

namespace {

constexpr int conversationsAtOnce = 1000;
constexpr int mostHistories = 20;
constexpr int saveMs = 300;
constexpr int retryMs = 1000;
constexpr int typingMs = 2000;

QString fileIn(const QString &folder)
{
    QDir().mkpath(folder);
    return folder + u"/unsent.json"_s;
}

} // namespace

Backend::Backend(const QString &socket, const QString &folder, QObject *parent)
    : QObject(parent),
      m_link(new Link(socket, this)),
      m_outbox(fileIn(folder)),
      m_conversations(new ConversationModel(this)),
      m_files(new PagedFiles(*m_link, this))
{
    m_saving.setSingleShot(true);
    m_saving.setInterval(saveMs);
    connect(&m_saving, &QTimer::timeout, this, [this] { m_outbox.save(); });
    m_greeting.setSingleShot(true);
    m_greeting.setInterval(retryMs);
    connect(&m_greeting, &QTimer::timeout, this, &Backend::greet);
    connect(m_link, &Link::opened, this, &Backend::greet);
    connect(m_link, &Link::opened, this, [this] { Q_EMIT connectedChanged(true); });
    connect(m_link, &Link::closed, this, &Backend::stop);
    connect(m_link, &Link::pushed, this, &Backend::receive);
}

Backend::~Backend() { m_outbox.save(); }

bool Backend::isConnected() const { return m_link->isOpen(); }

Person Backend::person(const QString &id) const
{
    return m_people.value(id, { id, {}, {}, {}, {} });
}

void Backend::greet()
{
    m_link->ask(u"hello"_s, {}, this, [this](const QJsonObject &answer) { takePeople(answer); });
}

void Backend::takePeople(const QJsonObject &answer)
{
    if (answer.contains(u"error"_s)) {
        m_greeting.start();
        return;
    }
    m_me = answer[u"me"_s].toString();
    const QJsonArray people = answer[u"people"_s].toArray();
    for (const QJsonValue &value : people) {
        const Person person = Person::fromJson(value.toObject());
        m_people[person.id] = person;
        Q_EMIT personChanged(person.id);
    }
    m_rows.clear();
    askForConversations();
}

void Backend::askForConversations()
{
    m_link->ask(u"conversations"_s,
                { { u"first"_s, int(m_rows.size()) }, { u"count"_s, conversationsAtOnce } }, this,
                [this](const QJsonObject &answer) { takeConversations(answer); });
}

void Backend::takeConversations(const QJsonObject &answer)
{
    if (answer.contains(u"error"_s)) {
        m_greeting.start();
        return;
    }
    const QJsonArray rows = answer[u"rows"_s].toArray();
    for (const QJsonValue &row : rows) {
        m_rows.push_back(ConversationModel::row(row.toObject()));
        m_totals[row[u"id"_s].toString()] = row[u"total"_s].toInt();
    }
    if (!rows.isEmpty() && int(m_rows.size()) < answer[u"total"_s].toInt())
        askForConversations();
    else
        synchronize();
}

/// All conversations are here: what was not sent is sent, and what was missed is asked for.
void Backend::synchronize()
{
    m_conversations->replace(std::exchange(m_rows, {}));
    m_isSynchronized = true;
    for (const Outbox::Entry &entry : m_outbox.entries()) {
        if (entry.message.state == Message::State::Waiting)
            transmit(entry);
    }
    for (History *history : qAsConst(m_histories))
        resume(history);
    m_files->resume();
    m_link->ask(u"calls"_s, {}, this, [this](const QJsonObject &answer) { takeCalls(answer); });
    if (!m_call.isEmpty())
        join(m_call);
    const QVector<QJsonObject> early = std::exchange(m_early, {});
    for (const QJsonObject &line : early)
        receive(line);
    if (!std::exchange(m_isReady, true))
        Q_EMIT ready();
}

void Backend::takeCalls(const QJsonObject &answer)
{
    m_calls.clear();
    const QJsonArray calls = answer[u"rows"_s].toArray();
    for (const QJsonValue &call : calls)
        m_calls.append(Call::fromJson(call.toObject()));
    Q_EMIT callsChanged();
}

void Backend::stop()
{
    m_isSynchronized = false;
    m_greeting.stop();
    m_early.clear();
    for (History *history : qAsConst(m_histories))
        history->stop();
    Q_EMIT connectedChanged(false);
}

/// Takes what the server tells, after the conversations are here.
void Backend::receive(const QJsonObject &line)
{
    const QString name = line[u"push"_s].toString();
    const QString conversation = line[u"conversation"_s].toString();
    History *history = m_histories.value(conversation);
    if (!m_isSynchronized) {
        m_early.append(line);
    } else if (name == u"message"_s) {
        takeMessage(conversation, Message::fromJson(line[u"message"_s].toObject()));
    } else if (name == u"reactions"_s && history) {
        history->setReactions(line[u"seq"_s].toInt(),
                              Reaction::fromJson(line[u"reactions"_s].toArray()));
    } else if (name == u"typing"_s) {
        Q_EMIT typing(conversation, line[u"person"_s].toString());
    } else if (name == u"presence"_s && m_people.contains(line[u"person"_s].toString())) {
        m_people[line[u"person"_s].toString()].presence = presenceOf(line[u"presence"_s]);
        Q_EMIT personChanged(line[u"person"_s].toString());
    } else if (name == u"levels"_s) {
        Q_EMIT levels(line[u"levels"_s].toObject().toVariantHash());
    }
}

void Backend::takeMessage(const QString &conversation, const Message &message)
{
    const bool isOwn = message.author == m_me;
    int &total = m_totals[conversation];
    const bool isNew = message.seq >= total;
    if (isNew) {
        total = message.seq + 1;
        m_conversations->arrive(conversation, message, !isOwn);
    }
    if (History *history = m_histories.value(conversation))
        history->arrive(message);
    if (isNew && !isOwn)
        Q_EMIT messageArrived(conversation, message);
}

History *Backend::open(const QString &conversation)
{
    m_opened.removeOne(conversation);
    m_opened.append(conversation);
    if (m_opened.size() > mostHistories)
        m_histories.take(m_opened.takeFirst())->deleteLater();
    History *&history = m_histories[conversation];
    if (history)
        return history;
    history = new History(*m_link, conversation, this);
    for (const Outbox::Entry &entry : m_outbox.entries()) {
        if (entry.conversation == conversation)
            history->addOwn(entry.message);
    }
    if (m_isSynchronized)
        resume(history);
    return history;
}

void Backend::resume(History *history)
{
    const QString id = history->conversation();
    history->resume(m_totals.value(id),
                    m_conversations->find(id).data(ConversationModel::UnreadRole).toInt());
}

void Backend::send(const QString &conversation, Message::Kind kind, const QString &text)
{
    Outbox::Entry entry { conversation, {} };
    entry.message.key = QUuid::createUuid().toString(QUuid::WithoutBraces);
    entry.message.author = m_me;
    entry.message.at = QDateTime::currentDateTime();
    entry.message.kind = kind;
    entry.message.text = text;
    entry.message.state = Message::State::Waiting;
    m_outbox.add(entry);
    if (History *history = m_histories.value(conversation))
        history->addOwn(entry.message);
    if (m_isSynchronized)
        transmit(entry);
}

void Backend::transmit(const Outbox::Entry &entry)
{
    QJsonObject values = entry.message.toJson();
    values[u"conversation"_s] = entry.conversation;
    const QString key = entry.message.key;
    m_link->ask(u"send"_s, values, this, [this, key](const QJsonObject &answer) {
        if (answer.contains(u"error"_s)) {
            setState(key, Message::State::Failed);
            Q_EMIT failed(answer[u"error"_s].toString());
            return;
        }
        m_outbox.remove(key);
        m_saving.start();
    });
}

void Backend::setState(const QString &key, Message::State state)
{
    m_outbox.setState(key, state);
    for (History *history : qAsConst(m_histories))
        history->setOwnState(key, state);
}

void Backend::retry(const QString &conversation, const QString &key)
{
    const Message message = m_outbox.message(key);
    if (message.state != Message::State::Failed)
        return;
    setState(key, Message::State::Waiting);
    if (m_isSynchronized)
        transmit({ conversation, message });
}

void Backend::react(const QString &conversation, int seq, const QString &emoji)
{
    m_link->ask(u"react"_s,
                { { u"conversation"_s, conversation }, { u"seq"_s, seq }, { u"emoji"_s, emoji } },
                this, [this](const QJsonObject &answer) {
                    if (answer.contains(u"error"_s))
                        Q_EMIT failed(answer[u"error"_s].toString());
                });
}

void Backend::markRead(const QString &conversation)
{
    if (m_conversations->markRead(conversation))
        m_link->ask(u"read"_s,
                    { { u"conversation"_s, conversation },
                      { u"seq"_s, m_totals.value(conversation) - 1 } });
}

void Backend::tellTyping(const QString &conversation)
{
    if (m_typing.isValid() && m_typing.elapsed() < typingMs)
        return;
    m_typing.start();
    m_link->ask(u"typing"_s, { { u"conversation"_s, conversation } });
}

void Backend::setPresence(Presence presence)
{
    m_link->ask(u"presence"_s, { { u"presence"_s, nameOf(presence) } });
}

QString Backend::draft(const QString &conversation) const { return m_outbox.draft(conversation); }

void Backend::setDraft(const QString &conversation, const QString &text)
{
    m_outbox.setDraft(conversation, text);
    if (!m_saving.isActive())
        m_saving.start();
}

void Backend::join(const QString &call)
{
    m_call = call;
    if (call.isEmpty())
        m_link->ask(u"leave"_s);
    else
        m_link->ask(u"join"_s, { { u"call"_s, call } });
}
