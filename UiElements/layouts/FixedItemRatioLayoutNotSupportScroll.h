// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/layouts/FlowLayout.h>

/// A layout that gives all visible items one size with a fixed ratio, as large as the rectangle
/// allows, and centres the grid of them.
///
/// It is made for tiles that fill the available space, as in a meeting, and has no height for
/// width. Don't put it into a scroll area: its height would be that of one item.
///
/// - The number of rows is the smallest one that makes items widest.
/// - The spacing between items is not subtracted from their size, so that a row may be too wide; it
///   then starts at the left edge.
/// - Rows may stay empty. The grid is centred as if they were filled, and the last row of items
///   stays at the left.
class UIELEMENTS_EXPORT FixedItemRatioLayoutNotSupportScroll : public FlowLayout
{
    Q_OBJECT

public:
    /// The size and the spacing of items. Lengths are in pixels.
    struct ItemData
    {
        float heightToWidthRatio = 0.5625F; ///< Height over width inside of the border.
        int borderWidth = 4;                ///< On each side, and not part of the ratio.
        int minimumWidth = 0;               ///< The smallest width of an item.
        int spacing = 0;                    ///< Between items, both ways.
    };

    /// The result of a layout pass.
    struct CalculatedItemData
    {
        int itemWidth = 0;
        int itemHeight = 0;
        int rows = 0;
        int columns = 0;
    };

    /// Makes the layout of \a parent. The spacings are stored but not used: see ItemData.
    FixedItemRatioLayoutNotSupportScroll(QWidget *parent, QMargins margins, int hSpacing,
                                         int vSpacing);

    /// Makes a layout without a parent.
    FixedItemRatioLayoutNotSupportScroll(QMargins margins, int hSpacing, int vSpacing);
    ~FixedItemRatioLayoutNotSupportScroll() override;

    /// Sets the size and the spacing of items from the next layout pass on. Does not invalidate.
    void setItemData(const ItemData &data);

    /// Returns the result of the last pass that moved items; zeros before the first one.
    CalculatedItemData getCalculatedItemData() const;

    /// Returns the result of a pass with \a size for the items, margins excluded.
    CalculatedItemData getCalculatedItemData(const QSize &size) const;

    /// Returns the size of one item of the minimum width plus the margins, for any number of items.
    QSize minimumSize() const override;

    /// Returns false.
    bool hasHeightForWidth() const override;

private:
    int doLayout(const QRect &rect, bool apply) const override;
    int heightFor(int width, int count) const;
    void place(const std::vector<QLayoutItem *> &visible, const QRect &effective) const;
    std::vector<QLayoutItem *> getVisibleItems() const;
    int getRowsOrColumns(int count, int other) const;
    CalculatedItemData getMaxLayout(int width, int height, const ItemData &data, int count) const;
    int getItemWidth(int width, int height, const ItemData &data, int rows, int columns) const;
    int getItemWidthFromHeight(int height, ItemData data) const;
    int getItemHeightFromWidth(int width, ItemData data) const;
    int getBeginSpacing_CenterItems(int total, int itemSize, int count, int spacing) const;

    ItemData m_itemData;
    /// Stored by a pass, which is a const operation.
    mutable CalculatedItemData m_calculatedItemData;
};
