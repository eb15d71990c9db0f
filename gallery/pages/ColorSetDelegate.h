// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeUtils.h>

#include <QFont>
#include <QStyledItemDelegate>

/// Paints the cells of a ColorSetModel: headings, names, and colours as swatches.
class ColorSetDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ColorSetDelegate(QObject *parent = nullptr);

    /// Takes the colours of \a themeType, and the fonts at the scale of this moment.
    void refresh(OxaThemeUtils::AppThemeType themeType);

    /// Returns the height of a colour set's row.
    int rowHeight() const;

    /// Returns the height of a heading's row.
    int headingHeight() const;

    /// Returns the width that a column of swatches needs.
    int swatchColumnWidth() const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    void paintGround(QPainter *painter, const QStyleOptionViewItem &option) const;
    void paintHeading(QPainter *painter, const QRect &rect, const QString &text) const;
    void paintName(QPainter *painter, const QRect &rect, const QString &name) const;
    void paintSwatch(QPainter *painter, const QRect &rect, const QModelIndex &index) const;

    OxaColorSet m_ground;
    OxaColorSet m_headingText;
    OxaColorSet m_nameText;
    OxaColorSet m_valueText;
    OxaColorSet m_line;
    OxaColorSet m_focusBorder;
    QFont m_headingFont;
    QFont m_nameFont;
    QFont m_valueFont;
};
