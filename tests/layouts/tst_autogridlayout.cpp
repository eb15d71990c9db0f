// SPDX-License-Identifier: Apache-2.0
#include "Blocks.h"
#include "RandomItems.h"
#include "support/TestMain.h"

#include <UiElements/layouts/AutoGridLayout.h>

#include <QMetaObject>
#include <QTest>

#include <map>

using Blocks::Opened;
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

/// The same layout with a map of cells by row and column: slow, but simple.
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

/// Returns what is wrong with the widths of \a rows.
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

Q_DECLARE_METATYPE(std::vector<QSize>)

class tst_AutoGridLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsNothingToTheMetaObject();
    void placesItems_data();
    void placesItems();
    void needsTheHeightOfItsLastRow_data();
    void needsTheHeightOfItsLastRow();
    void needsItsBottomMarginWithoutItems();
    void measuresWithoutMovingAnything();
    void placesWithinItsRectangleAndMargins();
    void followsTheRectangle();
    void placesInTheOrderOfItsItems();

    void passesAgree();
    void matchesTheReferenceTable();
    void itemsKeepTheirSizesAndOrder();
    void itemsOfARowDoNotOverlap();
    void breaksLinesWhereItHasTo();
    void everyItemSitsUnderTheOneAbove();
    void needsTheHeightOfTheLastRowOfAnyItems();
};

