// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Records.h"

#include <QObject>

#include <deque>

/// The messages of one conversation, without a gap, from some message to the newest; after them the
/// own ones that the server does not have yet. Keeps the newest 100,000. Made and owned by Backend.
class History : public QObject
{
    Q_OBJECT

public:
    static constexpr int longest = 100000;

    const QString &conversation() const { return m_conversation; }
    int count() const { return int(m_messages.size()); }
    const Message &at(int row) const { return m_messages[size_t(row)]; }

    /// The row of the message \a seq, or -1 if that is not here.
    int rowOf(int seq) const;

    /// The first message that was unread when the conversation was opened; -1 if none was.
    int firstUnread() const { return m_firstUnread; }

    /// Whether earlier messages are on their way.
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
    /// \a count messages from \a first on are gone: the oldest, or an own one that moves because
    /// the server has it now.
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

    QString m_conversation;
    std::deque<Message> m_messages;
    int m_firstUnread = -1;
    bool m_isLoading = false;
};
