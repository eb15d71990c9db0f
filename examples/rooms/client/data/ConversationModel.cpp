// SPDX-License-Identifier: Apache-2.0
#include "ConversationModel.h"

QHash<int, QByteArray> ConversationModel::roleNames() const
{
    return { { IdRole, "id" },           { TitleRole, "title" },           { PersonRole, "person" },
             { PreviewRole, "preview" }, { LastAuthorRole, "lastAuthor" }, { LastAtRole, "lastAt" },
             { UnreadRole, "unread" },   { ActivityRole, "activity" } };
}

QVariant ConversationModel::data(const QModelIndex &index, int role) const
{
    const bool isName = role == Qt::DisplayRole || role == Qt::AccessibleTextRole;
    return BaseListModel::data(index, isName ? int(TitleRole) : role);
}
