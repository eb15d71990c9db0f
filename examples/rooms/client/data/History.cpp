// SPDX-License-Identifier: Apache-2.0
#include "History.h"

#include "Link.h"
#include "protocol/Literal.h"

#include <QJsonArray>

#include <algorithm>
#include <iterator>

namespace {

constexpr int largestPage = 500;
constexpr int largestGap = 5000; ///< Of more messages that are missing, the newest page is loaded.
constexpr int retryMs = 1000;
constexpr int arrivalsMs = 100;

QVector<Message> messagesOf(const QJsonObject &answer)
{
    const QJsonArray rows = answer[u"rows"_s].toArray();
    QVector<Message> messages;
    messages.reserve(rows.size());
    for (const QJsonValue &row : rows)
        messages.append(Message::fromJson(row.toObject()));
    return messages;
}

} // namespace

History::History(Link &link, const QString &conversation, QObject *parent)
    : QObject(parent), m_link(link), m_conversation(conversation)
{
    m_appendSoon.setSingleShot(true);
    connect(&m_appendSoon, &QTimer::timeout, this, [this] { takeNewer({}); });
}

int History::rowOf(int seq) const
{
    return m_firstSeq >= 0 && seq >= m_firstSeq && seq < nextSeq() ? seq - m_firstSeq : -1;
}

bool History::isComplete() const { return m_firstSeq == 0 || sentCount() >= longest; }

void History::loadEarlier()
{
    if (m_isLoading || isComplete() || !m_link.isOpen())
        return;
    setLoading(true);
    // The first page reaches back to what is unread, as far as a page can.
    const bool isFarUnread = m_firstSeq < 0 && m_firstUnread >= 0
            && m_total - m_firstUnread > page / 2;
    const int most = std::min(m_daySeq < 0 && !isFarUnread ? page : largestPage,
                              longest - sentCount());
    m_link.ask(u"messages"_s,
               { { u"conversation"_s, m_conversation },
                 { u"before"_s, m_firstSeq },
                 { u"count"_s, most } },
               this, [this](const QJsonObject &answer) { takePage(answer); });
}

void History::loadBackTo(const QDate &day)
{
    m_link.ask(u"find"_s,
               { { u"conversation"_s, m_conversation },
                 { u"at"_s, day.startOfDay().toMSecsSinceEpoch() } },
               this, [this](const QJsonObject &answer) {
                   m_daySeq = answer[u"seq"_s].toInt(-1);
                   if (m_daySeq < 0)
                       Q_EMIT loadingFailed(answer[u"error"_s].toString());
                   seekDay();
               });
}

/// Reports the day if it is here, or loads another page.
void History::seekDay()
{
    if (m_daySeq < 0 || m_isLoading || sentCount() == 0)
        return;
    if (m_daySeq < m_firstSeq && !isComplete()) {
        loadEarlier();
        return;
    }
    const int seq = qBound(m_firstSeq, std::exchange(m_daySeq, -1), nextSeq() - 1);
    Q_EMIT dayReached(rowOf(seq));
}

void History::resume(int total, int unread)
{
    if (m_firstSeq < 0 && m_firstUnread < 0 && unread > 0)
        m_firstUnread = total - unread;
    if (m_firstSeq >= 0 && (total < nextSeq() || total - nextSeq() > largestGap))
        forget();
    m_total = total;
    m_isLoading = false;
    if (m_firstSeq < 0)
        loadEarlier();
    else // Some that are here once more: their reactions may be others.
        fetch(std::min(total, nextSeq() + largestPage - page), largestPage);
}

/// The connection is lost: nothing that was asked for will come.
void History::stop()
{
    m_isCatchingUp = false;
    m_daySeq = -1;
    setLoading(false);
}

void History::forget()
{
    const int count = sentCount();
    m_messages.erase(m_messages.begin(), m_messages.begin() + count);
    m_ahead.clear();
    m_firstSeq = -1;
    if (count > 0)
        Q_EMIT removed(0, count);
}

void History::setLoading(bool isLoading)
{
    if (std::exchange(m_isLoading, isLoading) != isLoading)
        Q_EMIT loadingChanged();
}

void History::takePage(const QJsonObject &answer)
{
    if (answer.contains(u"error"_s)) {
        m_daySeq = -1;
        setLoading(false);
        Q_EMIT loadingFailed(answer[u"error"_s].toString());
        return;
    }
    const QVector<Message> messages = messagesOf(answer);
    if (m_firstSeq < 0) {
        m_total = std::max(m_total, answer[u"total"_s].toInt());
        m_firstSeq = messages.isEmpty() ? 0 : messages.constFirst().seq;
        takeNewer(messages);
    } else {
        prepend(messages);
    }
    setLoading(false);
    seekDay();
}

