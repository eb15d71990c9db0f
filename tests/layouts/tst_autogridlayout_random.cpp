// SPDX-License-Identifier: Apache-2.0
#include "RandomItems.h"

#include <UiElements/layouts/AutoGridLayout.h>

#include <map>

using namespace RandomItems;

namespace {

using Grid = Blocks::Opened<AutoGridLayout>;

std::unique_ptr<Grid> make(const Case &given)
{
    auto layout = std::make_unique<Grid>(given.margins, given.xSpacing, given.ySpacing);
    Blocks::fill(*layout, given.sizes);
    return layout;
}

std::vector<Row> placedRows(const Case &given)
{
    const auto layout = make(given);
    layout->setGeometry(given.rect);
    return rowsFromLeft(Blocks::rects(*layout));
}

/// The same layout with a map of cells by row and column: slow, and easily seen to be right.
struct Reference
{
    explicit Reference(const Case &given)
    {
        const QRect effective = given.effective();
        QPoint position = effective.topLeft();
        int row = 0;
        int column = 0;
        for (const QSize &size : given.sizes) {
            if (position.x() + size.width() > effective.right() && column > 0) {
                ++row;
                column = 0;
                position = QPoint(effective.left(), row * effective.top() + given.ySpacing);
            }
            const auto above = cells.find({ row - 1, column });
            if (above != cells.end())
                position.setY(above->second.bottom() + 1 + given.ySpacing);
            cells[{ row, column++ }] = QRect(position, size);
            position.rx() += size.width() + given.xSpacing;
        }
        int bottom = cells.at({ row, 0 }).bottom() + 1;
        for (const auto &[place, rect] : cells) {
            placed.push_back(rect);
            if (place.first == row)
                bottom = qMax(bottom, rect.bottom() + 1);
        }
        height = bottom - given.rect.y() + given.margins.bottom();
    }

    std::map<std::pair<int, int>, QRect> cells;
    std::vector<QRect> placed;
    int height = 0;
};

/// Returns what is wrong in the widths of \a rows.
QString wrongInBreaks(const std::vector<Row> &rows, const Case &given)
{
    const QRect effective = given.effective();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].front().left() != effective.left())
            return QStringLiteral("a row does not begin at the left");
        if (rows[i].size() > 1 && rows[i].back().right() >= effective.right())
            return QStringLiteral("an item that does not fit has not wrapped");
        if (i == 0)
            continue;
        const int end = rows[i - 1].back().right() + 1 + given.xSpacing + rows[i].front().width();
        if (end <= effective.right())
            return QStringLiteral("an item that fits has wrapped");
    }
    return {};
}

QString wrongInTops(const std::vector<Row> &rows, const Case &given)
{
    for (std::size_t i = 0; i < rows.size(); ++i) {
        int top = given.effective().top();
        for (std::size_t j = 0; j < rows[i].size(); ++j) {
            if (i > 0 && j < rows[i - 1].size())
                top = rows[i - 1][j].bottom() + 1 + given.ySpacing;
            if (rows[i][j].top() != top)
                return QStringLiteral("row %1, column %2 is at the wrong height").arg(i).arg(j);
        }
    }
    return {};
}

} // namespace

/// What holds of an AutoGridLayout with any items.
class tst_AutoGridLayoutRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passesAgree();
    void doesWhatATableDoes();
    void itemsKeepTheirSizesAndOrder();
    void itemsOfARowDoNotOverlap();
    void breaksLinesWhereItHasTo();
    void everyItemSitsUnderTheOneAbove();
    void needsTheHeightOfItsLastRow();
};

void tst_AutoGridLayoutRandom::passesAgree()
{
    forRandomCases([](const Case &given, std::mt19937 &) {
        return wrongInPasses(*make(given), given.rect);
    });
}

void tst_AutoGridLayoutRandom::doesWhatATableDoes()
{
    forRandomCases([](const Case &given, std::mt19937 &) {
        const Reference reference(given);
        const auto layout = make(given);
        const int height = layout->doLayout(given.rect, true);
        if (height != reference.height)
            return QStringLiteral("%1, not %2").arg(height).arg(reference.height);
        return Blocks::rects(*layout) == reference.placed ? QString() : Blocks::text(*layout);
    });
}

void tst_AutoGridLayoutRandom::itemsKeepTheirSizesAndOrder()
{
    forRandomCases([](const Case &given, std::mt19937 &) {
        std::vector<QSize> sizes;
        for (const Row &row : placedRows(given)) {
            for (const QRect &rect : row)
                sizes.push_back(rect.size());
        }
        return sizes == given.sizes ? QString() : QStringLiteral("other sizes");
    });
}

void tst_AutoGridLayoutRandom::itemsOfARowDoNotOverlap()
{
    forRandomCases([](const Case &given, std::mt19937 &) {
        for (const Row &row : placedRows(given)) {
            for (std::size_t i = 1; i < row.size(); ++i) {
                if (row[i].left() != row[i - 1].right() + 1 + given.xSpacing)
                    return QStringLiteral("item %1 of a row is not behind its neighbour").arg(i);
            }
        }
        return QString();
    });
}

void tst_AutoGridLayoutRandom::breaksLinesWhereItHasTo()
{
    forRandomCases([](const Case &given, std::mt19937 &) {
        return wrongInBreaks(placedRows(given), given);
    });
}

void tst_AutoGridLayoutRandom::everyItemSitsUnderTheOneAbove()
{
    forRandomCases([](const Case &given, std::mt19937 &) {
        return wrongInTops(placedRows(given), given);
    });
}

void tst_AutoGridLayoutRandom::needsTheHeightOfItsLastRow()
{
    forRandomCases([](const Case &given, std::mt19937 &) {
        const auto layout = make(given);
        const int height = layout->doLayout(given.rect, true);
        const int end = endOf(rowsFromLeft(Blocks::rects(*layout)).back());
        return height == end - given.rect.y() + given.margins.bottom()
                ? QString()
                : QStringLiteral("%1 for a last row that ends at %2").arg(height).arg(end);
    });
}

QTEST_APPLESS_MAIN(tst_AutoGridLayoutRandom)
#include "tst_autogridlayout_random.moc"
