// SPDX-License-Identifier: Apache-2.0
#include "TabBars.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"

#include <QPointer>

using TabBars::Bar;
using TabBars::describe;
using TabBars::record;

/// Tabs and bars that go, by a call or in a slot.
class tst_OxaTabBarRemoval : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavesExactlyOneTabCheckedAndInTheTabChainAfterARemoval_data();
    void leavesExactlyOneTabCheckedAndInTheTabChainAfterARemoval();
    void hasNoCurrentTabAfterTheLastRemoval();
    void ignoresTheRemovalOfNoTab();
    void removesAllTabsWithOneSignal();
    void unblocksItsSignalsWhenAllTabsAreRemoved();
    void isDeletedInASlot_data();
    void isDeletedInASlot();
    void losesATabInASlot_data();
    void losesATabInASlot();
    void losesATabWhileAnotherIsChecked();
};

void tst_OxaTabBarRemoval::leavesExactlyOneTabCheckedAndInTheTabChainAfterARemoval_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("removed");
    QTest::addColumn<QString>("tabs");
    QTest::newRow("the current one") << 1 << 1 << QStringLiteral("a*!^ c d");
    QTest::newRow("the first and current one") << 0 << 0 << QStringLiteral("b*!^ c d");
    QTest::newRow("one before the current one") << 2 << 0 << QStringLiteral("b*!^ c d");
    QTest::newRow("one behind the current one") << 2 << 3 << QStringLiteral("a*!^ b c");
    QTest::newRow("the one before the current one") << 1 << 0 << QStringLiteral("b*!^ c d");
    QTest::newRow("another, the first being current") << 0 << 2 << QStringLiteral("a*!^ b d");
    QTest::newRow("one without a current one") << -1 << 2 << QStringLiteral("a*!^ b d");
}

void tst_OxaTabBarRemoval::leavesExactlyOneTabCheckedAndInTheTabChainAfterARemoval()
{
    QFETCH(const int, current);
    QFETCH(const int, removed);
    QFETCH(const QString, tabs);
    Bar bar(4);
    bar.setCurrentIndex(current);
    const QPointer<QWidget> tab = bar.getTab(removed);
    SignalLog log;
    record(log, bar);
    bar.removeTab(removed);
    QVERIFY(!tab);
    QCOMPARE(bar.currentIndex(), 0);
    QCOMPARE(describe(bar), tabs);
    QCOMPARE(log.take(), QStringLiteral("current 0"));
}

void tst_OxaTabBarRemoval::hasNoCurrentTabAfterTheLastRemoval()
{
    Bar bar(1);
    bar.setCurrentIndex(0);
    SignalLog log;
    record(log, bar);
    bar.removeTab(0);
    QCOMPARE(bar.count(), 0);
    QCOMPARE(bar.currentIndex(), -1);
    QVERIFY(!bar.focusProxy());
    QCOMPARE(log.take(), QStringLiteral("current -1"));
}

void tst_OxaTabBarRemoval::ignoresTheRemovalOfNoTab()
{
    Bar bar(2);
    bar.setCurrentIndex(1);
    SignalLog log;
    record(log, bar);
    for (const int index : { -1, 2, INT_MIN, INT_MAX })
        bar.removeTab(index);
    QCOMPARE(describe(bar), QStringLiteral("a b*!^"));
    QCOMPARE(log.take(), QString());
}

void tst_OxaTabBarRemoval::removesAllTabsWithOneSignal()
{
    for (const int tabs : { 3, 0 }) {
        Bar bar(tabs);
        bar.setCurrentIndex(1);
        SignalLog log;
        record(log, bar);
        bar.removeAllTabs();
        QCOMPARE(bar.count(), 0);
        QCOMPARE(bar.currentIndex(), -1);
        QCOMPARE(log.take(), QStringLiteral("current -1"));
    }
}

void tst_OxaTabBarRemoval::unblocksItsSignalsWhenAllTabsAreRemoved()
{
    Bar bar(2);
    SignalLog log;
    record(log, bar);
    bar.blockSignals(true);
    bar.removeAllTabs();
    QCOMPARE(log.take(), QStringLiteral("current -1"));
    QVERIFY(!bar.signalsBlocked());
}

void tst_OxaTabBarRemoval::isDeletedInASlot_data()
{
    QTest::addColumn<bool>("isByClick");
    QTest::addColumn<bool>("isInTabClicked");
    QTest::newRow("of currentChanged(), by a click") << true << false;
    QTest::newRow("of currentChanged(), by a removal") << false << false;
    QTest::newRow("of tabClicked()") << true << true;
}

void tst_OxaTabBarRemoval::isDeletedInASlot()
{
    QFETCH(const bool, isByClick);
    QFETCH(const bool, isInTabClicked);
    auto *bar = new Bar(3);
    const QPointer<Bar> guard(bar);
    if (isInTabClicked)
        connect(bar, &OxaTabBar::tabClicked, this, [bar] { delete bar; });
    else
        connect(bar, &OxaTabBar::currentChanged, this, [bar] { delete bar; });
    if (isByClick)
        QTest::mouseClick(bar->getTab(1), Qt::LeftButton);
    else
        bar->removeTab(1);
    QVERIFY(!guard);
}

void tst_OxaTabBarRemoval::losesATabInASlot_data()
{
    QTest::addColumn<int>("removed");
    QTest::addColumn<bool>("isInTabClicked");
    QTest::addColumn<QString>("emitted");
    QTest::newRow("the clicked one, in currentChanged()")
            << 1 << false << QStringLiteral("current 1 | current 0 | clicked -1 0");
    QTest::newRow("another, in currentChanged()")
            << 2 << false << QStringLiteral("current 1 | current 0 | clicked -1 0");
    QTest::newRow("the clicked one, in tabClicked()")
            << 1 << true << QStringLiteral("current 1 | clicked -1 1 | current 0");
}

void tst_OxaTabBarRemoval::losesATabInASlot()
{
    QFETCH(const int, removed);
    QFETCH(const bool, isInTabClicked);
    QFETCH(const QString, emitted);
    Bar bar(3);
    SignalLog log;
    record(log, bar);
    const auto removeOnce = [&bar, removed] {
        if (bar.count() == 3)
            bar.removeTab(removed);
    };
    if (isInTabClicked)
        connect(&bar, &OxaTabBar::tabClicked, this, removeOnce);
    else
        connect(&bar, &OxaTabBar::currentChanged, this, removeOnce);
    QTest::mouseClick(bar.getTab(1), Qt::LeftButton);
    QCOMPARE(log.take(), emitted);
    QCOMPARE(bar.currentIndex(), 0);
    QCOMPARE(describe(bar), removed == 1 ? QStringLiteral("a*!^ c") : QStringLiteral("a*!^ b"));
}

void tst_OxaTabBarRemoval::losesATabWhileAnotherIsChecked()
{
    Bar bar(3);
    SignalLog log;
    record(log, bar);
    connect(bar.getTab(2), &OxaPushButton::toggled, this, [&bar] {
        if (bar.count() == 3)
            bar.removeTab(0);
    });
    bar.setCurrentIndex(2);
    QCOMPARE(bar.currentIndex(), 1);
    QCOMPARE(describe(bar), QStringLiteral("b c*!^"));
    QCOMPARE(log.take(), QStringLiteral("current 0 | current 1"));
}

UIELEMENTS_TEST_MAIN(tst_OxaTabBarRemoval)
#include "tst_oxatabbar_removal.moc"
