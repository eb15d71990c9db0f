// SPDX-License-Identifier: Apache-2.0
#include "Blocks.h"
#include "RandomItems.h"
#include "support/TestMain.h"

#include <UiElements/layouts/SmartLayout.h>

#include <QPointer>
#include <QSpacerItem>
#include <QTest>

using Blocks::Block;
using Blocks::Item;
using namespace RandomItems;

namespace {

constexpr bool ofItems = false;
constexpr bool ofWidgets = true;

/// A window with a block whose size hint is 20 by 10 pixels and whose limits are 15 by 40.
struct Limited
{
    explicit Limited(bool useWidgetSizing, int maximumItemsPerRow = -1)
        : layout(&window, QMargins(), 5, 3, Qt::AlignLeft, maximumItemsPerRow, useWidgetSizing)
    {
        block->setMaximumSize(15, 40);
        block->setMinimumHeight(12);
        layout.addWidget(block);
        layout.setGeometry(QRect(0, 0, 100, 100));
    }

    QWidget window;
    Block *block = new Block(QSize(20, 10));
    SmartLayout layout;
};

constexpr int noLimit = -1;

/// The settings of a SmartLayout.
struct Rules
{
    Qt::AlignmentFlag alignment = Qt::AlignLeft;
    int maximumItemsPerRow = noLimit;
    int fixedItemsPerRow = 0;
};

Rules randomRules(std::mt19937 &generator)
{
    const Qt::AlignmentFlag alignments[] = { Qt::AlignLeft, Qt::AlignCenter, Qt::AlignRight,
                                             Qt::AlignHCenter };
    Rules rules;
    rules.alignment = alignments[randomFrom(generator, 0, 3)];
    if (randomFrom(generator, 0, 1) == 1)
        rules.maximumItemsPerRow = randomFrom(generator, 1, 8);
    if (randomFrom(generator, 0, 3) == 0)
        rules.fixedItemsPerRow = randomFrom(generator, 1, 8);
    return rules;
}

using Smart = Blocks::Opened<SmartLayout>;

std::unique_ptr<Smart> make(const Case &given, const Rules &rules)
{
    auto layout = std::make_unique<Smart>(nullptr, given.margins, given.xSpacing, given.ySpacing,
                                          rules.alignment, rules.maximumItemsPerRow, false);
    layout->setFixedItemsPerRow(rules.fixedItemsPerRow);
    Blocks::fill(*layout, given.sizes);
    return layout;
}

std::vector<Row> placedRows(const Case &given, const Rules &rules)
{
    const auto layout = make(given, rules);
    layout->setGeometry(given.rect);
    return rowsByTop(Blocks::rects(*layout));
}

/// Returns what is wrong with the edges of rows.
QString wrongInAlignment(const std::vector<Row> &rows, const QRect &effective,
                         Qt::AlignmentFlag alignment)
{
    for (const Row &row : rows) {
        const int before = row.front().left() - effective.left();
        const int after = effective.right() - row.back().right();
        if (alignment == Qt::AlignLeft && before != 0)
            return QStringLiteral("a row does not begin at the left");
        if (alignment == Qt::AlignCenter && qAbs(before - after) > 1)
            return QStringLiteral("a row is off the centre by %1").arg(before - after);
        const bool isPushed = alignment != Qt::AlignLeft && alignment != Qt::AlignCenter;
        if (isPushed && after != 0)
            return QStringLiteral("a row does not end at the right");
    }
    return {};
}

/// Returns what is wrong with the line breaks of rows that are aligned to the left.
QString wrongInBreaks(const std::vector<Row> &rows, const Case &given)
{
    const int edge = given.effective().right();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].size() > 1 && rows[i].back().right() >= edge)
            return QStringLiteral("an item that does not fit has not wrapped");
        if (i == 0)
            continue;
        const int end = rows[i - 1].back().right() + 1 + given.xSpacing + rows[i].front().width();
        if (end <= edge)
            return QStringLiteral("an item that fits has wrapped");
    }
    return {};
}

} // namespace

Q_DECLARE_METATYPE(Qt::AlignmentFlag)

