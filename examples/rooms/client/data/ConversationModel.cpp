// SPDX-License-Identifier: Apache-2.0
#include "ConversationModel.h"

#include "protocol/Literal.h"

namespace {

constexpr int showMs = 500;

} // namespace

ConversationModel::ConversationModel(QObject *parent) : BaseListModel(parent)
{
    m_showing.setInterval(showMs);
    connect(&m_showing, &QTimer::timeout, this, &ConversationModel::showArrivals);
}

QHash<int, QByteArray> ConversationModel::roleNames() const
{
    return { { IdRole, "id" },           { TitleRole, "title" },           { PersonRole, "person" },
             { PreviewRole, "preview" }, { LastAuthorRole, "lastAuthor" }, { LastAtRole, "lastAt" },
             { UnreadRole, "unread" } };
}

QVariant ConversationModel::data(const QModelIndex &index, int role) const
{
    const bool isName = role == Qt::DisplayRole || role == Qt::AccessibleTextRole;
    return BaseListModel::data(index, isName ? int(TitleRole) : role);
}

ModelRow ConversationModel::row(const QJsonObject &conversation)
{
    const QString id = conversation[u"id"_s].toString();
    return { id.toStdString(),
             { { IdRole, id },
               { TitleRole, conversation[u"title"_s].toString() },
               { PersonRole, conversation[u"person"_s].toString() },
               { PreviewRole, conversation[u"last"_s].toString().simplified() },
               { LastAuthorRole, conversation[u"lastAuthor"_s].toString() },
               { LastAtRole, qint64(conversation[u"lastAt"_s].toDouble()) },
               { UnreadRole, conversation[u"unread"_s].toInt() } } };
}

void ConversationModel::arrive(const QString &conversation, const Message &message, bool isUnread)
{
    Arrival &arrival = m_arrivals[conversation];
    arrival.last = message;
    arrival.unread += isUnread ? 1 : 0;
    if (m_showing.isActive())
        return;
    showArrivals();
    m_showing.start();
}

void ConversationModel::showArrivals()
{
    if (m_arrivals.isEmpty())
        m_showing.stop();
    const QHash<QString, Arrival> arrivals = std::exchange(m_arrivals, {});
    for (auto arrival = arrivals.begin(); arrival != arrivals.end(); ++arrival) {
        const Message &last = arrival->last;
        const int unread = find(arrival.key()).data(UnreadRole).toInt() + arrival->unread;
        setRoleValueForRow(arrival.key().toStdString(),
                           { { PreviewRole, last.text.left(200).simplified() },
                             { LastAuthorRole, last.author },
                             { LastAtRole, last.at.toMSecsSinceEpoch() },
                             { UnreadRole, unread } });
    }
}

bool ConversationModel::markRead(const QString &conversation)
{
    const auto arrival = m_arrivals.find(conversation);
    const bool isArriving = arrival != m_arrivals.end() && std::exchange(arrival->unread, 0) > 0;
    if (find(conversation).data(UnreadRole).toInt() == 0)
        return isArriving;
    setRoleValueForRow(conversation.toStdString(), { { UnreadRole, 0 } });
    return true;
}
