// SPDX-License-Identifier: Apache-2.0
#include "World.h"

#include "protocol/Literal.h"

#include <QDateTime>
#include <QJsonDocument>

#include <algorithm>

namespace {

constexpr int previewLength = 80;

/// Adds the user's \a emoji to \a reactions, or takes it away.
QJsonArray toggled(QJsonArray reactions, const QString &emoji)
{
    for (int i = 0; i < reactions.size(); ++i) {
        QJsonObject reaction = reactions[i].toObject();
        if (reaction[u"emoji"_s] != emoji)
            continue;
        const bool isMine = !reaction[u"mine"_s].toBool();
        reaction[u"mine"_s] = isMine;
        reaction[u"count"_s] = reaction[u"count"_s].toInt() + (isMine ? 1 : -1);
        if (reaction[u"count"_s].toInt() > 0)
            reactions[i] = reaction;
        else
            reactions.removeAt(i);
        return reactions;
    }
    reactions.append(QJsonObject { { u"emoji"_s, emoji }, { u"count"_s, 1 }, { u"mine"_s, true } });
    return reactions;
}

} // namespace

World::World(std::unique_ptr<Archive> archive, const QString &file)
    : m_archive(std::move(archive)),
      m_conversations(m_archive->conversationCount()),
      m_journal(file)
{
    for (int i = 0; i < m_conversations.size(); ++i)
        m_conversations[i].read = m_archive->total(i) - 1
                - m_archive->conversation(i)[u"unread"_s].toInt();
    if (!file.isEmpty())
        load();
}

void World::load()
{
    if (!m_journal.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        qFatal("Cannot open %s", qPrintable(m_journal.fileName()));
    QByteArray line("\n");
    while (!m_journal.atEnd()) {
        line = m_journal.readLine();
        apply(QJsonDocument::fromJson(line).object());
    }
    // The server was killed while it wrote.
    if (!line.endsWith('\n'))
        m_journal.write("\n");
}

/// Writes \a entry before anybody hears of it.
void World::record(const QJsonObject &entry)
{
    if (m_journal.isOpen())
        m_journal.write(QJsonDocument(entry).toJson(QJsonDocument::Compact) + '\n');
    apply(entry);
}

void World::apply(const QJsonObject &entry)
{
    const int index = entry[u"in"_s].toInt(-1);
    if (index < 0 || index >= m_conversations.size())
        return;
    Conversation &conversation = m_conversations[index];
    const int seq = entry[u"seq"_s].toInt();
    if (entry.contains(u"emoji"_s)) {
        conversation.reactions[seq] = toggled(message(index, seq)[u"reactions"_s].toArray(),
                                              entry[u"emoji"_s].toString());
    } else if (entry.contains(u"at"_s)) {
        const QJsonObject post = entry[u"post"_s].toObject();
        if (!post.isEmpty()) {
            conversation.posts[total(index)] = post;
            m_keys[post[u"key"_s].toString()] = { index, total(index) };
            conversation.read = total(index);
        }
        conversation.arrivals.append(qint64(entry[u"at"_s].toDouble()));
    } else {
        conversation.read = std::max(conversation.read, std::min(seq, total(index) - 1));
    }
}

int World::indexOf(const QString &id) const
{
    bool isNumber = false;
    const int index = id.midRef(1).toInt(&isNumber);
    return isNumber && index < conversationCount() && idOf(index) == id ? index : -1;
}

QString World::idOf(int index) { return u"c%1"_s.arg(index); }

QJsonObject World::conversation(int index) const
{
    QJsonObject row = m_archive->conversation(index);
    const int last = total(index) - 1;
    const QJsonObject message = last < 0 ? QJsonObject() : this->message(index, last);
    row[u"id"_s] = idOf(index);
    row[u"total"_s] = last + 1;
    row[u"unread"_s] = last - m_conversations[index].read;
    row[u"last"_s] = message[u"text"_s].toString().left(previewLength);
    row[u"lastAuthor"_s] = message[u"author"_s];
    row[u"lastAt"_s] = message[u"at"_s];
    return row;
}

int World::total(int conversation) const
{
    return m_archive->total(conversation) + m_conversations[conversation].arrivals.size();
}

QJsonObject World::message(int conversation, int seq) const
{
    const Conversation &added = m_conversations[conversation];
    QJsonObject message = added.posts.value(seq);
    if (message.isEmpty())
        message = m_archive->message(conversation, seq);
    message[u"seq"_s] = seq;
    message[u"at"_s] = at(conversation, seq);
    const auto reactions = added.reactions.constFind(seq);
    if (reactions != added.reactions.constEnd())
        message[u"reactions"_s] = *reactions;
    return message;
}

qint64 World::at(int conversation, int seq) const
{
    const int arrival = seq - m_archive->total(conversation);
    if (arrival >= 0)
        return m_conversations[conversation].arrivals.value(arrival);
    return qint64(m_archive->message(conversation, seq)[u"at"_s].toDouble());
}

int World::find(int conversation, qint64 at) const
{
    int first = 0;
    int end = total(conversation);
    while (first < end) {
        const int middle = first + (end - first) / 2;
        if (this->at(conversation, middle) < at)
            first = middle + 1;
        else
            end = middle;
    }
    return first;
}

QJsonObject World::post(int conversation, const QJsonObject &message)
{
    const QString key = message[u"key"_s].toString();
    if (!m_keys.contains(key)) {
        record({ { u"in"_s, conversation },
                 { u"at"_s, QDateTime::currentMSecsSinceEpoch() },
                 { u"post"_s, message } });
    }
    const QPair<int, int> place = m_keys.value(key);
    return { { u"seq"_s, place.second }, { u"at"_s, at(place.first, place.second) } };
}

QJsonObject World::arrive(int conversation)
{
    record({ { u"in"_s, conversation }, { u"at"_s, QDateTime::currentMSecsSinceEpoch() } });
    return message(conversation, total(conversation) - 1);
}

QJsonArray World::react(int conversation, int seq, const QString &emoji)
{
    record({ { u"in"_s, conversation }, { u"seq"_s, seq }, { u"emoji"_s, emoji } });
    return m_conversations[conversation].reactions.value(seq);
}

void World::read(int conversation, int seq)
{
    record({ { u"in"_s, conversation }, { u"seq"_s, seq } });
}
