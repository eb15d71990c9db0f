// SPDX-License-Identifier: Apache-2.0
#include "Blocks.h"
#include "support/TestMain.h"

#include <UiElements/layouts/SmartLayout.h>

#include <QMetaObject>
#include <QTest>

using Blocks::Block;
using Blocks::Opened;

Q_DECLARE_METATYPE(std::vector<QSize>)
Q_DECLARE_METATYPE(Qt::AlignmentFlag)

namespace {

constexpr bool ofItems = false;
constexpr bool ofWidgets = true;

/// A layout with 5 pixels between columns and 3 between rows.
class Smart : public Opened<SmartLayout>
{
public:
    explicit Smart(Qt::AlignmentFlag alignment = Qt::AlignLeft, int maximumItemsPerRow = -1)
        : Opened<SmartLayout>(nullptr, QMargins(), 5, 3, alignment, maximumItemsPerRow, ofItems)
    {
    }

    QString placed(int width)
    {
        setGeometry(QRect(0, 0, width, 1000));
        return Blocks::text(*this);
    }

    /// Returns how many items each row has in \a width: "3 3 1".
    QString rows(int width)
    {
        setGeometry(QRect(0, 0, width, 1000));
        QMap<int, int> counts;
        for (const QRect &rect : Blocks::rects(*this))
            ++counts[rect.top()];
        QStringList texts;
        for (const int count : qAsConst(counts))
            texts += QString::number(count);
        return texts.join(QLatin1Char(' '));
    }
};

} // namespace

/// Where a SmartLayout breaks its lines and puts its items.
class tst_SmartLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsNothingToTheMetaObject();
    void keepsItsAlignment();
    void placesItems_data();
    void placesItems();
    void breaksLinesForWidth_data();
    void breaksLinesForWidth();
    void limitsItemsPerRow_data();
    void limitsItemsPerRow();
    void lowersTheLimitForTheRowsBelow();
    void fixesItemsPerRow_data();
    void fixesItemsPerRow();
    void fixesThemEvenIfTheyOverflow();
    void countsNewLimitsFromTheNextPass();
    void doesNotDivideByALimitOfZero();
    void alignsEachRowByItself_data();
    void alignsEachRowByItself();
    void alignsARowThatIsTooWide_data();
    void alignsARowThatIsTooWide();
    void needsTheHeightOfAllRows();
    void needsItsBottomMarginWithoutItems();
    void measuresWithoutMovingAnything();
    void placesWithinItsRectangleAndMargins();
};