/// What the layout does with its items: their widgets, and sizes at random.
class tst_SmartLayoutItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksItemsForSizesByDefault();
    void asksWidgetsForSizesWhenItUsesWidgetSizing();
    void usesTheItemWhereThereIsNoWidget();
    void givesASingleColumnTheSizesOfItsWidgets();
    void alignsASingleColumnByTheSizesOfItsWidgets_data();
    void alignsASingleColumnByTheSizesOfItsWidgets();
    void deletesWidgetsWhenItClears();
    void deletesNothingWhenItClearsSpacers();

    void passesAgree();
    void itemsKeepTheirSizesAndOrder();
    void itemsDoNotOverlap();
    void rowsStandBelowEachOther();
    void alignsEveryRow();
    void breaksLinesWhereItHasTo();
    void rowsNeverGrowUnderALimit();
    void fillsRowsOfAFixedNumber();
    void needsTheHeightOfAllRows();
};

void tst_SmartLayoutItems::asksItemsForSizesByDefault()
{
    Limited limited(ofItems);
    QCOMPARE(limited.layout.itemAt(0)->sizeHint(), QSize(15, 12));
    QCOMPARE(limited.block->geometry(), QRect(0, 0, 15, 12));
    QCOMPARE(limited.layout.heightForWidth(100), 12);
}

void tst_SmartLayoutItems::asksWidgetsForSizesWhenItUsesWidgetSizing()
{
    Limited limited(ofWidgets);
    QCOMPARE(limited.layout.heightForWidth(100), 10);
    // A widget keeps its own limits whatever geometry is set.
    QCOMPARE(limited.block->geometry(), QRect(0, 0, 15, 12));
    limited.block->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    limited.block->setMinimumHeight(0);
    limited.block->hide();
    limited.layout.setGeometry(QRect(0, 0, 50, 50));
    // The item of a hidden widget has no size and moves nothing.
    QCOMPARE(limited.layout.itemAt(0)->sizeHint(), QSize(0, 0));
    QCOMPARE(limited.block->geometry(), QRect(0, 0, 20, 10));
}

void tst_SmartLayoutItems::usesTheItemWhereThereIsNoWidget()
{
    SmartLayout layout(nullptr, QMargins(), 5, 3, Qt::AlignLeft, 1, ofWidgets);
    Blocks::fill(layout, { { 20, 10 }, { 30, 10 } });
    layout.setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(Blocks::text(layout), QStringLiteral("0,0 20x10 | 0,13 30x10"));
}

void tst_SmartLayoutItems::givesASingleColumnTheSizesOfItsWidgets()
{
    Limited limited(ofItems, 1);
    limited.block->setMinimumHeight(0);
    limited.block->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    limited.block->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    QCOMPARE(limited.layout.itemAt(0)->sizeHint(), QSize(0, 0));
    limited.layout.setGeometry(QRect(0, 0, 50, 50));
    QCOMPARE(limited.block->geometry(), QRect(0, 0, 20, 10));
    // The height is still measured by the item's size hint.
    QCOMPARE(limited.layout.heightForWidth(50), 0);
}

void tst_SmartLayoutItems::alignsASingleColumnByTheSizesOfItsWidgets_data()
{
    QTest::addColumn<Qt::AlignmentFlag>("alignment");
    QTest::addColumn<int>("left");
    QTest::newRow("left") << Qt::AlignLeft << 0;
    QTest::newRow("centre") << Qt::AlignCenter << 40;
    QTest::newRow("right") << Qt::AlignRight << 80;
}

void tst_SmartLayoutItems::alignsASingleColumnByTheSizesOfItsWidgets()
{
    QFETCH(const Qt::AlignmentFlag, alignment);
    QFETCH(const int, left);
    QWidget window;
    SmartLayout layout(&window, QMargins(), 5, 3, alignment, 1, ofItems);
    auto *block = new Block(QSize(20, 10));
    block->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    layout.addWidget(block);
    // By its item, which has no size, the row would have all 100 pixels to spare.
    layout.setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(block->geometry(), QRect(left, 0, 20, 10));
}

