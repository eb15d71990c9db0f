// SPDX-License-Identifier: Apache-2.0
#include "Blocks.h"
#include "support/TestMain.h"

#include <UiElements/layouts/FixedItemRatioLayoutNotSupportScroll.h>

#include <QMetaObject>
#include <QTest>

using Blocks::Item;
using Ratio = Blocks::Opened<FixedItemRatioLayoutNotSupportScroll>;
using ItemData = FixedItemRatioLayoutNotSupportScroll::ItemData;
using CalculatedItemData = FixedItemRatioLayoutNotSupportScroll::CalculatedItemData;

Q_DECLARE_METATYPE(ItemData)

namespace {

ItemData squares(int spacing = 0) { return { 1.0F, 0, 0, spacing }; }

/// Returns \a data as "itemWidth x itemHeight, rows x columns".
QString text(const CalculatedItemData &data)
{
    return QStringLiteral("%1x%2, %3x%4")
            .arg(data.itemWidth)
            .arg(data.itemHeight)
            .arg(data.rows)
            .arg(data.columns);
}

/// A layout without margins that has \a count items.
std::unique_ptr<Ratio> make(int count, const ItemData &data = ItemData())
{
    auto layout = std::make_unique<Ratio>(QMargins(), 77, 99);
    layout->setItemData(data);
    Blocks::fill(*layout, std::vector<QSize>(std::size_t(count), QSize(20, 10)));
    return layout;
}

} // namespace

/// How large FixedItemRatioLayoutNotSupportScroll makes its items, and where it puts them.
class tst_FixedItemRatioLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsNothingToTheMetaObject();
    void hasDefaults();
    void makesItemsAsWideAsItCan_data();
    void makesItemsAsWideAsItCan();
    void roundsHeightsOfWidths_data();
    void roundsHeightsOfWidths();
    void placesItems_data();
    void placesItems();
    void doesNotCentreAPartialRowWhereRowsStayEmpty();
    void passesOverHiddenItems();
    void passesOverHiddenWidgets();
    void passesOverAnItemThatIsMissing();
    void leavesItsDataAloneWithoutVisibleItems();
    void keepsTheDataOfTheLastAppliedPass();
    void answersForASizeWithoutStoringIt();
    void waitsForTheNextPassWithNewItemData();
    void needsRoomForOneItem_data();
    void needsRoomForOneItem();
    void hasNoHeightForWidth();
    void measuresItemsOfTheSmallestWidth_data();
    void measuresItemsOfTheSmallestWidth();
    void survivesARatioOfZero();
};

