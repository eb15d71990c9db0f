// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/models/BaseListModel.h>

/// The conversations, in no order: a proxy sorts and filters them. Filled by Backend.
class ConversationModel : public BaseListModel
{
    Q_OBJECT

public:
    enum Role {
        IdRole = Qt::UserRole + 1,
        TitleRole,
        PersonRole,     ///< The id of the other person; empty if there are several.
        PreviewRole,    ///< The text of the last message, on one line.
        LastAuthorRole, ///< The id of its author.
        LastAtRole,     ///< Its QDateTime.
        UnreadRole,     ///< How many messages are unread.
        ActivityRole,   ///< LastAtRole in milliseconds, for sorting.
    };

    using BaseListModel::BaseListModel;

    QHash<int, QByteArray> roleNames() const override;

    /// Shows the title in Qt's item views.
    QVariant data(const QModelIndex &index, int role) const override;
};
