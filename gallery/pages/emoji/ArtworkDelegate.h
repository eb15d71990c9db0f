// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeUtils.h>

#include <QFont>
#include <QStyledItemDelegate>

/// Paints an emoji's picture with its stem below.
class ArtworkDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ArtworkDelegate(QObject *parent = nullptr);

    /// Takes the colours of \a themeType, and the fonts at the scale of this moment.
    void refresh(OxaThemeUtils::AppThemeType themeType);

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    void paintGround(QPainter *painter, const QStyleOptionViewItem &option) const;

    OxaColorSet m_ground;
    OxaColorSet m_text;
    OxaColorSet m_focusBorder;
    QFont m_font;
};