void tst_FixedItemRatioLayout::addsNothingToTheMetaObject()
{
    const QMetaObject &meta = FixedItemRatioLayoutNotSupportScroll::staticMetaObject;
    QCOMPARE(meta.superClass(), &FlowLayout::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_FixedItemRatioLayout::hasDefaults()
{
    const ItemData data;
    QCOMPARE(data.heightToWidthRatio, 0.5625F);
    QCOMPARE(data.borderWidth, 4);
    QCOMPARE(data.minimumWidth, 0);
    QCOMPARE(data.spacing, 0);
    const Ratio layout(QMargins(), 0, 0);
    QCOMPARE(text(layout.getCalculatedItemData()), QStringLiteral("0x0, 0x0"));
    QWidget window;
    const FixedItemRatioLayoutNotSupportScroll onWindow(&window, QMargins(1, 2, 3, 4), 5, 6);
    QCOMPARE(window.layout(), &onWindow);
    QCOMPARE(onWindow.contentsMargins(), QMargins(1, 2, 3, 4));
    QCOMPARE(onWindow.horizontalSpacing(), 5);
    QCOMPARE(onWindow.verticalSpacing(), 6);
}

void tst_FixedItemRatioLayout::makesItemsAsWideAsItCan_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<ItemData>("data");
    QTest::addColumn<QString>("calculated");
    const ItemData usual;
    QTest::newRow("one item") << 1 << QSize(1000, 500) << usual << QStringLiteral("883x500, 1x1");
    QTest::newRow("four, of which 1 to 4 rows are tried")
            << 4 << QSize(1000, 500) << usual << QStringLiteral("438x250, 2x2");
    QTest::newRow("four in a tall rectangle")
            << 4 << QSize(500, 1000) << usual << QStringLiteral("438x250, 4x1");
    QTest::newRow("four in a flat one")
            << 4 << QSize(1000, 100) << usual << QStringLiteral("172x100, 1x4");
    QTest::newRow("five") << 5 << QSize(1000, 500) << usual << QStringLiteral("333x191, 2x3");
    QTest::newRow("of equal widths the smallest number of rows")
            << 4 << QSize(1000, 500) << squares() << QStringLiteral("250x250, 1x4");
    QTest::newRow("the spacing is added once")
            << 4 << QSize(1000, 500) << ItemData { 0.5625F, 4, 0, 10 }
            << QStringLiteral("447x255, 2x2");
    QTest::newRow("a spacing that is too large for the height")
            << 3 << QSize(1000, 100) << squares(10) << QStringLiteral("110x110, 1x3");
    QTest::newRow("a ratio that is not exact")
            << 7 << QSize(640, 480) << ItemData { 0.75F, 2, 0, 6 }
            << QStringLiteral("215x162, 3x3");
    QTest::newRow("the smallest width, wherever they don't fit")
            << 3 << QSize(100, 50) << ItemData { 0.5625F, 4, 80, 0 }
            << QStringLiteral("80x49, 2x2");
    QTest::newRow("no room: one row of nothing but borders")
            << 2 << QSize(0, 0) << usual << QStringLiteral("0x4, 1x2");
    QTest::newRow("no items") << 0 << QSize(300, 200) << ItemData { 0.5625F, 4, 5, 0 }
                              << QStringLiteral("5x6, 1x0");
}

void tst_FixedItemRatioLayout::makesItemsAsWideAsItCan()
{
    QFETCH(const int, count);
    QFETCH(const QSize, size);
    QFETCH(const ItemData, data);
    QTEST(text(make(count, data)->getCalculatedItemData(size)), "calculated");
}

void tst_FixedItemRatioLayout::roundsHeightsOfWidths_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<float>("ratio");
    QTest::addColumn<int>("borderWidth");
    QTest::addColumn<int>("height");
    QTest::newRow("a half is rounded up") << 160 << 0.5625F << 4 << 94;
    QTest::newRow("less than a half is rounded down") << 162 << 0.5625F << 4 << 95;
    QTest::newRow("only the borders") << 8 << 0.5625F << 4 << 8;
    QTest::newRow("less than the borders") << 0 << 0.5625F << 4 << 4;
    QTest::newRow("a third, rounded down") << 100 << 1.0F / 3 << 0 << 33;
    QTest::newRow("a third, rounded up") << 101 << 1.0F / 3 << 0 << 34;
    QTest::newRow("without the border") << 163 << 1.0F << 10 << 163;
}

void tst_FixedItemRatioLayout::roundsHeightsOfWidths()
{
    QFETCH(const int, width);
    QFETCH(const float, ratio);
    QFETCH(const int, borderWidth);
    const auto layout = make(1, { ratio, borderWidth, width, 0 });
    QTEST(layout->minimumSize().height(), "height");
    QTEST(layout->getCalculatedItemData(QSize(0, 0)).itemHeight, "height");
}

void tst_FixedItemRatioLayout::placesItems_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<ItemData>("data");
    QTest::addColumn<QString>("placed");
    QTest::newRow("one item in the middle")
            << 1 << QRect(0, 0, 1000, 500) << ItemData() << QStringLiteral("58,0 883x500");
    QTest::newRow("a full grid") << 4 << QRect(0, 0, 1000, 500) << ItemData()
                                 << QStringLiteral("62,0 438x250 | 500,0 438x250 | "
                                                   "62,250 438x250 | 500,250 438x250");
    QTest::newRow("the last row is centred by itself")
            << 5 << QRect(0, 0, 1000, 500) << ItemData()
            << QStringLiteral("0,59 333x191 | 333,59 333x191 | 666,59 333x191 | "
                              "167,250 333x191 | 500,250 333x191");
    QTest::newRow("away from the origin")
            << 5 << QRect(10, 20, 1000, 500) << ItemData()
            << QStringLiteral("10,79 333x191 | 343,79 333x191 | 676,79 333x191 | "
                              "177,270 333x191 | 510,270 333x191");
    QTest::newRow("with room between items")
            << 4 << QRect(0, 0, 1000, 500) << ItemData { 0.5625F, 4, 0, 10 }
            << QStringLiteral("48,0 447x255 | 505,0 447x255 | 48,265 447x255 | 505,265 447x255");
    QTest::newRow("rows that come out too wide start at the left")
            << 7 << QRect(0, 0, 640, 480) << ItemData { 0.75F, 2, 0, 6 }
            << QStringLiteral("0,0 215x162 | 221,0 215x162 | 442,0 215x162 | "
                              "0,168 215x162 | 221,168 215x162 | 442,168 215x162 | "
                              "212,336 215x162");
}

