// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Records.h"

#include <QMap>
#include <QObject>
#include <QTimer>

#include <deque>

class Link;

/// The messages of one conversation, without a gap, from some message to the newest; after them the
/// own ones that the server does not have yet. Keeps the newest 100,000, and up to 200 more. Made
/// and owned by Backend.
class History : public QObject
{
    Q_OBJECT

public:
    static constexpr int longest = 100000;
    static constexpr int page = 200;

    const QString &conversation() const { return m_conversation; }
    int count() const { return int(m_messages.size()); }
    const Message &at(int row) const { return m_messages[size_t(row)]; }

    /// The row of the message \a seq, or -1 if that is not here.
    int rowOf(int seq) const;

    /// The `seq` of the first message that was unread when the conversation was opened; -1 if none
    /// was. The message need not be here yet.
    int firstUnread() const { return m_firstUnread; }

    /// Whether earlier messages are on their way, the newest ones included at first.
    bool isLoading() const { return m_isLoading; }

    /// Whether the first message is here, or as many as are kept.
    bool isComplete() const;

    /// Asks for the page before the first message, unless one is on its way or all are here.
    void loadEarlier();

    /// Loads pages until the first message of \a day is here, then emits dayReached().
    void loadBackTo(const QDate &day);

Q_SIGNALS:
    /// \a count messages are new from \a first on: earlier ones at 0, newer ones at the end.
    void inserted(int first, int count);
    /// \a count messages from \a first on are gone: the oldest, all, or an own one that moves
    /// because the server has it now.
    void removed(int first, int count);
    /// The message at \a row has another state or other reactions.
    void changed(int row);
    /// isLoading() or isComplete() changed.
    void loadingChanged();
    /// A page could not be loaded, for \a reason. loadEarlier() tries again.
    void loadingFailed(const QString &reason);
    /// The first message of the day asked for is at \a row.
    void dayReached(int row);

private:
    friend class Backend;

    History(Link &link, const QString &conversation, QObject *parent);

    /// The connection is there, and the conversation has \a total messages.
    void resume(int total, int unread);
    void stop();
    void arrive(const Message &message);
    void setReactions(int seq, const QVector<Reaction> &reactions);
    void addOwn(const Message &message);
    void setOwnState(const QString &key, Message::State state);

    int sentCount() const { return count() - m_ownCount; }
    int nextSeq() const { return m_firstSeq + sentCount(); }
    int ownRow(const QString &key) const;
    void forget();
    void setLoading(bool isLoading);
    void takePage(const QJsonObject &answer);
    void prepend(const QVector<Message> &messages);
    void catchUp();
    void fetch(int before, int count);
    void keep(const Message &message);
    void takeNewer(const QVector<Message> &messages);
    void appendAhead();
    void append(const QVector<Message> &messages);
    bool confirm(const Message &message);
    void dropOldest();
    void seekDay();

    Link &m_link;
    const QString m_conversation;
    std::deque<Message> m_messages;
    QMap<int, Message> m_ahead; ///< Newer messages: just arrived, or with a gap before them.
    int m_firstSeq = -1;        ///< Of the first message; -1 before the first page.
    int m_ownCount = 0;         ///< How many messages at the end the server does not have.
    int m_total = 0;            ///< How many messages the server has.
    int m_firstUnread = -1;
    int m_daySeq = -1; ///< What loadBackTo() loads back to.
    bool m_isLoading = true;
    bool m_isCatchingUp = false;
    QTimer m_appendSoon;
};
