// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/layouts/FlowLayout.h>

class QStyle;

/// The spacing between the items of a layout, computed for one pass over them.
///
/// The layout and its parent are asked once, since their answers don't change during a pass. If
/// they leave it to the items' own styles, each style is asked once for a run of items.
class ItemSpacing
{
public:
    explicit ItemSpacing(const FlowLayout &layout);

    /// Changes to the spacing of \a item.
    void take(QLayoutItem &item)
    {
        if (m_leavesToStyle)
            askStyleOf(item);
    }

    /// Returns the pixels after the item, to its right.
    int x() const { return m_x; }

    /// Returns the pixels between the item and the rows above and below.
    int y() const { return m_y; }

private:
    void askStyleOf(QLayoutItem &item);

    const int m_ownX;
    const int m_ownY;
    const bool m_leavesToStyle;
    int m_x;
    int m_y;
    const QStyle *m_style = nullptr;
};
