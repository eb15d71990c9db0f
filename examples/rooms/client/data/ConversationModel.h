// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Records.h"

#include <UiElements/models/BaseListModel.h>

#include <QTimer>

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
        LastAtRole,     ///< When that was, in milliseconds since 1970.
        UnreadRole,     ///< How many messages are unread.
    };

    explicit ConversationModel(QObject *parent = nullptr);

    QHash<int, QByteArray> roleNames() const override;

    /// Shows the title in Qt's item views.
    QVariant data(const QModelIndex &index, int role) const override;

    /// The index of the conversation \a id, which is not valid if there is none.
    QModelIndex find(const QString &id) const { return index(getRowIndex(id.toStdString())); }

    /// The row of a conversation as the protocol has it.
    static ModelRow row(const QJsonObject &conversation);

    /// The last message of \a conversation is \a message, and unread or not. Shown at
    /// once, or half a second after others were, together with all until then.
    void arrive(const QString &conversation, const Message &message, bool isUnread);

    /// Nothing in \a conversation is unread. Returns whether something was.
    bool markRead(const QString &conversation);

private:
    struct Arrival
    {
        Message last;
        int unread = 0;
    };

    void showArrivals();

    QHash<QString, Arrival> m_arrivals;
    QTimer m_showing;
};
