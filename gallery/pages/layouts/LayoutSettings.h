// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/layouts/FixedItemRatioLayoutNotSupportScroll.h>

#include <QMargins>

/// What the playground lays its tiles out by.
struct LayoutSettings
{
    /// Which layout it is.
    enum class Kind { AutoGrid, Smart, FixedRatio };

    /// How the sizes of tiles differ.
    enum class Sizes { Equal, Heights, Both };

    Kind kind = Kind::AutoGrid;
    Sizes sizes = Sizes::Heights;
    int tileCount = 240;
    QMargins margins { 8, 8, 8, 8 };
    int horizontalSpacing = 6; ///< -1 leaves it to the style.
    int verticalSpacing = 6;

    Qt::AlignmentFlag alignment = Qt::AlignLeft;
    int maximumItemsPerRow = -1; ///< -1 for no limit.
    int fixedItemsPerRow = 0;    ///< 0 for none.

    FixedItemRatioLayoutNotSupportScroll::ItemData itemData { 0.5625F, 4, 24, 0 };
};
