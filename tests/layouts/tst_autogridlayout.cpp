// SPDX-License-Identifier: Apache-2.0
#include "Blocks.h"

#include <UiElements/layouts/AutoGridLayout.h>

#include <QMetaObject>
#include <QTest>

using Blocks::Opened;

Q_DECLARE_METATYPE(std::vector<QSize>)

/// Where an AutoGridLayout puts its items, and which height it needs.
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

QTEST_MAIN(tst_AutoGridLayout)
#include "tst_autogridlayout.moc"
