// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/ItemDelegate.h"

/// Paints the cells of a ColorSetModel: headings, names, and colours as swatches.
class ColorSetDelegate : public ItemDelegate
{
    Q_OBJECT

public:
    using ItemDelegate::ItemDelegate;

    /// Returns the height of a colour set's row.
    int rowHeight() const;

    /// Returns the width that a column of swatches needs.
    int swatchColumnWidth() const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    void paintName(QPainter *painter, const QStyleOptionViewItem &option,
                   const QString &name) const;
    void paintSwatch(QPainter *painter, const QRect &rect, const QModelIndex &index) const;
};
