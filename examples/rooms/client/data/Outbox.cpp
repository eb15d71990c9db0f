// SPDX-License-Identifier: Apache-2.0
#include "Outbox.h"

#include "protocol/Literal.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>

#include <algorithm>

Outbox::Outbox(const QString &file) : m_file(file)
{
    QFile stored(file);
    if (!stored.open(QIODevice::ReadOnly))
        return;
    const QJsonObject all = QJsonDocument::fromJson(stored.readAll()).object();
    m_drafts = all[u"drafts"_s].toObject();
    const QJsonArray unsent = all[u"unsent"_s].toArray();
    for (const QJsonValue &value : unsent) {
        Entry entry { value[u"conversation"_s].toString(), Message::fromJson(value.toObject()) };
        entry.message.state = value[u"failed"_s].toBool() ? Message::State::Failed
                                                          : Message::State::Waiting;
        m_entries.append(entry);
    }
}

void Outbox::add(const Entry &entry)
{
    m_entries.append(entry);
    if (draft(entry.conversation) == entry.message.text)
        m_drafts.remove(entry.conversation);
    save();
}

Message Outbox::message(const QString &key) const
{
    for (const Entry &entry : m_entries) {
        if (entry.message.key == key)
            return entry.message;
    }
    return {};
}

void Outbox::setState(const QString &key, Message::State state)
{
    for (Entry &entry : m_entries) {
        if (entry.message.key == key)
            entry.message.state = state;
    }
    save();
}

void Outbox::remove(const QString &key)
{
    const auto isIt = [&key](const Entry &entry) { return entry.message.key == key; };
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), isIt), m_entries.end());
}

QString Outbox::draft(const QString &conversation) const
{
    return m_drafts[conversation].toString();
}

void Outbox::setDraft(const QString &conversation, const QString &text)
{
    if (text.isEmpty())
        m_drafts.remove(conversation);
    else
        m_drafts[conversation] = text;
}

void Outbox::save() const
{
    QJsonArray unsent;
    for (const Entry &entry : m_entries) {
        QJsonObject message = entry.message.toJson();
        message[u"conversation"_s] = entry.conversation;
        message[u"failed"_s] = entry.message.state == Message::State::Failed;
        unsent.append(message);
    }
    QSaveFile file(m_file);
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write(QJsonDocument({ { u"drafts"_s, m_drafts }, { u"unsent"_s, unsent } })
                       .toJson(QJsonDocument::Compact));
    file.commit();
}
