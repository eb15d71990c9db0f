// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSortFilterProxyModel>

/// The conversations as the user wants them: those with unread messages first, then by activity.
/// The filter is for their titles.
class ConversationProxy : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit ConversationProxy(QObject *parent = nullptr);

    /// Shows only conversations with unread messages.
    void setUnreadOnly(bool isUnreadOnly);

    /// Keeps the conversation \a id where it is, although it is read now, until another one is
    /// kept.
    void keep(const QString &id);

    /// The index of the conversation \a id, which is not valid if that is not shown.
    QModelIndex indexOf(const QString &id) const;

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    bool countsAsUnread(const QModelIndex &source) const;

    QString m_kept;
    bool m_isKeptUnread = false;
    bool m_isUnreadOnly = false;
};
