// SPDX-License-Identifier: Apache-2.0
#include "FixedItemRatioLayoutNotSupportScroll.h"

#include "LayoutPass_p.h"

#include <algorithm>
#include <iterator>
#include <limits>

using LayoutPass::held;

namespace {

/// Truncates \a value. A value that is too large, as with a ratio of zero, becomes the largest
/// length; NaN becomes 0.
int truncated(double value)
{
    constexpr double highest = std::numeric_limits<int>::max();
    return qIsNaN(value) ? 0 : held(static_cast<qint64>(qBound(-highest, value, highest)));
}

} // namespace

FixedItemRatioLayoutNotSupportScroll::FixedItemRatioLayoutNotSupportScroll(QWidget *parent,
                                                                           QMargins margins,
                                                                           int hSpacing,
                                                                           int vSpacing)
    : FlowLayout(parent, margins, hSpacing, vSpacing)
{
}

FixedItemRatioLayoutNotSupportScroll::FixedItemRatioLayoutNotSupportScroll(QMargins margins,
                                                                           int hSpacing,
                                                                           int vSpacing)
    : FlowLayout(margins, hSpacing, vSpacing)
{
}

FixedItemRatioLayoutNotSupportScroll::~FixedItemRatioLayoutNotSupportScroll() = default;

void FixedItemRatioLayoutNotSupportScroll::setItemData(const ItemData &data)
{
    m_itemData = { data.heightToWidthRatio, held(data.borderWidth), held(data.minimumWidth),
                   held(data.spacing) };
}

FixedItemRatioLayoutNotSupportScroll::CalculatedItemData
FixedItemRatioLayoutNotSupportScroll::getCalculatedItemData() const
{
    return m_calculatedItemData;
}

FixedItemRatioLayoutNotSupportScroll::CalculatedItemData
FixedItemRatioLayoutNotSupportScroll::getCalculatedItemData(const QSize &size) const
{
    return getMaxLayout(held(size.width()), held(size.height()), m_itemData,
                        int(getVisibleItems().size()));
}

QSize FixedItemRatioLayoutNotSupportScroll::minimumSize() const
{
    const QMargins margins = contentsMargins();
    const int width = m_itemData.minimumWidth;
    return { width + margins.left() + margins.right(),
             getItemHeightFromWidth(width, m_itemData) + margins.top() + margins.bottom() };
}

bool FixedItemRatioLayoutNotSupportScroll::hasHeightForWidth() const { return false; }

int FixedItemRatioLayoutNotSupportScroll::doLayout(const QRect &rect, bool apply) const
{
    const std::vector<QLayoutItem *> visible = getVisibleItems();
    if (visible.empty())
        return 0;
    const int count = int(visible.size());
    const QRect effective = rect.marginsRemoved(contentsMargins());
    if (!apply)
        return heightFor(effective.width(), count);

    m_calculatedItemData = getMaxLayout(effective.width(), effective.height(), m_itemData, count);
    place(visible, effective);
    return 0;
}

/// Returns the height of \a count items of the smallest width, margins included, if the layout has
/// \a width inside its margins; 0 if not even one item fits.
int FixedItemRatioLayoutNotSupportScroll::heightFor(int width, int count) const
{
    const int spacing = m_itemData.spacing;
    const int itemWidth = m_itemData.minimumWidth;
    // Without a width and a spacing the number of columns is undefined.
    const int columns = itemWidth + spacing == 0 ? 0 : (width + spacing) / (itemWidth + spacing);
    if (columns == 0)
        return 0;
    const int rows = getRowsOrColumns(count, columns);
    const QMargins margins = contentsMargins();
    return held(qint64(getItemHeightFromWidth(itemWidth, m_itemData)) * rows
                + qint64(rows - 1) * spacing + margins.top() + margins.bottom());
}

