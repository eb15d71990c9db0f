// SPDX-License-Identifier: Apache-2.0
#include "PlainFlow.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/layouts/AutoGridLayout.h>
#include <UiElements/layouts/FixedItemRatioLayoutNotSupportScroll.h>
#include <UiElements/layouts/SmartLayout.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QHBoxLayout>
#include <QMetaMethod>
#include <QPointer>
#include <QTest>

using Blocks::Item;

namespace {

/// A FlowLayout that overrides its minimum size.
class LargeFlow : public PlainFlow
{
public:
    using PlainFlow::PlainFlow;
    QSize minimumSize() const override { return { 300, 200 }; }
};

/// An item that records its deletion in \a log.
class LoggingItem : public Item
{
public:
    LoggingItem(QString name, QStringList &log)
        : Item(QSize(10, 10)), m_name(std::move(name)), m_log(log)
    {
    }
    Q_DISABLE_COPY_MOVE(LoggingItem)
    ~LoggingItem() override { m_log += m_name; }

private:
    const QString m_name;
    QStringList &m_log;
};

using Ratio = FixedItemRatioLayoutNotSupportScroll;

const QMargins margins(1, 2, 3, 4);
const QMargins exchanged(3, 2, 1, 4);

QString placed(FlowLayout &layout)
{
    Blocks::fill(layout, { { 10, 10 }, { 20, 10 }, { 30, 10 } });
    layout.setGeometry(QRect(0, 0, 100, 100));
    return Blocks::text(layout);
}

} // namespace

Q_DECLARE_METATYPE(QMargins)
Q_DECLARE_METATYPE(std::vector<QSize>)

class tst_FlowLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAQLayoutWithOneProtectedSlot();
    void keepsItemsInOrder();
    void hasNoItemAtABadIndex_data();
    void hasNoItemAtABadIndex();
    void handsAnItemToTheCaller();
    void hasNoWidgetWhereTheItemHasNone();
    void findsTheFirstItemOfAWidget();
    void leavesInvalidationToItsCallers();
    void exchangesTheFirstItemWithThePrependedOne_data();
    void exchangesTheFirstItemWithThePrependedOne();
    void invalidatesWhenItPrepends();
    void deletesItsItemsInOrder();
    void leavesItsWidgetsAlive();
    void deletesALayoutInside();
    void measuresFromTheOrigin();
    void appliesItsGeometry();
    void needsRoomForItsLargestItem_data();
    void needsRoomForItsLargestItem();
    void wantsItsMinimumSize();
    void neverAsksForMoreRoomThanItsItems();

    void exchangesItsMarginsWhenTheDirectionChanges();
    void restoresItsMarginsWhenItChangesBack();
    void keepsItsMarginsWhenItIsMadeRightToLeft();
    void exchangesTheMarginsThatAreSetLater();
    void exchangesItsMarginsWithoutAParentToo();
    void hasItsMarginsExchangedBackByAnOxaWidget();
    void invalidatesWhenTheDirectionChanges();
    void placesFromTheLeftInBothDirections();
};

