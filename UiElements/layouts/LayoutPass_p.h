// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/layouts/FlowLayout.h>

#include <QPointer>

/// What the passes of all layouts share.
namespace LayoutPass {

/// Returns \a value, or the nearest one whose triple is still an int: sums of positions, sizes and
/// spacings don't overflow, however large the items want to be.
inline int held(qint64 value)
{
    constexpr qint64 farthest = qint64(1) << 29;
    return int(qBound(-farthest, value, farthest));
}

/// The same for both lengths of \a size.
inline QSize held(const QSize &size) { return { held(size.width()), held(size.height()) }; }

/// Tells which items are still there while a pass moves them in their order: a widget that moves
/// may have others deleted, or the layout.
class LiveItems
{
public:
    explicit LiveItems(const FlowLayout &layout) : m_layout(&layout) { }

    /// True while \a item is in the layout.
    bool contain(const QLayoutItem *item)
    {
        const int count = m_layout ? m_layout->count() : 0;
        for (int tried = 0; tried < count; ++tried) {
            // The item asked for last is followed by the one asked for now, hidden ones apart.
            if (m_next >= count)
                m_next = 0;
            if (m_layout->itemAt(m_next++) == item)
                return true;
        }
        return false;
    }

private:
    const QPointer<const FlowLayout> m_layout;
    int m_next = 0;
};

} // namespace LayoutPass