void tst_SmartLayout::addsNothingToTheMetaObject()
{
    const QMetaObject &meta = SmartLayout::staticMetaObject;
    QCOMPARE(meta.superClass(), &FlowLayout::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_SmartLayout::keepsItsAlignment()
{
    const Smart layout(Qt::AlignRight);
    QCOMPARE(layout.alignment(), Qt::Alignment(Qt::AlignRight));
    QWidget window;
    const SmartLayout onWindow(&window, QMargins(1, 2, 3, 4), 5, 6, Qt::AlignCenter, 7, ofWidgets);
    QCOMPARE(window.layout(), &onWindow);
    QCOMPARE(onWindow.alignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(onWindow.contentsMargins(), QMargins(1, 2, 3, 4));
    QCOMPARE(onWindow.horizontalSpacing(), 5);
    QCOMPARE(onWindow.verticalSpacing(), 6);
}

void tst_SmartLayout::placesItems_data()
{
    QTest::addColumn<std::vector<QSize>>("sizes");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("placed");
    QTest::newRow("one row") << std::vector<QSize> { { 20, 10 }, { 10, 30 } } << 100
                             << QStringLiteral("0,0 20x10 | 25,0 10x30");
    QTest::newRow("a row begins below the tallest of the one above")
            << std::vector<QSize> { { 20, 10 }, { 20, 30 }, { 20, 10 }, { 20, 20 }, { 20, 5 } }
            << 50
            << QStringLiteral("0,0 20x10 | 25,0 20x30 | 0,33 20x10 | 25,33 20x20 | 0,56 20x5");
    QTest::newRow("items without a size") << std::vector<QSize> { { 0, 0 }, { 0, 0 } } << 0
                                          << QStringLiteral("0,0 0x0 | 5,0 0x0");
}

void tst_SmartLayout::placesItems()
{
    QFETCH(const std::vector<QSize>, sizes);
    QFETCH(const int, width);
    Smart layout;
    Blocks::fill(layout, sizes);
    QTEST(layout.placed(width), "placed");
}

void tst_SmartLayout::breaksLinesForWidth_data()
{
    QTest::addColumn<std::vector<QSize>>("sizes");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("rows");
    const std::vector<QSize> four(4, QSize(20, 10));
    QTest::newRow("room for all") << four << 96 << QStringLiteral("4");
    QTest::newRow("the last would end at the edge") << four << 95 << QStringLiteral("3 1");
    QTest::newRow("room for less than one") << four << 10 << QStringLiteral("1 1 1 1");
    QTest::newRow("the first is too wide")
            << std::vector<QSize> { { 90, 10 }, { 20, 10 }, { 20, 10 } } << 60
            << QStringLiteral("1 2");
    QTest::newRow("a row of items without a height never breaks")
            << std::vector<QSize>(4, QSize(20, 0)) << 30 << QStringLiteral("4");
    QTest::newRow("it breaks once an item has one")
            << std::vector<QSize> { { 20, 0 }, { 20, 0 }, { 20, 1 }, { 20, 0 } } << 30
            << QStringLiteral("3 1");
}

void tst_SmartLayout::breaksLinesForWidth()
{
    QFETCH(const std::vector<QSize>, sizes);
    QFETCH(const int, width);
    Smart layout;
    Blocks::fill(layout, sizes);
    QTEST(layout.rows(width), "rows");
}

void tst_SmartLayout::limitsItemsPerRow_data()
{
    QTest::addColumn<int>("limit");
    QTest::addColumn<QString>("rows");
    QTest::newRow("no limit") << -1 << QStringLiteral("7");
    QTest::newRow("one") << 1 << QStringLiteral("1 1 1 1 1 1 1");
    QTest::newRow("two") << 2 << QStringLiteral("2 2 2 1");
    QTest::newRow("as many as there are") << 7 << QStringLiteral("7");
    QTest::newRow("more than there are") << 8 << QStringLiteral("7");
}

void tst_SmartLayout::limitsItemsPerRow()
{
    QFETCH(const int, limit);
    Smart layout(Qt::AlignLeft, limit);
    Blocks::fill(layout, std::vector<QSize>(7, QSize(20, 10)));
    QTEST(layout.rows(1000), "rows");
}

void tst_SmartLayout::lowersTheLimitForTheRowsBelow()
{
    // The wide items limit the first row to three, and so the rows below, which have room for five.
    std::vector<QSize> sizes(10, QSize(10, 10));
    std::fill_n(sizes.begin(), 3, QSize(30, 10));
    Smart layout(Qt::AlignLeft, 5);
    Blocks::fill(layout, sizes);
    QCOMPARE(layout.rows(106), QStringLiteral("3 3 3 1"));

    Smart unlimited;
    Blocks::fill(unlimited, sizes);
    QCOMPARE(unlimited.rows(106), QStringLiteral("3 7"));

    Smart equal(Qt::AlignLeft, 5);
    Blocks::fill(equal, std::vector<QSize>(10, QSize(20, 10)));
    QCOMPARE(equal.rows(71), QStringLiteral("3 3 3 1"));
}

void tst_SmartLayout::fixesItemsPerRow_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("limit");
    QTest::addColumn<QString>("rows");
    QTest::newRow("none: the limit counts") << 0 << 2 << QStringLiteral("2 2 2 1");
    QTest::newRow("a negative number is none") << -3 << 2 << QStringLiteral("2 2 2 1");
    QTest::newRow("one") << 1 << -1 << QStringLiteral("1 1 1 1 1 1 1");
    QTest::newRow("three") << 3 << -1 << QStringLiteral("3 3 1");
    QTest::newRow("more than the limit") << 5 << 2 << QStringLiteral("5 2");
}

void tst_SmartLayout::fixesItemsPerRow()
{
    QFETCH(const int, count);
    QFETCH(const int, limit);
    Smart layout(Qt::AlignLeft, limit);
    layout.setFixedItemsPerRow(count);
    Blocks::fill(layout, std::vector<QSize>(7, QSize(20, 10)));
    QTEST(layout.rows(1000), "rows");
}

void tst_SmartLayout::fixesThemEvenIfTheyOverflow()
{
    Smart layout;
    layout.setFixedItemsPerRow(3);
    Blocks::fill(layout, std::vector<QSize>(7, QSize(20, 10)));
    QCOMPARE(layout.rows(30), QStringLiteral("3 3 1"));
    QCOMPARE(Blocks::text(layout.itemAt(2)->geometry()), QStringLiteral("50,0 20x10"));
}

void tst_SmartLayout::countsNewLimitsFromTheNextPass()
{
    QWidget window;
    SmartLayout layout(&window, QMargins(), 5, 3, Qt::AlignLeft, -1, ofItems);
    for (int i = 0; i < 4; ++i)
        layout.addWidget(new Block(QSize(20, 10)));
    window.resize(200, 200);
    layout.activate();
    const QString before = Blocks::text(layout);
    layout.setMaximumItemsPerRow(2);
    layout.setFixedItemsPerRow(1);
    QVERIFY(!layout.activate());
    QCOMPARE(Blocks::text(layout), before);
    layout.invalidate();
    layout.activate();
    QCOMPARE(Blocks::text(layout),
             QStringLiteral("0,0 20x10 | 0,13 20x10 | 0,26 20x10 | 0,39 20x10"));
    layout.setFixedItemsPerRow(0);
    layout.invalidate();
    layout.activate();
    QCOMPARE(Blocks::text(layout),
             QStringLiteral("0,0 20x10 | 25,0 20x10 | 0,13 20x10 | 25,13 20x10"));
}

void tst_SmartLayout::doesNotDivideByALimitOfZero()
{
    Smart layout(Qt::AlignLeft, 0);
    Blocks::fill(layout, std::vector<QSize>(3, QSize(20, 10)));
    QCOMPARE(layout.rows(1000), QStringLiteral("3"));
    QCOMPARE(layout.rows(46), QStringLiteral("2 1"));
}

void tst_SmartLayout::alignsEachRowByItself_data()
{
    QTest::addColumn<Qt::AlignmentFlag>("alignment");
    QTest::addColumn<QString>("placed");
    // Rows of 45 and 30 pixels in 100, whose right edge is at 99: 55 and 70 to spare.
    const QString left = QStringLiteral("0,0 20x10 | 25,0 20x10 | 0,13 30x10");
    const QString right = QStringLiteral("55,0 20x10 | 80,0 20x10 | 70,13 30x10");
    QTest::newRow("left") << Qt::AlignLeft << left;
    QTest::newRow("centre, rounded down to a pixel")
            << Qt::AlignCenter << QStringLiteral("27,0 20x10 | 52,0 20x10 | 35,13 30x10");
    QTest::newRow("right") << Qt::AlignRight << right;
    QTest::newRow("horizontal centre alone goes right") << Qt::AlignHCenter << right;
    QTest::newRow("justified goes right") << Qt::AlignJustify << right;
    QTest::newRow("top goes right") << Qt::AlignTop << right;
    QTest::newRow("leading is left: both have the same value") << Qt::AlignLeading << left;
}

void tst_SmartLayout::alignsEachRowByItself()
{
    QFETCH(const Qt::AlignmentFlag, alignment);
    Smart layout(alignment, 2);
    Blocks::fill(layout, { { 20, 10 }, { 20, 10 }, { 30, 10 } });
    QTEST(layout.placed(100), "placed");
}

void tst_SmartLayout::alignsARowThatIsTooWide_data()
{
    QTest::addColumn<Qt::AlignmentFlag>("alignment");
    QTest::addColumn<QString>("placed");
    // The first row reaches 15 pixels beyond the right edge, the second one spares 10.
    QTest::newRow("left: it hangs over at the right")
            << Qt::AlignLeft << QStringLiteral("0,0 20x10 | 25,0 20x10 | 0,13 20x10");
    QTest::newRow("centre: half of it at each side, rounded down to a pixel")
            << Qt::AlignCenter << QStringLiteral("-7,0 20x10 | 18,0 20x10 | 5,13 20x10");
    QTest::newRow("right: it hangs over at the left")
            << Qt::AlignRight << QStringLiteral("-15,0 20x10 | 10,0 20x10 | 10,13 20x10");
}

void tst_SmartLayout::alignsARowThatIsTooWide()
{
    QFETCH(const Qt::AlignmentFlag, alignment);
    Smart layout(alignment);
    layout.setFixedItemsPerRow(2);
    Blocks::fill(layout, std::vector<QSize>(3, QSize(20, 10)));
    QTEST(layout.placed(30), "placed");
}

void tst_SmartLayout::needsTheHeightOfAllRows()
{
    Smart layout(Qt::AlignLeft, 2);
    Blocks::fill(layout, { { 20, 10 }, { 20, 90 }, { 20, 10 } });
    QCOMPARE(layout.heightForWidth(100), 103);
    layout.setContentsMargins(1, 100, 1, 1000);
    QCOMPARE(layout.heightForWidth(100), 1203);
}

void tst_SmartLayout::needsItsBottomMarginWithoutItems()
{
    Smart layout;
    layout.setContentsMargins(1, 2, 3, 4);
    QCOMPARE(layout.heightForWidth(100), 2 + 4);
    QCOMPARE(layout.doLayout(QRect(10, 20, 100, 100), true), 2 + 4);
}

void tst_SmartLayout::measuresWithoutMovingAnything()
{
    Smart layout;
    Blocks::fill(layout, { { 20, 10 }, { 20, 10 } });
    QCOMPARE(layout.doLayout(QRect(7, 9, 30, 0), false), 23);
    QCOMPARE(Blocks::text(layout), QStringLiteral("0,0 0x0 | 0,0 0x0"));
    QCOMPARE(layout.doLayout(QRect(7, 9, 30, 0), true), 23);
    QCOMPARE(Blocks::text(layout), QStringLiteral("7,9 20x10 | 7,22 20x10"));
}

void tst_SmartLayout::placesWithinItsRectangleAndMargins()
{
    Smart layout(Qt::AlignRight);
    layout.setContentsMargins(10, 20, 30, 40);
    Blocks::fill(layout, { { 20, 10 }, { 20, 10 }, { 20, 10 } });
    layout.setGeometry(QRect(100, 200, 86, 500));
    QCOMPARE(Blocks::text(layout), QStringLiteral("111,220 20x10 | 136,220 20x10 | 136,233 20x10"));
    QCOMPARE(layout.heightForWidth(86), 20 + 23 + 40);
    QCOMPARE(layout.heightForWidth(85), 20 + 36 + 40);
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_SmartLayout)
#include "tst_smartlayout.moc"
