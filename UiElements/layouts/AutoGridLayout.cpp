// SPDX-License-Identifier: Apache-2.0
#include "AutoGridLayout.h"

#include "ItemSpacing_p.h"
#include "LayoutPass_p.h"

#include <algorithm>

using LayoutPass::held;

namespace {

struct Cell
{
    QRect rect;
    QLayoutItem *item;
};

/// The cells of one pass, by row and then by column.
class Table
{
public:
    explicit Table(std::size_t itemCount) { m_cells.reserve(itemCount); }

    void add(const QRect &rect, QLayoutItem *item) { m_cells.push_back({ rect, item }); }

    void startRow()
    {
        m_rowAbove = m_row;
        m_row = m_cells.size();
    }

    /// True when the next cell is the first of its row.
    bool isAtStartOfRow() const { return m_cells.size() == m_row; }

    /// Returns the cell above the next one, or null.
    const Cell *above() const
    {
        const std::size_t position = m_rowAbove + (m_cells.size() - m_row);
        return position < m_row ? &m_cells[position] : nullptr;
    }

    /// Returns where the last row ends; 0 without cells.
    int bottom() const
    {
        const auto isHigher = [](const Cell &a, const Cell &b) {
            return a.rect.bottom() < b.rect.bottom();
        };
        const auto lowest = std::max_element(m_cells.begin() + std::ptrdiff_t(m_row), m_cells.end(),
                                             isHigher);
        return lowest == m_cells.end() ? 0 : lowest->rect.bottom() + 1;
    }

    void apply(LayoutPass::LiveItems live) const
    {
        for (const Cell &cell : m_cells) {
            if (live.contain(cell.item))
                cell.item->setGeometry(cell.rect);
        }
    }

private:
    std::vector<Cell> m_cells;
    std::size_t m_rowAbove = 0;
    std::size_t m_row = 0;
};

} // namespace

AutoGridLayout::~AutoGridLayout() = default;

int AutoGridLayout::doLayout(const QRect &rect, bool apply) const
{
    const QMargins margins = contentsMargins();
    const QRect effective = rect.marginsRemoved(margins);
    ItemSpacing spacing(*this);
    Table table(items().size());
    QPoint position = effective.topLeft();
    for (QLayoutItem *item : items()) {
        spacing.take(*item);
        const QSize size = held(item->sizeHint());
        if (position.x() + size.width() > effective.right() && !table.isAtStartOfRow()) {
            table.startRow();
            position.setX(effective.left());
        }
        // Without a cell above, an item is placed as high as the one before it.
        if (const Cell *above = table.above())
            position.setY(held(above->rect.bottom() + 1 + spacing.y()));
        table.add(QRect(position, size), item);
        position.setX(held(position.x() + size.width() + spacing.x()));
    }
    if (apply)
        table.apply(LayoutPass::LiveItems(*this));
    return table.bottom() - rect.y() + margins.bottom();
}
