// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFont>
#include <QStyledItemDelegate>

class Backend;

/// Paints a conversation: who, the last message, when that was, and how many are unread.
class ConversationDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    ConversationDelegate(Backend *backend, QObject *parent);

    /// Takes the fonts and settings again.
    void refresh();

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    /// Where the picture or the name is that \a position is in; empty if it is in neither.
    QRect personAt(const QPoint &position, const QStyleOptionViewItem &option) const;

private:
    /// Where the parts of a row are, from left to right.
    struct Parts
    {
        QRect picture;
        QRect upper; ///< The line of the name.
        QRect lower; ///< The line of the last message.
    };

    Parts partsOf(const QStyleOptionViewItem &option) const;
    void paintGround(QPainter *painter, const QStyleOptionViewItem &option) const;
    void paintTexts(QPainter *painter, Parts parts, const QStyleOptionViewItem &option,
                    const QModelIndex &index) const;
    int paintBadge(QPainter *painter, const QRect &line, int count) const;
    QString preview(const QModelIndex &index) const;

    Backend *const m_backend;
    QFont m_titleFont;
    QFont m_unreadFont;
    QFont m_textFont;
    bool m_isPreviewShown = true;
};
