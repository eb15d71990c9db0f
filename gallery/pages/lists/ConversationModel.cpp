// SPDX-License-Identifier: Apache-2.0
#include "ConversationModel.h"

#include "RowRole.h"

ConversationModel::ConversationModel(QObject *parent) : EmptyStateBaseListModel(parent)
{
    setProperty("emptyStateHeader", tr("No conversations"));
    setProperty("emptyStateSubtitle", tr("People you write to appear here."));
}

QHash<int, QByteArray> ConversationModel::roleNames() const
{
    return { { RowRole::Title, "title" },
             { RowRole::Detail, "detail" },
             { RowRole::Time, "time" },
             { RowRole::Unread, "unread" },
             { RowRole::Avatar, "avatar" } };
}

QVariant ConversationModel::data(const QModelIndex &index, int role) const
{
    return EmptyStateBaseListModel::data(index, role == Qt::DisplayRole ? RowRole::Title : role);
}
