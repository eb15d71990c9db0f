// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/layouts/FlowLayout.h>

/// A layout that gives all visible items one size of a fixed proportion, as large as the rectangle
/// allows, and centres the grid of them.
///
/// For tiles that fill what there is, as in a meeting: the layout has no height for a width. Do not
/// put it into a scroll area; its height would be that of one item.
///
/// - The number of rows is the one that makes items widest, and the smallest of those that do.
/// - The room between items is not taken off their size, so that a row may be too wide; it starts
///   at the left edge then.
/// - It may leave rows empty. The grid is centred as if they were there, and the last row of items
///   stays at the left.
class UIELEMENTS_EXPORT FixedItemRatioLayoutNotSupportScroll : public FlowLayout
{
    Q_OBJECT

public:
    /// What items look like. Lengths are in pixels.
    struct ItemData
    {
        float heightToWidthRatio = 0.5625F; ///< Height over width inside of the border.
        int borderWidth = 4;                ///< On each side, and not part of the ratio.
        int minimumWidth = 0;               ///< The smallest width of an item.
        int spacing = 0;                    ///< Between items, both ways.
    };

    /// How a layout pass came out.
    struct CalculatedItemData
    {
        int itemWidth = 0;
        int itemHeight = 0;
        int rows = 0;
        int columns = 0;
    };

    /// Makes the layout of \a parent. The spacings are kept, but not used: see ItemData.
    FixedItemRatioLayoutNotSupportScroll(QWidget *parent, QMargins margins, int hSpacing,
                                         int vSpacing);

    /// Makes a layout without a parent.
    FixedItemRatioLayoutNotSupportScroll(QMargins margins, int hSpacing, int vSpacing);
    ~FixedItemRatioLayoutNotSupportScroll() override;

    /// Sets what items look like. Does not invalidate: it counts from the next layout pass.
    void setItemData(const ItemData &data);

    /// Returns how the last pass came out that moved items; zeros before the first one.
    CalculatedItemData getCalculatedItemData() const;

    /// Returns how a pass would come out with \a size for the items, margins excluded.
    CalculatedItemData getCalculatedItemData(const QSize &size) const;

    /// Returns the size of one item of the minimum width plus the margins, however many there are.
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
    /// What a pass, which is a const operation, leaves for its clients.
    mutable CalculatedItemData m_calculatedItemData;
};
