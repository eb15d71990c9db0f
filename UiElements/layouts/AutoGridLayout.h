// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/layouts/FlowLayout.h>

/// A layout whose items flow from left to right and wrap like the words of a text. The top of each
/// item is placed under the item of the same column in the row above: rows of unequal heights pack
/// tightly.
///
/// It is made for items of one width. Columns are counted in each row: with unequal widths they are
/// not aligned, and an item may overlap one of a row further up. An item whose right edge would
/// touch the layout's wraps already, except at the start of a row.
///
/// The height that the items need is that of the last row: an item of an earlier row that reaches
/// lower does not count, and overflows.
class UIELEMENTS_EXPORT AutoGridLayout : public FlowLayout
{
    Q_OBJECT

public:
    using FlowLayout::FlowLayout;
    ~AutoGridLayout() override;

private:
    int doLayout(const QRect &rect, bool apply) const override;
};
