// SPDX-License-Identifier: Apache-2.0
#include "Told.h"
#include "support/TestApplication.h"
#include "widgets/TabBars.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

using TabBars::Bar;

namespace {

using Act = void (*)(Bar &bar);

/// What is done with a bar of four tabs, of which "b" is current, and the selections that are told.
struct Change
{
    const char *name;
    Act act;
    const char *events;
};

const Change changes[] = {
    { "another tab is current", [](Bar &bar) { bar.setCurrentIndex(2); },
      "SelectionRemove b | Selection c" },
    { "the same tab is current", [](Bar &bar) { bar.setCurrentIndex(1); }, "" },
    { "no tab at the index", [](Bar &bar) { bar.setCurrentIndex(-1); }, "" },
    { "a click", [](Bar &bar) { bar.getTab(3)->click(); }, "SelectionRemove b | Selection d" },
    { "a click on the current tab", [](Bar &bar) { bar.getTab(1)->click(); }, "" },
    { "with signals blocked",
      [](Bar &bar) {
          const QSignalBlocker blocker(bar);
          bar.setCurrentIndex(0);
      },
      "SelectionRemove b | Selection a" },
    { "the current tab is removed", [](Bar &bar) { bar.removeTab(1); }, "Selection a" },
    { "a tab behind the current one is removed, and the first one is current",
      [](Bar &bar) { bar.removeTab(3); }, "SelectionRemove b | Selection a" },
    { "the tab before the current one is removed, which is current again",
      [](Bar &bar) { bar.removeTab(0); }, "Selection b" },
    { "the current tab is hidden", [](Bar &bar) { bar.setTabVisible(1, false); }, "" },
    { "the current tab is disabled", [](Bar &bar) { bar.setTabEnabled(1, false); }, "" },
    { "a tab is added", [](Bar &bar) { bar.addTab(QStringLiteral("e")); }, "" },
};

QString selectionsOf(const QString &events)
{
    QStringList selections = events.split(QStringLiteral(" | "));
    return selections.filter(QStringLiteral("Selection")).join(QStringLiteral(" | "));
}

} // namespace

Q_DECLARE_METATYPE(const Change *)

/// What assistive technology is told when a tab bar and its tabs change.
class tst_AccessibleTabsChanges : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhichTabIsSelected_data();
    void tellsWhichTabIsSelected();
    void tellsOfTheSelectionBeforeItsSignal();
    void tellsTheOtherChangesOfATab();
    void tellsOfATabThatWasAButtonBefore();
    void tellsOfATabInADisabledBar();
    void followsTabsThatAreAddedAndRemoved();
    void forgetsTabsThatAreDeleted();
    void leavesOtherChildrenWhatTheyAre();
    void tellsNothingWithoutTabs();
};

void tst_AccessibleTabsChanges::tellsWhichTabIsSelected_data()
{
    QTest::addColumn<const Change *>("change");
    for (const Change &change : changes)
        QTest::newRow(change.name) << &change;
}

void tst_AccessibleTabsChanges::tellsWhichTabIsSelected()
{
    QFETCH(const Change *const, change);
    QWidget window;
    Bar bar(4, &window);
    window.show();
    bar.setCurrentIndex(1);
    Told::Events events;
    change->act(bar);
    QCOMPARE(selectionsOf(events.take()), QString::fromLatin1(change->events));
    // Exactly one tab is selected, the current one.
    for (int i = 0; i < bar.count(); ++i)
        QCOMPARE(bool(Told::of(bar.getTab(i))->state().selected), i == bar.currentIndex());
}

void tst_AccessibleTabsChanges::tellsOfTheSelectionBeforeItsSignal()
{
    Bar bar(2);
    bar.setCurrentIndex(0);
    Told::Events events;
    QString before;
    connect(&bar, &OxaTabBar::currentChanged, &bar, [&] { before = events.take(); });
    bar.setCurrentIndex(1);
    QCOMPARE(before,
             QStringLiteral("StateChanged b | StateChanged a | SelectionRemove a | "
                            "Selection b"));
    QCOMPARE(events.take(), QString());
}