void tst_AutoGridLayout::addsNothingToTheMetaObject()
{
    const QMetaObject &meta = AutoGridLayout::staticMetaObject;
    QCOMPARE(meta.superClass(), &FlowLayout::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_AutoGridLayout::placesItems_data()
{
    QTest::addColumn<std::vector<QSize>>("sizes");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("placed");
    const std::vector<QSize> three(3, QSize(20, 10));
    QTest::newRow("one row") << three << 100
                             << QStringLiteral("0,0 20x10 | 25,0 20x10 | 50,0 20x10");
    QTest::newRow("a row that ends a pixel before the edge")
            << three << 71 << QStringLiteral("0,0 20x10 | 25,0 20x10 | 50,0 20x10");
    QTest::newRow("an item wraps that would end at the edge")
            << three << 70 << QStringLiteral("0,0 20x10 | 25,0 20x10 | 0,13 20x10");
    QTest::newRow("the first of a row never wraps, however wide")
            << std::vector<QSize> { { 300, 10 }, { 10, 10 }, { 400, 10 } } << 100
            << QStringLiteral("0,0 300x10 | 0,13 10x10 | 0,26 400x10");
    QTest::newRow("each top sits under the item above")
            << std::vector<QSize> { { 20, 30 }, { 20, 10 }, { 20, 5 }, { 20, 7 } } << 50
            << QStringLiteral("0,0 20x30 | 25,0 20x10 | 0,33 20x5 | 25,13 20x7");
    QTest::newRow("without an item above, as high up as the one before")
            << std::vector<QSize> { { 45, 30 }, { 90, 20 }, { 20, 10 }, { 20, 10 }, { 20, 10 } }
            << 100
            << QStringLiteral("0,0 45x30 | 0,33 90x20 | 0,56 20x10 | 25,56 20x10 | 50,56 20x10");
    QTest::newRow("columns are counted, not aligned")
            << std::vector<QSize> { { 40, 10 }, { 10, 20 }, { 10, 5 }, { 40, 5 } } << 60
            << QStringLiteral("0,0 40x10 | 45,0 10x20 | 0,13 10x5 | 15,23 40x5");
    QTest::newRow("items without a size") << std::vector<QSize> { { 0, 0 }, { 0, 0 } } << 0
                                          << QStringLiteral("0,0 0x0 | 0,3 0x0");
}

void tst_AutoGridLayout::placesItems()
{
    QFETCH(const std::vector<QSize>, sizes);
    QFETCH(const int, width);
    AutoGridLayout layout(QMargins(), 5, 3);
    Blocks::fill(layout, sizes);
    layout.setGeometry(QRect(0, 0, width, 1000));
    QTEST(Blocks::text(layout), "placed");
}

void tst_AutoGridLayout::needsTheHeightOfItsLastRow_data()
{
    QTest::addColumn<std::vector<QSize>>("sizes");
    QTest::addColumn<int>("height");
    QTest::newRow("one row, its tallest item")
            << std::vector<QSize> { { 10, 10 }, { 10, 30 }, { 10, 20 } } << 30;
    QTest::newRow("two rows") << std::vector<QSize> {
        { 20, 10 }, { 20, 10 }, { 20, 10 }, { 20, 20 }
    } << 33;
    QTest::newRow("a taller item of an earlier row does not count")
            << std::vector<QSize> { { 20, 10 }, { 20, 90 }, { 20, 10 } } << 23;
}

void tst_AutoGridLayout::needsTheHeightOfItsLastRow()
{
    QFETCH(const std::vector<QSize>, sizes);
    AutoGridLayout layout(QMargins(), 5, 3);
    Blocks::fill(layout, sizes);
    QTEST(layout.heightForWidth(50), "height");
    layout.setContentsMargins(1, 100, 1, 1000);
    QTEST(layout.heightForWidth(52) - 1100, "height");
}

void tst_AutoGridLayout::needsItsBottomMarginWithoutItems()
{
    const Opened<AutoGridLayout> layout(QMargins(1, 2, 3, 4), 5, 6);
    QCOMPARE(layout.doLayout(QRect(0, 0, 100, 100), false), 4);
    QCOMPARE(layout.doLayout(QRect(0, 30, 100, 100), false), 4 - 30);
    QCOMPARE(layout.doLayout(QRect(0, 30, 100, 100), true), 4 - 30);
}

void tst_AutoGridLayout::measuresWithoutMovingAnything()
{
    Opened<AutoGridLayout> layout(QMargins(), 5, 3);
    Blocks::fill(layout, { { 20, 10 }, { 20, 10 } });
    QCOMPARE(layout.doLayout(QRect(7, 9, 30, 0), false), 23);
    QCOMPARE(Blocks::text(layout), QStringLiteral("0,0 0x0 | 0,0 0x0"));
    QCOMPARE(layout.doLayout(QRect(7, 9, 30, 0), true), 23);
    QCOMPARE(Blocks::text(layout), QStringLiteral("7,9 20x10 | 7,22 20x10"));
}

void tst_AutoGridLayout::placesWithinItsRectangleAndMargins()
{
    AutoGridLayout layout(QMargins(10, 20, 30, 40), 5, 3);
    Blocks::fill(layout, { { 20, 10 }, { 20, 10 }, { 20, 10 } });
    // Of 86 pixels 46 are left: one more than two items need.
    layout.setGeometry(QRect(100, 200, 86, 500));
    QCOMPARE(Blocks::text(layout), QStringLiteral("110,220 20x10 | 135,220 20x10 | 110,233 20x10"));
    QCOMPARE(layout.heightForWidth(86), 20 + 23 + 40);
    QCOMPARE(layout.heightForWidth(85), 20 + 36 + 40);
}

void tst_AutoGridLayout::followsTheRectangle()
{
    AutoGridLayout layout(QMargins(), 0, 0);
    Blocks::fill(layout, std::vector<QSize>(4, QSize(10, 10)));
    layout.setGeometry(QRect(-5, -7, 100, 100));
    QCOMPARE(Blocks::text(layout),
             QStringLiteral("-5,-7 10x10 | 5,-7 10x10 | 15,-7 10x10 | 25,-7 10x10"));
    layout.setGeometry(QRect(-5, -50, 25, 10));
    QCOMPARE(Blocks::text(layout),
             QStringLiteral("-5,-50 10x10 | 5,-50 10x10 | -5,-40 10x10 | 5,-40 10x10"));
}

void tst_AutoGridLayout::placesInTheOrderOfItsItems()
{
    AutoGridLayout layout(QMargins(), 0, 0);
    Blocks::fill(layout, { { 10, 10 }, { 20, 10 } });
    QLayoutItem *first = layout.takeAt(0);
    layout.addItem(first);
    layout.setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(Blocks::text(layout), QStringLiteral("0,0 20x10 | 20,0 10x10"));
}

void tst_AutoGridLayout::passesAgree()
{
    forRandomCases([](const Case &given, std::mt19937 &) {
        return wrongInPasses(*make(given), given.rect);
    });
}

void tst_AutoGridLayout::matchesTheReferenceTable()
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

void tst_AutoGridLayout::itemsKeepTheirSizesAndOrder()
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

void tst_AutoGridLayout::itemsOfARowDoNotOverlap()
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

void tst_AutoGridLayout::breaksLinesWhereItHasTo()
{
    forRandomCases([](const Case &given, std::mt19937 &) {
        return wrongInBreaks(placedRows(given), given);
    });
}

void tst_AutoGridLayout::everyItemSitsUnderTheOneAbove()
{
    forRandomCases([](const Case &given, std::mt19937 &) {
        return wrongInTops(placedRows(given), given);
    });
}

void tst_AutoGridLayout::needsTheHeightOfTheLastRowOfAnyItems()
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

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_AutoGridLayout)
#include "tst_autogridlayout.moc"
