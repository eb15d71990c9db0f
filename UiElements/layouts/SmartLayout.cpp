// SPDX-License-Identifier: Apache-2.0
#include "SmartLayout.h"

#include "ItemSpacing_p.h"
#include "LayoutPass_p.h"

#include <QWidget>

using LayoutPass::held;

namespace {

constexpr int noLimit = -1;

struct Placement
{
    std::size_t row;
    QRect rect;
    QLayoutItem *item;
};

/// The positions of the items of one pass before rows are aligned, and each row's spare width.
class Placements
{
public:
    explicit Placements(std::size_t itemCount) { m_placements.reserve(itemCount); }

    void startRow() { ++m_row; }

    /// Adds an item to the row, which then ends \a spareWidth before the layout's right edge.
    void add(const QRect &rect, QLayoutItem *item, int spareWidth)
    {
        m_placements.push_back({ m_row, rect, item });
        m_spareWidths.resize(m_row + 1);
        m_spareWidths[m_row] = spareWidth;
    }

    const std::vector<Placement> &all() const { return m_placements; }
    int spareWidth(std::size_t row) const { return m_spareWidths[row]; }

private:
    std::vector<Placement> m_placements;
    std::vector<int> m_spareWidths;
    std::size_t m_row = 0;
};

} // namespace

SmartLayout::SmartLayout(QWidget *parent, QMargins margins, int hSpacing, int vSpacing,
                         Qt::AlignmentFlag alignment, int maximumItemsPerRow, bool useWidgetSizing)
    : FlowLayout(parent, margins, hSpacing, vSpacing),
      m_maximumItemsPerRow(maximumItemsPerRow),
      m_useWidgetSizing(useWidgetSizing)
{
    setAlignment(alignment);
}

SmartLayout::~SmartLayout() = default;

void SmartLayout::setMaximumItemsPerRow(int value) { m_maximumItemsPerRow = value; }

void SmartLayout::setFixedItemsPerRow(int value) { m_fixedItemsPerRow = value; }

void SmartLayout::clear()
{
    while (QLayoutItem *item = takeAt(0)) {
        if (QWidget *widget = item->widget())
            widget->deleteLater();
    }
}

int SmartLayout::doLayout(const QRect &rect, bool apply) const
{
    const QMargins margins = contentsMargins();
    const QRect effective = rect.marginsRemoved(margins);
    ItemSpacing spacing(*this);
    Placements placements(apply ? items().size() : 0);
    QPoint position = effective.topLeft();
    int lineHeight = 0;
    int index = 0;
    int rowStart = 0;
    int lastRowCount = m_maximumItemsPerRow;
    for (QLayoutItem *item : items()) {
        spacing.take(*item);
        const QSize size = sizeOf(*item);
        const int step = size.width() + spacing.x();
        // A row that wrapped early lowers the limit, so that the rows below line up with it.
        const int itemLimit = qMin(m_maximumItemsPerRow, lastRowCount);
        if (shouldBreakLine(position.x() + step, spacing.x(), lineHeight, itemLimit, effective,
                            index)) {
            placements.startRow();
            lastRowCount = index - rowStart;
            rowStart = index;
            position = { effective.left(), held(position.y() + spacing.y() + lineHeight) };
            lineHeight = 0;
        }
        if (apply) {
            const QRect placed(position, placedSizeOf(*item, size));
            placements.add(placed, item, effective.right() - placed.right());
        }
        position.setX(held(position.x() + step));
        lineHeight = qMax(lineHeight, size.height());
        ++index;
    }
    const int height = position.y() + lineHeight - rect.y() + margins.bottom();
    LayoutPass::LiveItems live(*this);
    for (const Placement &each : placements.all()) {
        if (live.contain(each.item))
            place(*each.item, each.rect.translated(shiftFor(placements.spareWidth(each.row)), 0));
    }
    return height;
}

bool SmartLayout::shouldBreakLine(int nextX, int spaceX, int lineHeight, int itemLimit,
                                  const QRect &effectiveRect, int index) const
{
    if (m_fixedItemsPerRow >= 1)
        return index != 0 && index % m_fixedItemsPerRow == 0;
    // A row of items without a height never wraps for lack of width.
    if (nextX - spaceX > effectiveRect.right() && lineHeight > 0)
        return true;
    if (m_maximumItemsPerRow == noLimit || index == 0)
        return false;
    return itemLimit != 0 && index % itemLimit == 0;
}

QSize SmartLayout::sizeOf(QLayoutItem &item) const
{
    const QWidget *widget = m_useWidgetSizing ? item.widget() : nullptr;
    return held(widget ? widget->sizeHint() : item.sizeHint());
}

/// Returns the size that \a item gets if it was measured as \a size.
QSize SmartLayout::placedSizeOf(QLayoutItem &item, const QSize &size) const
{
    const QWidget *widget = m_maximumItemsPerRow == 1 ? item.widget() : nullptr;
    return widget ? held(widget->sizeHint()) : size;
}

/// Returns how far to the right a row with \a spareWidth is moved.
int SmartLayout::shiftFor(int spareWidth) const
{
    if (alignment() == Qt::AlignLeft)
        return 0;
    // Exactly this value: Qt::AlignHCenter alone moves rows to the right, as any other value does.
    return alignment() == Qt::AlignCenter ? spareWidth / 2 : spareWidth;
}

void SmartLayout::place(QLayoutItem &item, const QRect &rect) const
{
    QWidget *widget = m_useWidgetSizing ? item.widget() : nullptr;
    if (widget)
        widget->setGeometry(rect);
    else
        item.setGeometry(rect);
}
