// SPDX-License-Identifier: Apache-2.0
#include "WrapLayout.h"

#include <QWidget>

WrapLayout::WrapLayout(int spacing, QWidget *parent)
    : FlowLayout(parent, QMargins(), spacing, spacing)
{
}

std::vector<WrapLayout::Row> WrapLayout::rowsIn(int width) const
{
    std::vector<Row> rows;
    for (QLayoutItem *item : items()) {
        if (item->isEmpty())
            continue;
        const QSize size = item->sizeHint();
        if (rows.empty() || rows.back().size.width() + horizontalSpacing() + size.width() > width)
            rows.push_back({ {}, QSize(-horizontalSpacing(), 0) });
        Row &row = rows.back();
        row.items.push_back(item);
        row.size = { row.size.width() + horizontalSpacing() + size.width(),
                     qMax(row.size.height(), size.height()) };
    }
    return rows;
}

void WrapLayout::place(const Row &row, const QRect &area, int y) const
{
    const Qt::LayoutDirection direction = parentWidget()->layoutDirection();
    int x = area.left();
    for (QLayoutItem *item : row.items) {
        const int width = qMin(item->sizeHint().width(), area.width());
        const QRect rect(x, y, width, row.size.height());
        item->setGeometry(QStyle::visualRect(direction, area, rect));
        x += width + horizontalSpacing();
    }
}

int WrapLayout::doLayout(const QRect &rect, bool apply) const
{
    const QRect area = rect.marginsRemoved(contentsMargins());
    int y = area.top();
    for (const Row &row : rowsIn(area.width())) {
        if (apply)
            place(row, area, y);
        y += row.size.height() + verticalSpacing();
    }
    return qMax(0, y - verticalSpacing() - rect.top()) + contentsMargins().bottom();
}