void tst_SmartLayoutItems::deletesWidgetsWhenItClears()
{
    QWidget window;
    SmartLayout layout(&window, QMargins(), 5, 3, Qt::AlignLeft, -1, ofItems);
    const QPointer<QWidget> first = new Block(QSize(20, 10));
    const QPointer<QWidget> second = new Block(QSize(20, 10));
    layout.addWidget(first);
    layout.addWidget(second);
    const std::unique_ptr<QLayoutItem> items[] = { std::unique_ptr<QLayoutItem>(layout.itemAt(0)),
                                                   std::unique_ptr<QLayoutItem>(layout.itemAt(1)) };
    layout.clear();
    QCOMPARE(layout.count(), 0);
    QVERIFY(first && second);
    QCOMPARE(items[1]->widget(), second.data());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!first && !second);
}

void tst_SmartLayoutItems::deletesNothingWhenItClearsSpacers()
{
    SmartLayout layout(nullptr, QMargins(), 5, 3, Qt::AlignLeft, -1, ofItems);
    const auto spacer = std::make_unique<QSpacerItem>(20, 10);
    const auto item = std::make_unique<Item>(QSize(20, 10));
    layout.addItem(spacer.get());
    layout.addItem(item.get());
    layout.clear();
    QCOMPARE(layout.count(), 0);
    QCOMPARE(spacer->sizeHint(), QSize(20, 10));
    QCOMPARE(item->sizeHint(), QSize(20, 10));
}

void tst_SmartLayoutItems::passesAgree()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        return wrongInPasses(*make(given, randomRules(generator)), given.rect);
    });
}

void tst_SmartLayoutItems::itemsKeepTheirSizesAndOrder()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        std::vector<QSize> sizes;
        for (const Row &row : placedRows(given, randomRules(generator))) {
            for (const QRect &rect : row)
                sizes.push_back(rect.size());
        }
        return sizes == given.sizes ? QString() : QStringLiteral("other sizes");
    });
}

void tst_SmartLayoutItems::itemsDoNotOverlap()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        const auto layout = make(given, randomRules(generator));
        layout->setGeometry(given.rect);
        return haveOverlap(Blocks::rects(*layout)) ? Blocks::text(*layout) : QString();
    });
}

void tst_SmartLayoutItems::rowsStandBelowEachOther()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        int top = given.effective().top();
        for (const Row &row : placedRows(given, randomRules(generator))) {
            for (const QRect &rect : row) {
                if (rect.top() != top)
                    return QStringLiteral("at %1, not %2").arg(rect.top()).arg(top);
            }
            top = endOf(row) + given.ySpacing;
        }
        return QString();
    });
}

void tst_SmartLayoutItems::alignsEveryRow()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        const Rules rules = randomRules(generator);
        return wrongInAlignment(placedRows(given, rules), given.effective(), rules.alignment);
    });
}

void tst_SmartLayoutItems::breaksLinesWhereItHasTo()
{
    forRandomCases([](const Case &given, std::mt19937 &) {
        return wrongInBreaks(placedRows(given, Rules()), given);
    });
}

void tst_SmartLayoutItems::rowsNeverGrowUnderALimit()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        Rules rules = randomRules(generator);
        rules.fixedItemsPerRow = 0;
        rules.maximumItemsPerRow = randomFrom(generator, 1, 8);
        std::size_t most = std::size_t(rules.maximumItemsPerRow);
        for (const Row &row : placedRows(given, rules)) {
            if (row.size() > most)
                return QStringLiteral("%1 items under %2").arg(row.size()).arg(most);
            most = row.size();
        }
        return QString();
    });
}

void tst_SmartLayoutItems::fillsRowsOfAFixedNumber()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        Rules rules = randomRules(generator);
        rules.fixedItemsPerRow = randomFrom(generator, 1, 8);
        std::size_t rest = given.sizes.size();
        for (const Row &row : placedRows(given, rules)) {
            if (row.size() != qMin(rest, std::size_t(rules.fixedItemsPerRow)))
                return QStringLiteral("%1 of %2").arg(row.size()).arg(rules.fixedItemsPerRow);
            rest -= row.size();
        }
        return QString();
    });
}

void tst_SmartLayoutItems::needsTheHeightOfAllRows()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        const auto layout = make(given, randomRules(generator));
        const int height = layout->doLayout(given.rect, true);
        const int end = endOf(rowsByTop(Blocks::rects(*layout)).back());
        return height == end - given.rect.y() + given.margins.bottom()
                ? QString()
                : QStringLiteral("%1 for a last row that ends at %2").arg(height).arg(end);
    });
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_SmartLayoutItems)
#include "tst_smartlayout_items.moc"
