// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Records.h"

#include <QJsonObject>

/// What was typed and is not with the server, in a file: messages to be sent, and drafts.
class Outbox
{
public:
    struct Entry
    {
        QString conversation;
        Message message;
    };

    /// Reads \a file, which need not exist.
    explicit Outbox(const QString &file);

    /// The messages in the order in which they were written.
    const QVector<Entry> &entries() const { return m_entries; }

    /// Adds a message and forgets the draft if that was its text.
    void add(const Entry &entry);

    /// Returns the message \a key; one without a key if it is not here.
    Message message(const QString &key) const;

    void setState(const QString &key, Message::State state);

    /// Does not write the file: a message that is sent twice is not there twice.
    void remove(const QString &key);

    QString draft(const QString &conversation) const;

    /// Does not write the file.
    void setDraft(const QString &conversation, const QString &text);

    /// Writes the file. add() and setState() do so, too.
    void save() const;

private:
    const QString m_file;
    QVector<Entry> m_entries;
    QJsonObject m_drafts;
};
