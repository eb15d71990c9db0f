// SPDX-License-Identifier: Apache-2.0
#include "Blocks.h"

#include <UiElements/layouts/SmartLayout.h>

#include <QPointer>
#include <QSpacerItem>
#include <QTest>

using Blocks::Block;
using Blocks::Item;

Q_DECLARE_METATYPE(Qt::AlignmentFlag)

namespace {

constexpr bool ofItems = false;
constexpr bool ofWidgets = true;

/// A window with a block that wants 20 by 10 pixels and may have 15 by 40.
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

} // namespace

/// What a SmartLayout asks of its widgets, and what becomes of them.
class tst_SmartLayoutWidgets : public QObject
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
};

void tst_SmartLayoutWidgets::asksItemsForSizesByDefault()
{
    Limited limited(ofItems);
    QCOMPARE(limited.layout.itemAt(0)->sizeHint(), QSize(15, 12));
    QCOMPARE(limited.block->geometry(), QRect(0, 0, 15, 12));
    QCOMPARE(limited.layout.heightForWidth(100), 12);
}

void tst_SmartLayoutWidgets::asksWidgetsForSizesWhenItUsesWidgetSizing()
{
    Limited limited(ofWidgets);
    QCOMPARE(limited.layout.heightForWidth(100), 10);
    // A widget keeps its own limits in any geometry that it is given.
    QCOMPARE(limited.block->geometry(), QRect(0, 0, 15, 12));
    limited.block->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    limited.block->setMinimumHeight(0);
    limited.block->hide();
    limited.layout.setGeometry(QRect(0, 0, 50, 50));
    // The item of a hidden widget would have wanted nothing and moved nothing.
    QCOMPARE(limited.layout.itemAt(0)->sizeHint(), QSize(0, 0));
    QCOMPARE(limited.block->geometry(), QRect(0, 0, 20, 10));
}

void tst_SmartLayoutWidgets::usesTheItemWhereThereIsNoWidget()
{
    SmartLayout layout(nullptr, QMargins(), 5, 3, Qt::AlignLeft, 1, ofWidgets);
    Blocks::fill(layout, { { 20, 10 }, { 30, 10 } });
    layout.setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(Blocks::text(layout), QStringLiteral("0,0 20x10 | 0,13 30x10"));
}

void tst_SmartLayoutWidgets::givesASingleColumnTheSizesOfItsWidgets()
{
    Limited limited(ofItems, 1);
    limited.block->setMinimumHeight(0);
    limited.block->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    limited.block->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    QCOMPARE(limited.layout.itemAt(0)->sizeHint(), QSize(0, 0));
    limited.layout.setGeometry(QRect(0, 0, 50, 50));
    QCOMPARE(limited.block->geometry(), QRect(0, 0, 20, 10));
    // The height is measured with what the item wants, all the same.
    QCOMPARE(limited.layout.heightForWidth(50), 0);
}

void tst_SmartLayoutWidgets::alignsASingleColumnByTheSizesOfItsWidgets_data()
{
    QTest::addColumn<Qt::AlignmentFlag>("alignment");
    QTest::addColumn<int>("left");
    QTest::newRow("left") << Qt::AlignLeft << 0;
    QTest::newRow("centre") << Qt::AlignCenter << 40;
    QTest::newRow("right") << Qt::AlignRight << 80;
}

void tst_SmartLayoutWidgets::alignsASingleColumnByTheSizesOfItsWidgets()
{
    QFETCH(const Qt::AlignmentFlag, alignment);
    QFETCH(const int, left);
    QWidget window;
    SmartLayout layout(&window, QMargins(), 5, 3, alignment, 1, ofItems);
    auto *block = new Block(QSize(20, 10));
    block->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    layout.addWidget(block);
    // By its item, which wants nothing, the row would spare a whole 100 pixels.
    layout.setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(block->geometry(), QRect(left, 0, 20, 10));
}

void tst_SmartLayoutWidgets::deletesWidgetsWhenItClears()
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

void tst_SmartLayoutWidgets::deletesNothingWhenItClearsSpacers()
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

QTEST_MAIN(tst_SmartLayoutWidgets)
#include "tst_smartlayout_widgets.moc"