void tst_FlowLayout::isAQLayoutWithOneProtectedSlot()
{
    const QMetaObject &meta = FlowLayout::staticMetaObject;
    QCOMPARE(meta.superClass(), &QLayout::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod method = meta.method(meta.methodOffset());
    QCOMPARE(method.methodSignature(), QByteArray("onLayoutDirectionChanged()"));
    QCOMPARE(method.methodType(), QMetaMethod::Slot);
    QCOMPARE(method.access(), QMetaMethod::Protected);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_FlowLayout::keepsItemsInOrder()
{
    const Letters letters(QStringLiteral("ABC"));
    QCOMPARE(letters.layout.count(), 3);
    QCOMPARE(letters.order(), QStringLiteral("ABC"));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(letters.layout.itemAt(i)->widget(), letters.layout.widgetAt(i));
}

void tst_FlowLayout::hasNoItemAtABadIndex_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("negative") << -1;
    QTest::newRow("the lowest number") << std::numeric_limits<int>::min();
    QTest::newRow("one too many") << 3;
    QTest::newRow("the highest number") << std::numeric_limits<int>::max();
}

void tst_FlowLayout::hasNoItemAtABadIndex()
{
    QFETCH(const int, index);
    Letters letters(QStringLiteral("ABC"));
    QCOMPARE(letters.layout.itemAt(index), nullptr);
    QCOMPARE(letters.layout.widgetAt(index), nullptr);
    QCOMPARE(letters.layout.takeAt(index), nullptr);
    QCOMPARE(letters.order(), QStringLiteral("ABC"));
}

void tst_FlowLayout::handsAnItemToTheCaller()
{
    Letters letters(QStringLiteral("ABC"));
    QWidget *second = letters.layout.widgetAt(1);
    const std::unique_ptr<QLayoutItem> item(letters.layout.takeAt(1));
    QCOMPARE(item->widget(), second);
    QCOMPARE(letters.order(), QStringLiteral("AC"));
}

void tst_FlowLayout::hasNoWidgetWhereTheItemHasNone()
{
    PlainFlow layout(QMargins(), 0, 0);
    layout.addItem(new Item(QSize(10, 10)));
    QVERIFY(layout.itemAt(0));
    QCOMPARE(layout.widgetAt(0), nullptr);
}

void tst_FlowLayout::findsTheFirstItemOfAWidget()
{
    Letters letters(QStringLiteral("ABC"));
    QWidget *second = letters.layout.widgetAt(1);
    letters.layout.addItem(new QWidgetItem(second));
    QWidget stranger;
    QCOMPARE(letters.layout.indexOf(second), 1);
    QCOMPARE(letters.layout.indexOf(&stranger), -1);
    QCOMPARE(letters.layout.indexOf(static_cast<QWidget *>(nullptr)), -1);
    QCOMPARE(letters.layout.indexOf(letters.layout.itemAt(3)), 3);
}

void tst_FlowLayout::leavesInvalidationToItsCallers()
{
    Letters letters(QStringLiteral("ABC"));
    letters.layout.invalidations = 0;
    letters.layout.addItem(new Item(QSize(10, 10)));
    delete letters.layout.takeAt(0);
    QCOMPARE(letters.layout.invalidations, 0);
}

void tst_FlowLayout::exchangesTheFirstItemWithThePrependedOne_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("the former first becomes the last")
            << QStringLiteral("ABC") << QStringLiteral("DBCA");
    QTest::newRow("one item") << QStringLiteral("A") << QStringLiteral("DA");
    QTest::newRow("no items") << QString() << QStringLiteral("D");
}

void tst_FlowLayout::exchangesTheFirstItemWithThePrependedOne()
{
    QFETCH(const QString, before);
    Letters letters(before);
    letters.layout.prependWidget(new QLabel(QStringLiteral("D")));
    QTEST(letters.order(), "after");
    QCOMPARE(letters.layout.widgetAt(0)->parentWidget(), &letters);
}

void tst_FlowLayout::invalidatesWhenItPrepends()
{
    Letters letters(QStringLiteral("ABC"));
    letters.layout.invalidations = 0;
    letters.layout.prependWidget(new QLabel(QStringLiteral("D")));
    QVERIFY(letters.layout.invalidations > 0);
}

void tst_FlowLayout::deletesItsItemsInOrder()
{
    QStringList log;
    {
        PlainFlow layout(QMargins(), 0, 0);
        for (const char *name : { "A", "B", "C" })
            layout.addItem(new LoggingItem(QString::fromLatin1(name), log));
    }
    QCOMPARE(log.join(QString()), QStringLiteral("ABC"));
}

void tst_FlowLayout::leavesItsWidgetsAlive()
{
    QWidget window;
    const QPointer<QWidget> child = new QWidget;
    auto *layout = new PlainFlow(&window, QMargins(), 0, 0);
    layout->addWidget(child);
    delete layout;
    QVERIFY(child);
    QCOMPARE(child->parentWidget(), &window);
}

void tst_FlowLayout::deletesALayoutInside()
{
    // A layout that is deleted removes itself from the layout around it.
    QPointer<QLayout> inner;
    {
        QWidget window;
        auto *outer = new PlainFlow(&window, QMargins(), 0, 0);
        inner = new PlainFlow(QMargins(), 0, 0);
        inner->setParent(outer);
        outer->addItem(new Item(QSize(10, 10)));
        outer->addItem(inner);
        outer->addItem(new Item(QSize(10, 10)));
    }
    QVERIFY(!inner);
}

void tst_FlowLayout::measuresFromTheOrigin()
{
    const PlainFlow layout(QMargins(1, 2, 3, 4), 0, 0);
    QVERIFY(layout.hasHeightForWidth());
    QCOMPARE(layout.heightForWidth(120), 42);
    QCOMPARE(layout.passes, { QStringLiteral("measure 0,0 120x0") });
}

void tst_FlowLayout::appliesItsGeometry()
{
    PlainFlow layout(QMargins(1, 2, 3, 4), 0, 0);
    layout.setGeometry(QRect(5, 6, 70, 80));
    QCOMPARE(layout.geometry(), QRect(5, 6, 70, 80));
    QCOMPARE(layout.passes, { QStringLiteral("apply 5,6 70x80") });
}

