// SPDX-License-Identifier: Apache-2.0
#include "RowHeights.h"

#include "shell/Looks.h"

#include <QElapsedTimer>

RowHeights::RowHeights(Measure measure, QObject *parent)
    : QStyledItemDelegate(parent), m_measure(std::move(measure))
{
}

void RowHeights::clear()
{
    m_rows.clear();
    m_unknown = 0;
}

void RowHeights::insert(int first, int count)
{
    m_rows.insert(m_rows.begin() + first, size_t(count), Row());
    m_unknown += count;
}

void RowHeights::remove(int first, int count)
{
    for (int row = first; row < first + count; ++row)
        m_unknown -= m_rows[size_t(row)].measured.height < 0 ? 1 : 0;
    m_rows.erase(m_rows.begin() + first, m_rows.begin() + first + count);
}

void RowHeights::forget(int row)
{
    Size &measured = m_rows[size_t(row)].measured;
    m_unknown += measured.height < 0 ? 0 : 1;
    measured = {};
}

void RowHeights::forgetAll()
{
    for (Row &row : m_rows)
        row.measured = {};
    m_unknown = count();
}

bool RowHeights::measure(int first, int count)
{
    bool isAnyOther = false;
    const int end = qMin(first + count, this->count());
    for (int row = qMax(0, first); row < end; ++row)
        isAnyOther |= measureRow(row);
    return isAnyOther;
}

bool RowHeights::measureFor(int ms, int row)
{
    QElapsedTimer timer;
    timer.start();
    for (int above = row; above >= 0 && m_unknown > 0 && timer.elapsed() < ms; --above)
        measureRow(above);
    for (int below = row + 1; below < count() && m_unknown > 0 && timer.elapsed() < ms; ++below)
        measureRow(below);
    return m_unknown > 0;
}

bool RowHeights::measureRow(int row)
{
    Row &entry = m_rows[size_t(row)];
    if (entry.measured.height < 0) {
        entry.measured = m_measure(row);
        --m_unknown;
    }
    return entry.measured.height != entry.height;
}

QSize RowHeights::contentSize(int row)
{
    measureRow(row);
    return m_rows[size_t(row)].measured.content;
}

void RowHeights::take()
{
    for (Row &row : m_rows) {
        if (row.measured.height >= 0)
            row.height = row.measured.height;
    }
}

void RowHeights::paint(QPainter *painter, const QStyleOptionViewItem &option,
                       const QModelIndex &) const
{
    if (option.state & QStyle::State_HasFocus)
        Looks::paintFocus(painter, option.rect.adjusted(2, 0, -2, 0));
}

QSize RowHeights::sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const
{
    return { 1, index.row() < count() ? m_rows[size_t(index.row())].height : 0 };
}
