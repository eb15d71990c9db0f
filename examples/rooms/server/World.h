// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Archive.h"

#include <QFile>
#include <QHash>
#include <QVector>

#include <memory>

/// An archive, and all that was written, read and liked since. That is a journal of JSON lines; in
/// a file, it survives the server.
class World
{
public:
    /// Reads the journal \a file, which need not exist; writes none if its name is empty.
    World(std::unique_ptr<Archive> archive, const QString &file);

    const Archive &archive() const { return *m_archive; }

    int conversationCount() const { return m_conversations.size(); }

    /// The index of the conversation \a id, or -1.
    int indexOf(const QString &id) const;
    static QString idOf(int index);

    /// The conversation as the protocol has it.
    QJsonObject conversation(int index) const;

    int total(int conversation) const;
    QJsonObject message(int conversation, int seq) const;

    /// The first message that is not earlier than \a at.
    int find(int conversation, qint64 at) const;

    /// The `seq` and `at` of the message \a key of the user, which becomes the last one if it is
    /// new.
    QJsonObject post(int conversation, const QJsonObject &message);

    /// Lets the next message of the archive arrive; returns it.
    QJsonObject arrive(int conversation);

    /// Puts an emoji of the user below a message, or takes it back; returns the reactions.
    QJsonArray react(int conversation, int seq, const QString &emoji);

    /// The messages up to \a seq are read.
    void read(int conversation, int seq);

private:
    struct Conversation
    {
        int read = -1;
        QVector<qint64> arrivals;
        QHash<int, QJsonObject> posts;
        QHash<int, QJsonArray> reactions;
    };

    void load();
    void record(const QJsonObject &entry);
    void apply(const QJsonObject &entry);
    qint64 at(int conversation, int seq) const;

    const std::unique_ptr<Archive> m_archive;
    QVector<Conversation> m_conversations;
    QHash<QString, QPair<int, int>> m_keys; ///< Where the user's messages are.
    QFile m_journal;
};