void tst_AccessibleTabsChanges::tellsTheOtherChangesOfATab()
{
    QWidget window;
    Bar bar(2, &window);
    window.show();
    Told::Events events;
    bar.setTabText(1, QStringLiteral("z"));
    QCOMPARE(events.take(), QStringLiteral("NameChanged z"));
    bar.setAccessibleTabName(1, QStringLiteral("last"));
    QCOMPARE(events.take(), QStringLiteral("NameChanged last"));
    bar.setTabEnabled(1, false);
    QCOMPARE(events.take(), QStringLiteral("StateChanged last"));
    bar.setTabVisible(1, false);
    QCOMPARE(events.take(), QStringLiteral("ObjectHide last"));
    bar.setTabVisible(1, true);
    QCOMPARE(events.take(), QStringLiteral("ObjectShow last"));
}

void tst_AccessibleTabsChanges::tellsOfATabThatWasAButtonBefore()
{
    QWidget window;
    auto *button = new OxaPushButton(QStringLiteral("x"), &window);
    QAccessibleInterface *told = Told::of(button);
    QCOMPARE(Told::describe(told), QStringLiteral("Button x"));
    Bar bar(0, &window);
    bar.addTabItem(button);
    QCOMPARE(Told::describe(told), QStringLiteral("PageTab x"));
    QCOMPARE(Told::of(button), told);
    QCOMPARE(told->actionInterface()->actionNames().first(), QStringLiteral("Press"));
    bar.layout()->removeWidget(button);
    QCOMPARE(Told::describe(told), QStringLiteral("Button x"));
}

void tst_AccessibleTabsChanges::tellsOfATabInADisabledBar()
{
    QWidget window;
    window.setEnabled(false);
    Bar bar(1, &window);
    bar.setCurrentIndex(0);
    QCOMPARE(Told::describe(Told::of(&bar)), QStringLiteral("PageTabList"));
    QCOMPARE(Told::children(Told::of(&bar)), QStringLiteral("PageTab a"));
    window.setEnabled(true);
    QVERIFY(!Told::of(bar.getTab(0))->state().disabled);
}

void tst_AccessibleTabsChanges::followsTabsThatAreAddedAndRemoved()
{
    Bar bar(2);
    QAccessibleInterface *list = Told::of(&bar);
    QAccessibleInterface *second = list->child(1);
    bar.addTab(QStringLiteral("c"));
    QCOMPARE(Told::children(list), QStringLiteral("PageTab a | PageTab b | PageTab c"));
    bar.removeTab(0);
    QCOMPARE(Told::children(list), QStringLiteral("PageTab b | PageTab c"));
    QCOMPARE(list->indexOfChild(second), 0);
    bar.removeAllTabs();
    QCOMPARE(list->childCount(), 0);
}

void tst_AccessibleTabsChanges::forgetsTabsThatAreDeleted()
{
    auto *bar = new Bar(3);
    const QAccessible::Id list = QAccessible::uniqueId(Told::of(bar));
    QVector<QAccessible::Id> tabs;
    for (int i = 0; i < 3; ++i)
        tabs += QAccessible::uniqueId(Told::of(bar->getTab(i)));
    bar->removeTab(0);
    delete bar->getTab(1);
    QVERIFY(!QAccessible::accessibleInterface(tabs.at(0)));
    QVERIFY(!QAccessible::accessibleInterface(tabs.at(2)));
    QCOMPARE(Told::children(QAccessible::accessibleInterface(list)), QStringLiteral("PageTab b"));
    delete bar;
    QVERIFY(!QAccessible::accessibleInterface(tabs.at(1)));
    QVERIFY(!QAccessible::accessibleInterface(list));
}

void tst_AccessibleTabsChanges::leavesOtherChildrenWhatTheyAre()
{
    Bar bar(1);
    OxaPushButton overflow(QStringLiteral("more"), &bar);
    auto *plain = new QPushButton(QStringLiteral("plain"));
    bar.layout()->addWidget(plain);
    QCOMPARE(Told::children(Told::of(&bar)),
             QStringLiteral("PageTab a | Button more | Button plain"));
}

void tst_AccessibleTabsChanges::tellsNothingWithoutTabs()
{
    Bar bar(1);
    bar.setCurrentIndex(0);
    Told::Events events;
    bar.removeTab(0);
    QCOMPARE(selectionsOf(events.take()), QString());
    QCOMPARE(Told::of(&bar)->role(), QAccessible::PageTabList);
}

UIELEMENTS_TEST_MAIN(tst_AccessibleTabsChanges)
#include "tst_accessibletabs_changes.moc"
