// SPDX-License-Identifier: Apache-2.0
#include "Told.h"
#include "support/TestApplication.h"
#include "widgets/TabBars.h"

#include <QHBoxLayout>

using TabBars::Bar;

/// What assistive technology is told of a tab bar.
class tst_AccessibleTabs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsOfAListOfPageTabs();
    void tellsTheStatesOfTabs();
    void tellsThatATabAndNotItsBarHasTheFocus();
    void namesATab_data();
    void namesATab();
    void describesATabOnce_data();
    void describesATabOnce();
    void tellsARoleThatATabStores();
    void switchesToATabThatIsPressed();
    void pressesATabLikeAClick();
    void pressesNoTabThatIsDisabled();
    void survivesTheDeletionOfABarWhoseTabIsPressed();
};

void tst_AccessibleTabs::tellsOfAListOfPageTabs()
{
    Bar bar(3);
    bar.setAccessibleName(QStringLiteral("Folders"));
    QAccessibleInterface *list = Told::of(&bar);
    QCOMPARE(Told::describe(list), QStringLiteral("PageTabList Folders"));
    QCOMPARE(Told::children(list), QStringLiteral("PageTab a | PageTab b | PageTab c"));
    QAccessibleInterface *second = list->child(1);
    QCOMPARE(second->object(), bar.getTab(1));
    QCOMPARE(second->parent(), list);
    QCOMPARE(list->indexOfChild(second), 1);
    QCOMPARE(second->childCount(), 0);
    bar.setAccessibleName(QString());
    bar.setToolTip(QStringLiteral("Folders of this account"));
    QCOMPARE(Told::nameOf(list), QStringLiteral("Folders of this account"));
}

void tst_AccessibleTabs::tellsTheStatesOfTabs()
{
    QWidget window;
    Bar bar(4, &window);
    window.show();
    bar.setCurrentIndex(1);
    bar.setTabEnabled(2, false);
    bar.setTabVisible(3, false);
    QAccessibleInterface *list = Told::of(&bar);
    const QString other = QStringLiteral("focusable selectable checkable");
    QCOMPARE(Told::states(list->child(0)), other);
    QCOMPARE(Told::states(list->child(1)),
             QStringLiteral("focusable selectable selected checkable checked"));
    QCOMPARE(Told::states(list->child(2)), QStringLiteral("disabled ") + other);
    QCOMPARE(Told::states(list->child(3)), QStringLiteral("invisible ") + other);
    bar.setTabEnabled(2, true);
    bar.setTabVisible(3, true);
    QCOMPARE(Told::states(list->child(2)), other);
    QCOMPARE(Told::states(list->child(3)), other);
}

void tst_AccessibleTabs::tellsThatATabAndNotItsBarHasTheFocus()
{
    QWidget window;
    Bar bar(2, &window);
    window.show();
    QAccessibleInterface *list = Told::of(&bar);
    QCOMPARE(Told::states(list), QStringLiteral("focusable"));
    bar.setCurrentIndex(1);
    QCOMPARE(Told::states(list), QString());
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.setFocus();
    Told::Events events(QAccessible::Focus);
    bar.setFocus();
    QCOMPARE(events.take(), QStringLiteral("Focus b"));
    QCOMPARE(Told::states(list), QString());
    QCOMPARE(Told::describe(list->focusChild()), QStringLiteral("PageTab b"));
    QVERIFY(list->child(1)->state().focused);
    QTest::keyClick(bar.getTab(1), Qt::Key_Left);
    QCOMPARE(events.take(), QStringLiteral("Focus a"));
    QCOMPARE(Told::describe(list->focusChild()), QStringLiteral("PageTab a"));
}

void tst_AccessibleTabs::namesATab_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("accessibleName");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QString>("name");
    const QString inbox = QStringLiteral("Inbox");
    const QString none;
    QTest::newRow("the accessible name first")
            << inbox << QStringLiteral("Inbox, 3 unread") << QStringLiteral("Mail")
            << QStringLiteral("Inbox, 3 unread");
    QTest::newRow("the text") << inbox << none << QStringLiteral("Mail") << inbox;
    QTest::newRow("the tool tip last")
            << none << none << QStringLiteral("Mail") << QStringLiteral("Mail");
    QTest::newRow("nothing") << none << none << none << none;
    QTest::newRow("a text with a key") << QStringLiteral("&Inbox") << none << none << inbox;
    QTest::newRow("a key inside") << QStringLiteral("In&box") << none << none << inbox;
    QTest::newRow("an ampersand") << QStringLiteral("To && &Cc") << none << none
                                  << QStringLiteral("To & Cc");
    QTest::newRow("an ampersand at the end") << QStringLiteral("Inbox&") << none << none << inbox;
}

void tst_AccessibleTabs::namesATab()
{
    QFETCH(const QString, text);
    QFETCH(const QString, accessibleName);
    QFETCH(const QString, toolTip);
    OxaTabBar bar;
    bar.addTab(text, accessibleName);
    bar.setTabToolTip(0, toolTip);
    QTEST(Told::nameOf(Told::of(bar.getTab(0))), "name");
}

