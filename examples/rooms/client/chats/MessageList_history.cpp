// SPDX-License-Identifier: Apache-2.0
// How the list follows the history of its conversation.
#include "MessageList.h"

#include "RowHeights.h"
#include "data/Backend.h"

#include <QScrollBar>

namespace {

constexpr int firstRows = 60;
constexpr int moreRows = 200;

/// A row without a value of its own: 100,000 of them take little room.
class MessageItem : public QListWidgetItem
{
public:
    QVariant data(int role) const override
    {
        const auto *list = static_cast<const MessageList *>(listWidget());
        if (role == Qt::AccessibleTextRole && list)
            return list->accessibleText(list->row(this));
        return {};
    }
};

} // namespace

void MessageList::setHistory(History *history)
{
    if (m_history)
        m_history->disconnect(this);
    m_heights->clear();
    clear();
    m_history = history;
    m_first = 0;
    m_goal = -1;
    m_unseen = 0;
    m_isAtBottom = true;
    connect(history, &History::inserted, this, &MessageList::insertMessages);
    connect(history, &History::removed, this, &MessageList::removeMessages);
    connect(history, &History::changed, this, &MessageList::changeMessage);
    connect(history, &History::dayReached, this, &MessageList::goTo);
    showFirst();
    Q_EMIT placeChanged();
}

/// Shows the newest messages; or if some are unread, those that begin there.
void MessageList::showFirst()
{
    m_first = m_history->count();
    const int unread = m_history->rowOf(m_history->firstUnread());
    if (unread < 0 || m_history->firstUnread() < 0) {
        showMore(firstRows);
        return;
    }
    m_unseen = m_history->count() - unread;
    goTo(unread);
}

void MessageList::insertMessages(int first, int count)
{
    m_goal += m_goal >= first ? count : 0;
    if (m_heights->count() == 0) {
        showFirst();
        Q_EMIT placeChanged();
    } else if (first == 0 || first < m_first) {
        m_first += count;
        followScrollBar(); // The user may be waiting for them at the top.
    } else if (first >= m_first + m_heights->count()) {
        appendNew();
    } else {
        changeRows([&] { insertRows(first - m_first, count); });
    }
}

void MessageList::removeMessages(int first, int count)
{
    if (m_goal >= first)
        m_goal = qMax(first, m_goal - count);
    const int hidden = qBound(0, m_first - first, count);
    const int row = qMax(0, first - m_first);
    const int shown = qMin(count - hidden, m_heights->count() - row);
    m_first -= hidden;
    if (shown <= 0)
        return; // Those have not been put in yet.
    changeRows([&] {
        m_heights->remove(row, shown);
        model()->removeRows(row, shown);
        followAnother(row);
    });
}

void MessageList::changeMessage(int row)
{
    const int shown = row - m_first;
    if (shown < 0 || shown >= m_heights->count())
        return;
    m_heights->forget(shown);
    refreshRow(shown);
    m_settleSoon.start(0);
}

/// Puts in what has come at the end.
void MessageList::appendNew()
{
    if (!m_history)
        return;
    const int shown = m_heights->count();
    const int count = m_history->count() - m_first - shown;
    for (int row = m_first + shown; row < m_history->count(); ++row) {
        const bool isOwn = m_history->at(row).author == m_backend->me();
        m_unseen += isOwn || m_isAtBottom ? 0 : 1;
    }
    changeRows([&] { insertRows(shown, count); });
    if (m_isAtBottom)
        m_unseen = 0;
    Q_EMIT placeChanged();
}

void MessageList::insertRows(int first, int count)
{
    m_heights->insert(first, count);
    for (int row = 0; row < count; ++row)
        insertItem(first, new MessageItem); // At the front, where Qt moves no other.
    followAnother(first + count);
}

/// The message in \a row, if there is one, has another one before it: its author may show or not.
void MessageList::followAnother(int row)
{
    if (row >= m_heights->count())
        return;
    m_heights->forget(row);
    refreshRow(row);
}

/// Shows \a count more of the earlier messages that the history has.
void MessageList::showMore(int count)
{
    changeRows([&] {
        const int inserted = insertEarlier(count);
        m_heights->measure(inserted - screenMargin, screenMargin); // They come on screen first.
    });
}

/// Puts in the last \a count of the messages before the first row, or as many as there are. Returns
/// how many.
int MessageList::insertEarlier(int count)
{
    count = qMin(count, m_first);
    m_first -= count;
    insertRows(0, count);
    m_measureSoon.start();
    return count;
}

void MessageList::loadMore()
{
    if (m_history && m_goal >= 0) {
        reachGoal();
        return;
    }
    if (!m_history || verticalScrollBar()->value() > 2 * viewport()->height())
        return;
    if (m_first > 0)
        showMore(moreRows);
    else
        m_history->loadEarlier();
}
