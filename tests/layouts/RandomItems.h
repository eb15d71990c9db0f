// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Blocks.h"
#include "support/RandomSeed.h"

#include <QTest>

/// Random items, and checks that hold for every layout.
namespace RandomItems {

constexpr int caseCount = 2000;

/// The input of a layout. Sizes are at least one pixel each way, so that rows can be told apart.
struct Case
{
    std::vector<QSize> sizes;
    QMargins margins;
    int xSpacing;
    int ySpacing;
    QRect rect;

    QRect effective() const { return rect.marginsRemoved(margins); }
};

inline Case makeCase(std::mt19937 &generator)
{
    const auto from = [&generator](int lowest, int highest) {
        return randomFrom(generator, lowest, highest);
    };
    Case given;
    given.sizes.resize(std::size_t(from(1, 40)));
    const int widest = from(1, 120);
    const int highest = from(1, 80);
    for (QSize &size : given.sizes)
        size = QSize(from(1, widest), from(1, highest));
    given.margins = QMargins(from(0, 20), from(0, 20), from(0, 20), from(0, 20));
    given.xSpacing = from(0, 12);
    given.ySpacing = from(0, 12);
    given.rect = QRect(from(-50, 50), from(-50, 50), from(0, 500), from(0, 500));
    return given;
}

/// Returns \a given as a text for failure messages.
inline QString text(const Case &given)
{
    QStringList sizes;
    for (const QSize &size : given.sizes)
        sizes += QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
    return QStringLiteral("%1 in %2, margins %3 %4 %5 %6, spacing %7 %8")
            .arg(sizes.join(QLatin1Char(' ')), Blocks::text(given.rect))
            .arg(given.margins.left())
            .arg(given.margins.top())
            .arg(given.margins.right())
            .arg(given.margins.bottom())
            .arg(given.xSpacing)
            .arg(given.ySpacing);
}

using Row = std::vector<QRect>;

/// Returns \a rects by rows. \a isNext gets the item before and an item, and returns whether that
/// item begins a row.
template <typename IsNext>
std::vector<Row> rowsIf(const std::vector<QRect> &rects, IsNext isNext)
{
    std::vector<Row> rows;
    for (const QRect &rect : rects) {
        if (rows.empty() || isNext(rect, rows.back().back()))
            rows.emplace_back();
        rows.back().push_back(rect);
    }
    return rows;
}

/// Returns \a rects by rows that begin where an item is not to the right of the one before it.
inline std::vector<Row> rowsFromLeft(const std::vector<QRect> &rects)
{
    return rowsIf(rects, [](const QRect &rect, const QRect &before) {
        return rect.left() <= before.left();
    });
}

/// Returns \a rects by rows whose items have the same top.
inline std::vector<Row> rowsByTop(const std::vector<QRect> &rects)
{
    return rowsIf(rects, [](const QRect &rect, const QRect &before) {
        return rect.top() != before.top();
    });
}

/// Returns the lower edge of a row.
inline int endOf(const Row &row)
{
    int end = row.front().bottom() + 1;
    for (const QRect &rect : row)
        end = qMax(end, rect.bottom() + 1);
    return end;
}

inline bool haveOverlap(const std::vector<QRect> &rects)
{
    for (std::size_t i = 0; i < rects.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (rects[i].intersects(rects[j]))
                return true;
        }
    }
    return false;
}

/// Returns what is wrong with passes of \a layout in \a rect; empty when nothing is.
template <typename LayoutClass>
QString wrongInPasses(LayoutClass &layout, const QRect &rect)
{
    const std::vector<QRect> untouched = Blocks::rects(layout);
    const int measured = layout.doLayout(rect, false);
    if (Blocks::rects(layout) != untouched)
        return QStringLiteral("measuring moves items");
    if (layout.doLayout(rect, true) != measured)
        return QStringLiteral("measuring and applying disagree");
    const std::vector<QRect> placed = Blocks::rects(layout);
    layout.setGeometry(rect);
    if (Blocks::rects(layout) != placed)
        return QStringLiteral("a second pass moves items");
    if (layout.doLayout(rect.translated(300, 700), true) != measured)
        return QStringLiteral("elsewhere another height is needed");
    for (std::size_t i = 0; i < placed.size(); ++i) {
        if (layout.itemAt(int(i))->geometry() != placed[i].translated(300, 700))
            return QStringLiteral("elsewhere items stand otherwise");
    }
    if (layout.heightForWidth(rect.width()) != measured)
        return QStringLiteral("the height for the width is another one");
    return {};
}

/// Calls \a check with \a caseCount random cases until it returns a text, and fails with that.
template <typename Check>
void forRandomCases(Check check)
{
    std::mt19937 generator = seededGenerator();
    for (int i = 0; i < caseCount; ++i) {
        const Case given = makeCase(generator);
        const QString wrong = check(given, generator);
        if (!wrong.isEmpty())
            QFAIL(qPrintable(wrong + QStringLiteral(": ") + text(given)));
    }
}

} // namespace RandomItems