void tst_FlowLayout::needsRoomForItsLargestItem_data()
{
    QTest::addColumn<std::vector<QSize>>("sizes");
    QTest::addColumn<QMargins>("room");
    QTest::addColumn<QSize>("minimum");
    QTest::newRow("no items: a pixel less than the margins")
            << std::vector<QSize>() << margins << QSize(3, 5);
    QTest::newRow("neither items nor margins")
            << std::vector<QSize>() << QMargins() << QSize(-1, -1);
    QTest::newRow("one item") << std::vector<QSize> { { 30, 20 } } << margins << QSize(34, 26);
    QTest::newRow("the widest and the highest")
            << std::vector<QSize> { { 30, 20 }, { 10, 50 }, { 20, 5 } } << margins << QSize(34, 56);
}

void tst_FlowLayout::needsRoomForItsLargestItem()
{
    QFETCH(const std::vector<QSize>, sizes);
    QFETCH(const QMargins, room);
    PlainFlow layout(room, 7, 9);
    Blocks::fill(layout, sizes);
    QTEST(layout.minimumSize(), "minimum");
    QTEST(layout.sizeHint(), "minimum");
}

void tst_FlowLayout::wantsItsMinimumSize()
{
    const LargeFlow layout(QMargins(), 0, 0);
    QCOMPARE(layout.sizeHint(), QSize(300, 200));
}

void tst_FlowLayout::neverAsksForMoreRoomThanItsItems()
{
    PlainFlow layout(QMargins(), 0, 0);
    auto *item = new Item(QSize(10, 10));
    layout.addItem(item);
    QCOMPARE(item->expandingDirections(), Qt::Horizontal | Qt::Vertical);
    QCOMPARE(layout.expandingDirections(), Qt::Orientations());
}

void tst_FlowLayout::exchangesItsMarginsWhenTheDirectionChanges()
{
    QWidget window;
    const PlainFlow layout(&window, margins, 0, 0);
    QCOMPARE(layout.contentsMargins(), margins);
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    QCOMPARE(layout.contentsMargins(), exchanged);
}

void tst_FlowLayout::restoresItsMarginsWhenItChangesBack()
{
    const PlainFlow layout(margins, 0, 0);
    {
        const LayoutDirectionGuard direction(Qt::RightToLeft);
    }
    QCOMPARE(layout.contentsMargins(), margins);
}

void tst_FlowLayout::keepsItsMarginsWhenItIsMadeRightToLeft()
{
    auto direction = std::make_unique<LayoutDirectionGuard>(Qt::RightToLeft);
    const PlainFlow layout(margins, 0, 0);
    QCOMPARE(layout.contentsMargins(), margins);
    direction.reset();
    QCOMPARE(layout.contentsMargins(), exchanged);
}

void tst_FlowLayout::exchangesTheMarginsThatAreSetLater()
{
    PlainFlow layout(margins, 0, 0);
    layout.setContentsMargins(10, 20, 30, 40);
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    QCOMPARE(layout.contentsMargins(), QMargins(30, 20, 10, 40));
}

void tst_FlowLayout::exchangesItsMarginsWithoutAParentToo()
{
    const PlainFlow layout(margins, 0, 0);
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    QCOMPARE(layout.contentsMargins(), exchanged);
}

void tst_FlowLayout::hasItsMarginsExchangedBackByAnOxaWidget()
{
    OxaWidget widget;
    const PlainFlow layout(&widget, margins, 0, 0);
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    QCOMPARE(layout.contentsMargins(), margins);
}

void tst_FlowLayout::invalidatesWhenTheDirectionChanges()
{
    PlainFlow layout(margins, 0, 0);
    layout.invalidations = 0;
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    QCOMPARE(layout.invalidations, 1);
}

void tst_FlowLayout::placesFromTheLeftInBothDirections()
{
    const QMargins equal(5, 5, 5, 5);
    const auto placedByAll = [&equal] {
        AutoGridLayout grid(equal, 2, 2);
        SmartLayout smart(nullptr, equal, 2, 2, Qt::AlignLeft, -1, false);
        Ratio ratio(equal, 2, 2);
        return placed(grid) + QLatin1Char('\n') + placed(smart) + QLatin1Char('\n') + placed(ratio);
    };
    const QString leftToRight = placedByAll();
    QVERIFY2(leftToRight.startsWith(QLatin1String("5,5 10x10 | 17,5 20x10 | 39,5 30x10")),
             qPrintable(leftToRight));
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    QCOMPARE(placedByAll(), leftToRight);
}

UIELEMENTS_TEST_MAIN(tst_FlowLayout)
#include "tst_flowlayout.moc"
