// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeUtils.h>

#include <QFont>
#include <QStyledItemDelegate>

#include <vector>

/// Paints a row with the roles of RowRole: an avatar, two lines, the time and what is unread. A row
/// that is not loaded shows the shape of these things.
class RowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit RowDelegate(QObject *parent = nullptr);

    /// Takes the colours of \a themeType, and the fonts at the scale of this moment.
    void refresh(OxaThemeUtils::AppThemeType themeType);

    /// Returns the height of all rows.
    int rowHeight() const;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    /// Where the parts of a row are, from left to right.
    struct Parts
    {
        QRect avatar;
        QRect title;
        QRect detail;
        QRect time;
        QRect badge;
    };

    Parts partsOf(const QStyleOptionViewItem &option, const QString &badgeText) const;
    void paintGround(QPainter *painter, const QStyleOptionViewItem &option) const;
    void paintPlaceholder(QPainter *painter, const Parts &parts) const;
    void paintAvatar(QPainter *painter, const QRect &rect, const QModelIndex &index) const;
    void paintTexts(QPainter *painter, const QStyleOptionViewItem &option, const Parts &parts,
                    const QModelIndex &index) const;
    void paintBadge(QPainter *painter, const QRect &rect, const QString &text,
                    QStyle::State state) const;

    OxaColorSet m_ground;
    OxaColorSet m_titleText;
    OxaColorSet m_detailText;
    OxaColorSet m_line;
    OxaColorSet m_focusBorder;
    OxaColorSet m_avatarText;
    OxaColorSet m_badgeGround;
    OxaColorSet m_badgeText;
    std::vector<QColor> m_avatars;
    QFont m_titleFont;
    QFont m_detailFont;
};
