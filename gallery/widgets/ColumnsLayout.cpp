// SPDX-License-Identifier: Apache-2.0
#include "ColumnsLayout.h"

#include <QWidget>

#include <algorithm>

namespace {

int heightOf(const QLayoutItem &item, int width)
{
    const int height = item.hasHeightForWidth() ? item.heightForWidth(width)
                                                : item.sizeHint().height();
    return qMax(height, item.minimumSize().height());
}

} // namespace

ColumnsLayout::ColumnsLayout(int hSpacing, int vSpacing, QWidget *parent)
    : FlowLayout(parent, QMargins(), hSpacing, vSpacing)
{
}

void ColumnsLayout::addWideWidget(QWidget *widget)
{
    addWidget(widget);
    m_wideItems.push_back(items().back());
}

bool ColumnsLayout::isWide(const QLayoutItem *item) const
{
    return std::find(m_wideItems.begin(), m_wideItems.end(), item) != m_wideItems.end();
}

ColumnsLayout::Columns ColumnsLayout::columnsIn(int width) const
{
    int widest = 0;
    for (const QLayoutItem *item : items()) {
        if (!isWide(item))
            widest = qMax(widest, item->minimumSize().width());
    }
    const int half = (width - horizontalSpacing()) / 2;
    return widest <= half ? Columns { 2, half } : Columns { 1, width };
}

std::vector<ColumnsLayout::Row> ColumnsLayout::rowsIn(int width) const
{
    const Columns columns = columnsIn(width);
    std::vector<Row> rows;
    for (QLayoutItem *item : items()) {
        if (item->isEmpty())
            continue;
        const int itemWidth = isWide(item) ? width : columns.width;
        const bool startsRow = rows.empty() || isWide(item) || isWide(rows.back().items.front())
                || rows.back().items.size() == columns.count;
        if (startsRow)
            rows.push_back({ {}, itemWidth, 0 });
        Row &row = rows.back();
        row.items.push_back(item);
        row.height = qMax(row.height, heightOf(*item, itemWidth));
    }
    return rows;
}

void ColumnsLayout::place(const Row &row, const QRect &area) const
{
    const Qt::LayoutDirection direction = parentWidget()->layoutDirection();
    QRect cell(area.topLeft(), QSize(row.itemWidth, area.height()));
    for (QLayoutItem *item : row.items) {
        item->setGeometry(QStyle::visualRect(direction, area, cell));
        cell.translate(row.itemWidth + horizontalSpacing(), 0);
    }
}

int ColumnsLayout::doLayout(const QRect &rect, bool apply) const
{
    const QRect area = rect.marginsRemoved(contentsMargins());
    const std::vector<Row> rows = rowsIn(area.width());
    int y = area.top();
    for (const Row &row : rows) {
        const int heightLeft = area.bottom() + 1 - y;
        const int height = &row == &rows.back() ? qMax(row.height, heightLeft) : row.height;
        if (apply)
            place(row, QRect(area.left(), y, area.width(), height));
        y += row.height + verticalSpacing();
    }
    return qMax(0, y - verticalSpacing() - rect.top()) + contentsMargins().bottom();
}