void FixedItemRatioLayoutNotSupportScroll::place(const std::vector<QLayoutItem *> &visible,
                                                 const QRect &effective) const
{
    // Copied: an item that moves may delete the layout.
    const auto [itemWidth, itemHeight, rows, columns] = m_calculatedItemData;
    const int spacing = m_itemData.spacing;
    const auto startOfRow = [&, itemWidth = itemWidth](int items) {
        return effective.left()
                + getBeginSpacing_CenterItems(effective.width(), itemWidth, items, spacing);
    };
    const int rest = int(visible.size()) % columns;
    const int rowStart = startOfRow(columns);
    const int lastRowStart = rest == 0 ? rowStart : startOfRow(rest);

    const QSize size(itemWidth, itemHeight);
    QPoint position(rowStart,
                    effective.top()
                            + getBeginSpacing_CenterItems(effective.height(), itemHeight, rows,
                                                          spacing));
    int row = 1;
    int column = 1;
    LayoutPass::LiveItems live(*this);
    for (QLayoutItem *item : visible) {
        if (live.contain(item))
            item->setGeometry(QRect(position, size));
        position.setX(held(position.x() + itemWidth + spacing));
        if (++column <= columns)
            continue;
        column = 1;
        // If rows stay empty, this is never the last one: a partial row is then not centred.
        position = { ++row == rows ? lastRowStart : rowStart,
                     held(position.y() + itemHeight + spacing) };
    }
}

std::vector<QLayoutItem *> FixedItemRatioLayoutNotSupportScroll::getVisibleItems() const
{
    std::vector<QLayoutItem *> visible;
    visible.reserve(items().size());
    std::copy_if(items().begin(), items().end(), std::back_inserter(visible),
                 [](const QLayoutItem *item) { return item && !item->isEmpty(); });
    return visible;
}

/// Returns how many rows \a count items fill with \a other columns, or the reverse.
int FixedItemRatioLayoutNotSupportScroll::getRowsOrColumns(int count, int other) const
{
    return (count - 1 + other) / other;
}

FixedItemRatioLayoutNotSupportScroll::CalculatedItemData
FixedItemRatioLayoutNotSupportScroll::getMaxLayout(int width, int height, const ItemData &data,
                                                   int count) const
{
    int bestWidth = 0;
    int bestRows = 1;
    // More rows of as many columns only make items narrower, unless the height is negative.
    const bool onlyFewest = height + data.spacing >= 0 && data.heightToWidthRatio > 0;
    int rows = 1;
    while (rows <= count) {
        const int columns = getRowsOrColumns(count, rows);
        const int itemWidth = getItemWidth(width, height, data, rows, columns);
        if (itemWidth > bestWidth) {
            bestWidth = itemWidth;
            bestRows = rows;
        }
        if (onlyFewest && columns == 1)
            break;
        rows = onlyFewest ? getRowsOrColumns(count, columns - 1) : rows + 1;
    }
    const int itemWidth = qMax(bestWidth, data.minimumWidth);
    return { itemWidth, getItemHeightFromWidth(itemWidth, data), bestRows,
             getRowsOrColumns(count, bestRows) };
}

/// Returns the width of items that fill \a width or \a height, whichever makes them smaller. The
/// spacing is added once, and not subtracted for each item.
int FixedItemRatioLayoutNotSupportScroll::getItemWidth(int width, int height, const ItemData &data,
                                                       int rows, int columns) const
{
    const float perColumn = float(width + data.spacing) / float(columns);
    const float perRow = float(height + data.spacing) / float(rows);
    return qMin(truncated(double(perColumn)),
                getItemWidthFromHeight(truncated(double(perRow)), data));
}

int FixedItemRatioLayoutNotSupportScroll::getItemWidthFromHeight(int height, ItemData data) const
{
    const int borders = 2 * data.borderWidth;
    const float inner = float(height - borders) / data.heightToWidthRatio;
    return truncated(double(inner) + 0.5 + borders);
}

int FixedItemRatioLayoutNotSupportScroll::getItemHeightFromWidth(int width, ItemData data) const
{
    const int borders = 2 * data.borderWidth;
    const float inner = float(width - borders) * data.heightToWidthRatio;
    return truncated(double(inner) + 0.5 + borders);
}

/// Returns the free space before \a count items that centres them in \a total; 0 if they don't fit.
int FixedItemRatioLayoutNotSupportScroll::getBeginSpacing_CenterItems(int total, int itemSize,
                                                                      int count, int spacing) const
{
    const qint64 rest = total - qint64(count - 1) * spacing - qint64(itemSize) * count;
    return held(qMax(rest / 2, qint64(0)));
}
