// SPDX-License-Identifier: Apache-2.0
#include "RandomItems.h"
#include "support/TestMain.h"

#include <UiElements/layouts/FixedItemRatioLayoutNotSupportScroll.h>

using namespace RandomItems;

namespace {

using Ratio = FixedItemRatioLayoutNotSupportScroll;
using ItemData = Ratio::ItemData;

ItemData randomData(std::mt19937 &generator)
{
    ItemData data;
    data.heightToWidthRatio = float(randomFrom(generator, 10, 300)) / 100;
    data.borderWidth = randomFrom(generator, 0, 6);
    data.minimumWidth = randomFrom(generator, 0, 1) == 0 ? 0 : randomFrom(generator, 0, 80);
    data.spacing = randomFrom(generator, 0, 12);
    return data;
}

/// A layout of random items after a pass, some of them hidden.
struct Placed
{
    Placed(const Case &given, std::mt19937 &generator)
        : data(randomData(generator)), layout(given.margins, 0, 0)
    {
        layout.setItemData(data);
        Blocks::fill(layout, given.sizes);
        for (int i = 0; i < layout.count(); ++i) {
            if (randomFrom(generator, 0, 5) == 0)
                static_cast<Blocks::Item *>(layout.itemAt(i))->hide();
        }
        layout.setGeometry(given.rect);
        for (int i = 0; i < layout.count(); ++i) {
            if (!layout.itemAt(i)->isEmpty())
                rects.push_back(layout.itemAt(i)->geometry());
        }
        calculated = layout.getCalculatedItemData();
    }

    const ItemData data;
    Ratio layout;
    std::vector<QRect> rects; ///< Of the visible items.
    Ratio::CalculatedItemData calculated;
};

/// Returns how wide items may be in \a rows rows of \a columns.
int widthFor(const QSize &size, const ItemData &data, int rows, int columns)
{
    const int borders = 2 * data.borderWidth;
    const int height = (size.height() + data.spacing) / rows;
    const float inner = float(height - borders) / data.heightToWidthRatio;
    return qMin((size.width() + data.spacing) / columns, int(double(inner) + 0.5 + borders));
}

/// Returns what is wrong with the space before and after \a length pixels of \a total.
QString wrongInCentring(int before, int length, int total)
{
    if (length > total)
        return before == 0 ? QString()
                           : QStringLiteral("what is too long begins at %1").arg(before);
    const int difference = total - length - 2 * before;
    return difference == 0 || difference == 1 ? QString()
                                              : QStringLiteral("off by %1").arg(difference);
}

/// A rectangle that leaves room for something after the margins.
Case withRoom(Case given)
{
    given.rect.setSize(given.rect.size() + QSize(60, 60));
    return given;
}

} // namespace

/// FixedItemRatioLayoutNotSupportScroll with random items.
class tst_FixedItemRatioLayoutRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesItemsAsWideAsItCan();
    void keepsTheRatio();
    void givesVisibleItemsOneSize();
    void movesNoHiddenItem();
    void itemsDoNotOverlap();
    void fillsRowsInOrder();
    void centresEveryRow();
    void answersForASizeAsItLaysOut();
    void aSecondPassMovesNothing();
};

void tst_FixedItemRatioLayoutRandom::makesItemsAsWideAsItCan()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        const Placed placed(given, generator);
        const int count = int(placed.rects.size());
        const QSize size = given.effective().size();
        int widest = 0;
        int rows = 1;
        for (int i = 1; i <= count; ++i) {
            const int columns = count / i + (count % i == 0 ? 0 : 1);
            const int width = widthFor(size, placed.data, i, columns);
            rows = width > widest ? i : rows;
            widest = qMax(widest, width);
        }
        const int expected = qMax(widest, placed.data.minimumWidth);
        const auto &[itemWidth, itemHeight, itsRows, columns] = placed.calculated;
        return count == 0 || (itemWidth == expected && itsRows == rows)
                ? QString()
                : QStringLiteral("%1 in %2 rows, not %3 in %4")
                          .arg(itemWidth)
                          .arg(itsRows)
                          .arg(expected)
                          .arg(rows);
    });
}