void tst_FixedItemRatioLayout::placesItems()
{
    QFETCH(const int, count);
    QFETCH(const QRect, rect);
    QFETCH(const ItemData, data);
    const auto layout = make(count, data);
    QCOMPARE(layout->doLayout(rect, true), 0);
    QTEST(Blocks::text(*layout), "placed");
    // The margins are subtracted first.
    layout->setContentsMargins(1, 2, 3, 4);
    layout->setGeometry(rect.adjusted(-1, -2, 3, 4));
    QTEST(Blocks::text(*layout), "placed");
}

void tst_FixedItemRatioLayout::doesNotCentreAPartialRowWhereRowsStayEmpty()
{
    // Where margins take more than the height, more rows make wide borders wider: of four rows by
    // two columns the five items fill three.
    const auto layout = make(5, { 10.0F, 50, 0, 0 });
    layout->setContentsMargins(0, 30, 0, 30);
    layout->setGeometry(QRect(0, 0, 1000, 0));
    QCOMPARE(text(layout->getCalculatedItemData()), QStringLiteral("89x-9, 4x2"));
    QCOMPARE(layout->itemAt(0)->geometry().left(), 411);
    QCOMPARE(layout->itemAt(4)->geometry().left(), 411);
}

void tst_FixedItemRatioLayout::passesOverHiddenItems()
{
    const auto layout = make(4, squares());
    auto *second = static_cast<Item *>(layout->itemAt(1));
    second->hide();
    layout->setGeometry(QRect(0, 0, 300, 100));
    QCOMPARE(Blocks::text(*layout),
             QStringLiteral("0,0 100x100 | 0,0 0x0 | 100,0 100x100 | "
                            "200,0 100x100"));
    QCOMPARE(second->moves, 0);
    QCOMPARE(text(layout->getCalculatedItemData()), QStringLiteral("100x100, 1x3"));
}

void tst_FixedItemRatioLayout::passesOverHiddenWidgets()
{
    QWidget window;
    FixedItemRatioLayoutNotSupportScroll layout(&window, QMargins(), 0, 0);
    layout.setItemData(squares());
    for (int i = 0; i < 3; ++i)
        layout.addWidget(new Blocks::Block(QSize(20, 10)));
    QWidget *hidden = layout.widgetAt(0);
    hidden->setGeometry(1, 2, 3, 4);
    hidden->hide();
    layout.setGeometry(QRect(0, 0, 200, 100));
    QCOMPARE(Blocks::text(layout), QStringLiteral("1,2 3x4 | 0,0 100x100 | 100,0 100x100"));
}

void tst_FixedItemRatioLayout::passesOverAnItemThatIsMissing()
{
    const auto layout = make(2, squares());
    layout->addItem(nullptr);
    layout->setGeometry(QRect(0, 0, 200, 100));
    QCOMPARE(Blocks::text(layout->itemAt(1)->geometry()), QStringLiteral("100,0 100x100"));
    QCOMPARE(text(layout->getCalculatedItemData()), QStringLiteral("100x100, 1x2"));
}

void tst_FixedItemRatioLayout::leavesItsDataAloneWithoutVisibleItems()
{
    const auto layout = make(1, squares());
    layout->setGeometry(QRect(0, 0, 100, 100));
    static_cast<Item *>(layout->itemAt(0))->hide();
    QCOMPARE(layout->doLayout(QRect(0, 0, 300, 300), true), 0);
    QCOMPARE(text(layout->getCalculatedItemData()), QStringLiteral("100x100, 1x1"));
    QCOMPARE(layout->doLayout(QRect(0, 0, 300, 300), false), 0);
    QCOMPARE(make(0)->doLayout(QRect(0, 0, 300, 300), true), 0);
}

