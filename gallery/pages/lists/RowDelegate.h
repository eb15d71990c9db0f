// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/ItemDelegate.h"

#include <vector>

/// Paints a row with the roles of RowRole: an avatar, two lines, the time and the unread count. A
/// row that is not loaded is painted as placeholders.
class RowDelegate : public ItemDelegate
{
    Q_OBJECT

public:
    using ItemDelegate::ItemDelegate;

    void refresh(OxaThemeUtils::AppThemeType themeType) override;

    /// Returns the height of all rows.
    int rowHeight() const;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    /// The positions of a row's parts, from left to right.
    struct Parts
    {
        QRect avatar;
        QRect title;
        QRect detail;
        QRect time;
        QRect badge;
    };

    Parts partsOf(const QStyleOptionViewItem &option, const QString &badgeText) const;
    void paintPlaceholder(QPainter *painter, const Parts &parts) const;
    void paintAvatar(QPainter *painter, const QRect &rect, const QModelIndex &index) const;
    void paintTexts(QPainter *painter, const QStyleOptionViewItem &option, const Parts &parts,
                    const QModelIndex &index) const;

    OxaColorSet m_avatarText;
    std::vector<QColor> m_avatars;
};
