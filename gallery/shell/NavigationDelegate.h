// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/ItemDelegate.h"

/// Paints the rows of the navigation: pages, and the headings of their groups, which are disabled.
class NavigationDelegate : public ItemDelegate
{
    Q_OBJECT

public:
    explicit NavigationDelegate(QObject *parent = nullptr);

    void refresh(OxaThemeUtils::AppThemeType themeType) override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    /// The colours of a page's row.
    struct Colors
    {
        OxaColorSet ground;
        OxaColorSet text;
        QColor focusBorder;
    };
    void paintBackground(QPainter *painter, const QRect &rect, const Colors &colors,
                         QStyle::State state) const;

    Colors m_page;
    Colors m_currentPage;
    QFont m_groupFont;
};
