// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/layouts/FlowLayout.h>

#include <QPointer>

/// What the passes of all layouts share.
namespace LayoutPass {

/// Returns \a value, limited so that its triple is still an int: sums of positions, sizes and
/// spacings then don't overflow.
inline int held(qint64 value)
{
    constexpr qint64 farthest = qint64(1) << 29;
    return int(qBound(-farthest, value, farthest));
}

/// The same for both lengths of \a size.
inline QSize held(const QSize &size) { return { held(size.width()), held(size.height()) }; }

/// Tells which items still exist while a pass moves them in their order: moving a widget may delete
/// others, or the layout.
class LiveItems
{
public:
    explicit LiveItems(const FlowLayout &layout) : m_layout(&layout) { }

    /// True while \a item is in the layout.
    bool contain(const QLayoutItem *item)
    {
        const int count = m_layout ? m_layout->count() : 0;
        for (int tried = 0; tried < count; ++tried) {
            // The item of this call follows that of the last call, apart from hidden ones.
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