void tst_AccessibleTabs::describesATabOnce_data()
{
    QTest::addColumn<QString>("accessibleName");
    QTest::addColumn<QString>("accessibleDescription");
    QTest::addColumn<QString>("description");
    const QString text = QStringLiteral("Inbox");
    const QString more = QStringLiteral("Inbox, 3 unread");
    QTest::newRow("by the tool tip, where that is not the name") << more << QString() << text;
    QTest::newRow("not by the tool tip, where it is the name")
            << QString() << QString() << QString();
    QTest::newRow("not by its name, as the bar sets it") << more << more << QString();
    QTest::newRow("by its description") << QString() << more << more;
}

void tst_AccessibleTabs::describesATabOnce()
{
    QFETCH(const QString, accessibleName);
    QFETCH(const QString, accessibleDescription);
    OxaTabBar bar;
    bar.addTab(QStringLiteral("Inbox"), accessibleName);
    bar.getTab(0)->setAccessibleDescription(accessibleDescription);
    QTEST(Told::of(bar.getTab(0))->text(QAccessible::Description), "description");
}

void tst_AccessibleTabs::tellsARoleThatATabStores()
{
    Bar bar(2);
    bar.getTab(1)->setAccessibleRole(QAccessible::Link);
    QCOMPARE(Told::children(Told::of(&bar)), QStringLiteral("PageTab a | Link b"));
    bar.getTab(1)->setAccessibleRole(QAccessible::NoRole);
    QCOMPARE(Told::children(Told::of(&bar)), QStringLiteral("PageTab a | PageTab b"));
    bar.setProperty("accessibleRole", QVariant::fromValue(QAccessible::ToolBar));
    QCOMPARE(Told::of(&bar)->role(), QAccessible::ToolBar);
}

void tst_AccessibleTabs::switchesToATabThatIsPressed()
{
    QWidget window;
    Bar bar(3, &window);
    window.show();
    bar.setCurrentIndex(0);
    QAccessibleActionInterface *actions = Told::of(bar.getTab(2))->actionInterface();
    QCOMPARE(actions->actionNames(),
             QStringList({ QStringLiteral("Press"), QStringLiteral("SetFocus") }));
    actions->doAction(QStringLiteral("Toggle"));
    QCOMPARE(bar.getTab(2)->isDown(), false);
    actions->doAction(QStringLiteral("Press"));
    QTRY_COMPARE(bar.currentIndex(), 2);
    QCOMPARE(TabBars::describe(bar), QStringLiteral("a b c*!^"));
    QVERIFY(QTest::qWaitForWindowActive(&window));
    Told::of(bar.getTab(1))->actionInterface()->doAction(QStringLiteral("SetFocus"));
    QCOMPARE(QApplication::focusWidget(), bar.getTab(1));
    QCOMPARE(bar.currentIndex(), 2);
}

void tst_AccessibleTabs::pressesATabLikeAClick()
{
    QWidget window;
    Bar bar(3, &window);
    window.show();
    bar.setCurrentIndex(0);
    SignalLog log;
    TabBars::record(log, bar);
    for (int tab = 0; tab < 3; ++tab) {
        log.record(bar.getTab(tab), &QPushButton::pressed, QStringLiteral("pressed"));
        log.record(bar.getTab(tab), &QPushButton::released, QStringLiteral("released"));
        log.record(bar.getTab(tab), &QPushButton::toggled, QStringLiteral("toggled"));
        log.record(bar.getTab(tab), &QPushButton::clicked, QStringLiteral("clicked"));
    }
    QTest::mouseClick(bar.getTab(1), Qt::LeftButton);
    const QString clicked = log.take();
    QVERIFY(clicked.contains(QStringLiteral("current 1")));
    Told::of(bar.getTab(2))->actionInterface()->doAction(QStringLiteral("Press"));
    QTRY_COMPARE(bar.currentIndex(), 2);
    QString expected = clicked;
    expected.replace(QLatin1String("current 1"), QLatin1String("current 2"));
    expected.replace(QLatin1String("clicked 0 1"), QLatin1String("clicked 1 2"));
    QCOMPARE(log.take(), expected);
}

void tst_AccessibleTabs::pressesNoTabThatIsDisabled()
{
    QWidget window;
    Bar bar(2, &window);
    window.show();
    bar.setTabEnabled(1, false);
    QAccessibleActionInterface *actions = Told::of(bar.getTab(1))->actionInterface();
    QCOMPARE(actions->actionNames(), QStringList());
    actions->doAction(QStringLiteral("Press"));
    QVERIFY(!bar.getTab(1)->isDown());
}

void tst_AccessibleTabs::survivesTheDeletionOfABarWhoseTabIsPressed()
{
    QWidget window;
    QPointer<Bar> bar = new Bar(2, &window);
    window.show();
    connect(bar, &OxaTabBar::currentChanged, &window, [bar] { delete bar; });
    const QAccessible::Id tab = QAccessible::uniqueId(Told::of(bar->getTab(1)));
    QAccessible::accessibleInterface(tab)->actionInterface()->doAction(QStringLiteral("Press"));
    QTRY_VERIFY(!bar);
    QVERIFY(!QAccessible::accessibleInterface(tab));
}

UIELEMENTS_TEST_MAIN(tst_AccessibleTabs)
#include "tst_accessibletabs.moc"