void History::prepend(const QVector<Message> &messages)
{
    if (messages.isEmpty() || messages.constLast().seq != m_firstSeq - 1)
        return;
    m_messages.insert(m_messages.begin(), messages.begin(), messages.end());
    m_firstSeq = messages.constFirst().seq;
    Q_EMIT inserted(0, messages.size());
}

/// Those of a while are appended at once: what shows them lays out all of its rows.
void History::arrive(const Message &message)
{
    m_total = std::max(m_total, message.seq + 1);
    keep(message);
    if (!m_appendSoon.isActive())
        m_appendSoon.start(arrivalsMs);
}

void History::keep(const Message &message)
{
    if (m_firstSeq < 0 || message.seq >= nextSeq())
        m_ahead.insert(message.seq, message);
    else if (rowOf(message.seq) >= 0)
        setReactions(message.seq, message.reactions);
}

/// Appends what follows without a gap of \a messages and those that are kept, keeps the others, and
/// asks for what is missing.
void History::takeNewer(const QVector<Message> &messages)
{
    for (const Message &message : messages)
        keep(message);
    if (m_ahead.size() > largestGap)
        m_ahead.clear();
    if (m_firstSeq < 0)
        return;
    appendAhead();
    dropOldest();
    if (nextSeq() < m_total)
        catchUp();
}

void History::catchUp()
{
    if (!m_isCatchingUp)
        fetch(std::min(m_total, nextSeq() + largestPage),
              std::min(m_total - nextSeq(), largestPage));
}

void History::fetch(int before, int count)
{
    m_isCatchingUp = true;
    const auto take = [this](const QJsonObject &answer) {
        m_isCatchingUp = false;
        if (answer.contains(u"error"_s))
            QTimer::singleShot(retryMs, this, [this] { takeNewer({}); });
        else
            takeNewer(messagesOf(answer));
    };
    m_link.ask(u"messages"_s,
               { { u"conversation"_s, m_conversation },
                 { u"before"_s, before },
                 { u"count"_s, count } },
               this, take);
}

void History::appendAhead()
{
    QVector<Message> run;
    while (!m_ahead.isEmpty() && m_ahead.firstKey() <= nextSeq() + run.size()) {
        const Message message = m_ahead.take(m_ahead.firstKey());
        if (message.seq < nextSeq() + run.size())
            continue;
        if (!message.key.isEmpty() && ownRow(message.key) >= 0) {
            append(run);
            run.clear();
            if (confirm(message))
                continue;
        }
        run.append(message);
    }
    append(run);
}

void History::append(const QVector<Message> &messages)
{
    if (messages.isEmpty())
        return;
    const int row = sentCount();
    m_messages.insert(m_messages.begin() + row, messages.begin(), messages.end());
    Q_EMIT inserted(row, messages.size());
}

/// The server has an own message now. If that is the first of those that wait, it stays in its row;
/// otherwise it is removed, and false is returned.
bool History::confirm(const Message &message)
{
    const int row = ownRow(message.key);
    --m_ownCount;
    if (row == sentCount() - 1) {
        m_messages[size_t(row)] = message;
        Q_EMIT changed(row);
        return true;
    }
    m_messages.erase(m_messages.begin() + row);
    Q_EMIT removed(row, 1);
    return false;
}

void History::dropOldest()
{
    if (sentCount() < longest + page)
        return;
    const int count = sentCount() - longest;
    m_messages.erase(m_messages.begin(), m_messages.begin() + count);
    m_firstSeq += count;
    Q_EMIT removed(0, count);
}

void History::setReactions(int seq, const QVector<Reaction> &reactions)
{
    const int row = rowOf(seq);
    if (row < 0) {
        if (m_ahead.contains(seq))
            m_ahead[seq].reactions = reactions;
        return;
    }
    if (m_messages[size_t(row)].reactions == reactions)
        return;
    m_messages[size_t(row)].reactions = reactions;
    Q_EMIT changed(row);
}

void History::addOwn(const Message &message)
{
    m_messages.push_back(message);
    ++m_ownCount;
    Q_EMIT inserted(count() - 1, 1);
}

int History::ownRow(const QString &key) const
{
    const auto isIt = [&key](const Message &message) { return message.key == key; };
    const auto found = std::find_if(m_messages.begin() + sentCount(), m_messages.end(), isIt);
    return found == m_messages.end() ? -1 : int(std::distance(m_messages.begin(), found));
}

void History::setOwnState(const QString &key, Message::State state)
{
    const int row = ownRow(key);
    if (row < 0 || at(row).state == state)
        return;
    m_messages[size_t(row)].state = state;
    Q_EMIT changed(row);
}