void tst_FixedItemRatioLayoutRandom::keepsTheRatio()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        const Placed placed(withRoom(given), generator);
        const int borders = 2 * placed.data.borderWidth;
        const double exact = (placed.calculated.itemWidth - borders)
                * double(placed.data.heightToWidthRatio);
        const double error = placed.calculated.itemHeight - borders - exact;
        // Half a pixel of rounding; below the borders a fraction is truncated towards zero.
        const bool isRounded = qAbs(error) < (exact < 0 ? 1.01 : 0.51);
        return placed.rects.empty() || isRounded ? QString() : QString::number(error);
    });
}

void tst_FixedItemRatioLayoutRandom::givesVisibleItemsOneSize()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        const Placed placed(given, generator);
        const QSize size(placed.calculated.itemWidth, placed.calculated.itemHeight);
        for (const QRect &rect : placed.rects) {
            if (rect.size() != size)
                return Blocks::text(rect);
        }
        return QString();
    });
}

void tst_FixedItemRatioLayoutRandom::movesNoHiddenItem()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        const Placed placed(given, generator);
        for (int i = 0; i < placed.layout.count(); ++i) {
            const auto *item = static_cast<Blocks::Item *>(placed.layout.itemAt(i));
            if (item->moves != (item->isEmpty() ? 0 : 1))
                return QStringLiteral("item %1 was moved %2 times").arg(i).arg(item->moves);
        }
        return QString();
    });
}

void tst_FixedItemRatioLayoutRandom::itemsDoNotOverlap()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        const Placed placed(given, generator);
        const bool haveSize = placed.calculated.itemWidth > 0 && placed.calculated.itemHeight > 0;
        return haveSize && haveOverlap(placed.rects) ? Blocks::text(placed.layout) : QString();
    });
}

void tst_FixedItemRatioLayoutRandom::fillsRowsInOrder()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        const Placed placed(withRoom(given), generator);
        if (placed.calculated.itemWidth + placed.data.spacing == 0)
            return QString();
        std::size_t rest = placed.rects.size();
        for (const Row &row : rowsFromLeft(placed.rects)) {
            if (row.size() != qMin(rest, std::size_t(placed.calculated.columns)))
                return QStringLiteral("%1 items in a row").arg(row.size());
            rest -= row.size();
        }
        return QString();
    });
}

void tst_FixedItemRatioLayoutRandom::centresEveryRow()
{
    forRandomCases([](const Case &wanted, std::mt19937 &generator) {
        const Case given = withRoom(wanted);
        const Placed placed(given, generator);
        const QRect effective = given.effective();
        const std::vector<Row> rows = rowsFromLeft(placed.rects);
        const int itemWidth = placed.calculated.itemWidth;
        if (rows.empty() || itemWidth + placed.data.spacing == 0)
            return QString();
        for (const Row &row : rows) {
            // Counted, since the right edge says nothing about a row that is too wide.
            const int count = int(row.size());
            const QString wrong = wrongInCentring(row.front().left() - effective.left(),
                                                  count * itemWidth
                                                          + (count - 1) * placed.data.spacing,
                                                  effective.width());
            if (!wrong.isEmpty())
                return wrong;
        }
        const int count = int(rows.size());
        return wrongInCentring(rows.front().front().top() - effective.top(),
                               count * placed.calculated.itemHeight
                                       + (count - 1) * placed.data.spacing,
                               effective.height());
    });
}

void tst_FixedItemRatioLayoutRandom::answersForASizeAsItLaysOut()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        const Placed placed(given, generator);
        const auto answer = placed.layout.getCalculatedItemData(given.effective().size());
        const bool isSame = answer.itemWidth == placed.calculated.itemWidth
                && answer.itemHeight == placed.calculated.itemHeight
                && answer.rows == placed.calculated.rows
                && answer.columns == placed.calculated.columns;
        return isSame || placed.rects.empty() ? QString() : QStringLiteral("it answers otherwise");
    });
}

void tst_FixedItemRatioLayoutRandom::aSecondPassMovesNothing()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        Placed placed(given, generator);
        const QString before = Blocks::text(placed.layout);
        placed.layout.setGeometry(given.rect);
        return Blocks::text(placed.layout) == before ? QString() : before;
    });
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_FixedItemRatioLayoutRandom)
#include "tst_fixeditemratiolayout_random.moc"