void tst_FixedItemRatioLayout::keepsTheDataOfTheLastAppliedPass()
{
    const auto layout = make(4, { 1.0F, 0, 10, 0 });
    layout->setGeometry(QRect(0, 0, 400, 100));
    QCOMPARE(text(layout->getCalculatedItemData()), QStringLiteral("100x100, 1x4"));
    layout->heightForWidth(50);
    QCOMPARE(text(layout->getCalculatedItemData()), QStringLiteral("100x100, 1x4"));
    layout->setGeometry(QRect(0, 0, 200, 200));
    QCOMPARE(text(layout->getCalculatedItemData()), QStringLiteral("100x100, 2x2"));
}

void tst_FixedItemRatioLayout::answersForASizeWithoutStoringIt()
{
    const auto layout = make(4, squares());
    layout->setContentsMargins(50, 50, 50, 50);
    static_cast<Item *>(layout->itemAt(3))->hide();
    QCOMPARE(text(layout->getCalculatedItemData(QSize(300, 100))), QStringLiteral("100x100, 1x3"));
    QCOMPARE(text(layout->getCalculatedItemData()), QStringLiteral("0x0, 0x0"));
}

void tst_FixedItemRatioLayout::waitsForTheNextPassWithNewItemData()
{
    QWidget window;
    FixedItemRatioLayoutNotSupportScroll layout(&window, QMargins(), 0, 0);
    layout.setItemData(squares());
    layout.addWidget(new Blocks::Block(QSize(20, 10)));
    window.resize(200, 100);
    layout.activate();
    QCOMPARE(Blocks::text(layout), QStringLiteral("50,0 100x100"));
    layout.setItemData({ 0.5F, 0, 0, 0 });
    QVERIFY(!layout.activate());
    QCOMPARE(Blocks::text(layout), QStringLiteral("50,0 100x100"));
    layout.invalidate();
    layout.activate();
    QCOMPARE(Blocks::text(layout), QStringLiteral("0,0 200x100"));
}

void tst_FixedItemRatioLayout::needsRoomForOneItem_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("no items") << 0;
    QTest::newRow("one item") << 1;
    QTest::newRow("nine items") << 9;
}

void tst_FixedItemRatioLayout::needsRoomForOneItem()
{
    QFETCH(const int, count);
    const auto layout = make(count, { 0.5625F, 4, 160, 20 });
    layout->setContentsMargins(1, 20, 300, 4000);
    QCOMPARE(layout->minimumSize(), QSize(461, 4114));
    QCOMPARE(layout->sizeHint(), QSize(461, 4114));
}

void tst_FixedItemRatioLayout::hasNoHeightForWidth() { QVERIFY(!make(4)->hasHeightForWidth()); }

void tst_FixedItemRatioLayout::measuresItemsOfTheSmallestWidth_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("width");
    QTest::addColumn<ItemData>("data");
    QTest::addColumn<int>("height");
    // Margins take 4 pixels of the width and add 60 to the height; an item is 100 by 50.
    const ItemData data { 0.5F, 0, 100, 10 };
    QTest::newRow("one row") << 3 << 324 << data << 50 + 60;
    QTest::newRow("a pixel short of three columns") << 3 << 323 << data << 2 * 50 + 10 + 60;
    QTest::newRow("three rows") << 7 << 324 << data << 3 * 50 + 2 * 10 + 60;
    QTest::newRow("one column") << 3 << 104 << data << 3 * 50 + 2 * 10 + 60;
    QTest::newRow("less than one column") << 3 << 103 << data << 0;
    QTest::newRow("no items") << 0 << 324 << data << 0;
    QTest::newRow("neither a width nor a spacing to divide by") << 3 << 324 << ItemData() << 0;
    QTest::newRow("a spacing alone") << 3 << 34 << ItemData { 0.5F, 5, 0, 10 } << 5 + 60;
}

void tst_FixedItemRatioLayout::measuresItemsOfTheSmallestWidth()
{
    QFETCH(const int, count);
    QFETCH(const int, width);
    QFETCH(const ItemData, data);
    const auto layout = make(count, data);
    layout->setContentsMargins(1, 20, 3, 40);
    QTEST(layout->heightForWidth(width), "height");
    QCOMPARE(Blocks::rects(*layout), std::vector<QRect>(std::size_t(count)));
}

void tst_FixedItemRatioLayout::survivesARatioOfZero()
{
    // Any height allows any width then.
    QCOMPARE(text(make(2, { 0.0F, 4, 0, 0 })->getCalculatedItemData(QSize(300, 200))),
             QStringLiteral("300x8, 2x1"));
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_FixedItemRatioLayout)
#include "tst_fixeditemratiolayout.moc"
