// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/layouts/FixedItemRatioLayoutNotSupportScroll.h>

#include <QMargins>

/// The settings of the playground.
struct LayoutSettings
{
    /// Which layout it is.
    enum class Kind { AutoGrid, Smart, FixedRatio };

    /// Which sizes of the tiles differ.
    enum class Sizes { Equal, Heights, Both };

    Kind kind = Kind::AutoGrid;
    Sizes sizes = Sizes::Heights;
    int tileCount = 240;
    QMargins margins { 8, 8, 8, 8 };
    int horizontalSpacing = 6; ///< -1 for the style's.
    int verticalSpacing = 6;

    Qt::AlignmentFlag alignment = Qt::AlignLeft;
    int maximumItemsPerRow = -1; ///< -1 for no limit.
    int fixedItemsPerRow = 0;    ///< 0 for none.

    FixedItemRatioLayoutNotSupportScroll::ItemData itemData { 0.5625F, 4, 24, 0 };
};
