// SPDX-License-Identifier: Apache-2.0
#include "ConversationProxy.h"

#include "data/ConversationModel.h"

using Role = ConversationModel::Role;

ConversationProxy::ConversationProxy(QObject *parent) : QSortFilterProxyModel(parent)
{
    setFilterCaseSensitivity(Qt::CaseInsensitive);
    sort(0);
}

void ConversationProxy::setUnreadOnly(bool isUnreadOnly)
{
    m_isUnreadOnly = isUnreadOnly;
    invalidateFilter();
}

void ConversationProxy::keep(const QString &id)
{
    const bool wasKeptUnread = m_isKeptUnread;
    m_kept = id;
    m_isKeptUnread = indexOf(id).data(Role::UnreadRole).toInt() > 0;
    if (wasKeptUnread)
        invalidate(); // The one that was kept goes to its place.
}

QModelIndex ConversationProxy::indexOf(const QString &id) const
{
    const auto *model = qobject_cast<const ConversationModel *>(sourceModel());
    return mapFromSource(model->find(id));
}

bool ConversationProxy::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    if (m_isUnreadOnly && !countsAsUnread(index))
        return false;
    return QSortFilterProxyModel::filterAcceptsRow(row, parent);
}

bool ConversationProxy::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const bool isLeftUnread = countsAsUnread(left);
    if (isLeftUnread != countsAsUnread(right))
        return isLeftUnread;
    return left.data(Role::LastAtRole).toLongLong() > right.data(Role::LastAtRole).toLongLong();
}

bool ConversationProxy::countsAsUnread(const QModelIndex &source) const
{
    if (source.data(Role::UnreadRole).toInt() > 0)
        return true;
    return m_isKeptUnread && source.data(Role::IdRole).toString() == m_kept;
}
