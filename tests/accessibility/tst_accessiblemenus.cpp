// SPDX-License-Identifier: Apache-2.0
#include "Told.h"
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/svg/OxaSvgAnchorButton.h>
#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/widgets/OxaMenu.h>
#include <UiElements/widgets/OxaSeparator.h>
#include <UiElements/widgets/OxaVMenu.h>

#include <QPointer>

namespace {

OxaColorSetMap store()
{
    return ColorSets::storeOf({
            ColorSets::make(QStringLiteral("mainList-item"), { "#204060" }),
            ColorSets::make(QStringLiteral("oxa-menuItemButton-text"), { "#a0c0e0" }),
            ColorSets::make(QStringLiteral("legacy-separator-primary"), { "#ff0000" }),
            ColorSets::make(QStringLiteral("button-hyperlink-text"), { "#000000" }),
    });
}

OxaSvgPushButton *addItem(OxaVMenu &menu, const QString &text,
                          const std::function<void()> &callback = {})
{
    const auto item = menu.addMenuItem(callback);
    item->setText(text);
    return item.get();
}

} // namespace

/// What assistive technology is told of menus.
class tst_AccessibleMenus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_stores = std::make_unique<StoreGuard>(store()); }
    void cleanupTestCase() { m_stores.reset(); }

    void tellsOfAMenuAndItsItems();
    void tellsTheStatesOfItems();
    void tellsThatAnItemAndNotItsMenuHasTheFocus();
    void callsTheFunctionOfAnItemThatIsPressed();
    void survivesTheDeletionOfAMenuWhoseItemIsPressed();
    void forgetsItemsThatAreCleared();
    void tellsOfAContextMenuAndItsActions();
    void tellsOfSharedActionsInTheMenuThatIsOpen();
    void triggersAnActionThatIsPressed();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_AccessibleMenus::tellsOfAMenuAndItsItems()
{
    OxaVMenu menu;
    menu.setWindowTitle(QStringLiteral("Meeting"));
    menu.addSectionTitle()->setText(QStringLiteral("Options"));
    addItem(menu, QStringLiteral("&Leave"));
    menu.addSeparator();
    menu.addSpacer(4);
    menu.addButton()->setText(QStringLiteral("Share"));
    menu.addAnchorButton()->setText(QStringLiteral("Mute"));
    OxaSvgPushButton *link = menu.addButton();
    link->setText(QStringLiteral("Help"));
    link->setAccessibleRole(QAccessible::Link);
    menu.addWidget(new QPushButton(QStringLiteral("plain")));
    QAccessibleInterface *told = Told::of(&menu);
    QCOMPARE(Told::describe(told), QStringLiteral("PopupMenu Meeting"));
    QCOMPARE(Told::children(told),
             QStringLiteral("StaticText Options | MenuItem Leave | Separator | MenuItem Share | "
                            "MenuItem Mute | Link Help | Button plain"));
}

void tst_AccessibleMenus::tellsTheStatesOfItems()
{
    OxaVMenu menu;
    OxaSvgPushButton *item = addItem(menu, QStringLiteral("Leave"));
    OxaSvgAnchorButton *anchor = menu.addAnchorButton();
    menu.show();
    QCOMPARE(Told::states(Told::of(item)), QStringLiteral("focusable"));
    QCOMPARE(Told::states(Told::of(anchor)), QStringLiteral("focusable checkable"));
    anchor->setChecked(true);
    item->setEnabled(false);
    QCOMPARE(Told::states(Told::of(anchor)), QStringLiteral("focusable checkable checked"));
    QCOMPARE(Told::states(Told::of(item)), QStringLiteral("disabled focusable"));
    QCOMPARE(Told::of(item)->actionInterface()->actionNames(), QStringList());
    item->hide();
    QVERIFY(Told::of(item)->state().invisible);
}

void tst_AccessibleMenus::tellsThatAnItemAndNotItsMenuHasTheFocus()
{
    QWidget window;
    OxaVMenu menu(&window);
    QCOMPARE(bool(Told::of(&menu)->state().focusable), true);
    addItem(menu, QStringLiteral("Leave"));
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.setFocus();
    Told::Events events(QAccessible::Focus);
    menu.setFocus();
    QCOMPARE(events.take(), QStringLiteral("Focus Leave"));
    QCOMPARE(Told::states(Told::of(&menu)), QString());
    QCOMPARE(Told::describe(Told::of(&menu)->focusChild()), QStringLiteral("MenuItem Leave"));
}

void tst_AccessibleMenus::callsTheFunctionOfAnItemThatIsPressed()
{
    OxaVMenu menu;
    int calls = 0;
    const OxaSvgPushButton *item = addItem(menu, QStringLiteral("Leave"), [&calls] { ++calls; });
    OxaSvgAnchorButton *anchor = menu.addAnchorButton();
    menu.show();
    Told::of(menu.focusProxy())->actionInterface()->doAction(QStringLiteral("Press"));
    QVERIFY(item->isDown());
    QTRY_COMPARE(calls, 1);
    Told::of(anchor)->actionInterface()->doAction(QStringLiteral("Press"));
    QTRY_VERIFY(anchor->isChecked());
}

void tst_AccessibleMenus::survivesTheDeletionOfAMenuWhoseItemIsPressed()
{
    QPointer<OxaVMenu> menu = new OxaVMenu;
    OxaSvgPushButton *item = addItem(*menu, QStringLiteral("Leave"), [&menu] { delete menu; });
    menu->show();
    Told::of(item)->actionInterface()->doAction(QStringLiteral("Press"));
    QTRY_VERIFY(!menu);
}

void tst_AccessibleMenus::forgetsItemsThatAreCleared()
{
    OxaVMenu menu;
    const QAccessible::Id item = QAccessible::uniqueId(
            Told::of(addItem(menu, QStringLiteral("a"))));
    menu.clear();
    QVERIFY(!QAccessible::accessibleInterface(item));
    QCOMPARE(Told::of(&menu)->childCount(), 0);
    addItem(menu, QStringLiteral("b"));
    QCOMPARE(Told::children(Told::of(&menu)), QStringLiteral("MenuItem b"));
}

void tst_AccessibleMenus::tellsOfAContextMenuAndItsActions()
{
    OxaMenu menu;
    menu.setAccessibleName(QStringLiteral("Message"));
    QAction *copy = menu.addAction(QStringLiteral("&Copy"));
    menu.addSeparator();
    QAction *pin = menu.addAction(QStringLiteral("Pin"));
    pin->setCheckable(true);
    pin->setChecked(true);
    copy->setEnabled(false);
    QAccessibleInterface *told = Told::of(&menu);
    QCOMPARE(Told::describe(told), QStringLiteral("PopupMenu Message"));
    QCOMPARE(Told::children(told), QStringLiteral("MenuItem Copy | Separator | MenuItem Pin"));
    menu.popupAt(QPoint(10, 10));
    menu.setActiveAction(pin);
    QCOMPARE(Told::states(told->child(0)), QStringLiteral("disabled"));
    QCOMPARE(Told::states(told->child(2)), QStringLiteral("focused checkable checked"));
}

void tst_AccessibleMenus::tellsOfSharedActionsInTheMenuThatIsOpen()
{
    OxaMenu menu;
    menu.addAction(QStringLiteral("Copy"));
    auto copy = std::make_unique<OxaMenu>(&menu);
    const auto isTold = [](OxaMenu *each) {
        each->popupAt(QPoint(10, 10));
        const QAccessibleInterface *item = Told::of(each)->child(0);
        const bool isRight = item->isValid() && !item->state().invisible;
        each->hide();
        return isRight;
    };
    for (OxaMenu *each : { &menu, copy.get(), &menu, copy.get() })
        QVERIFY(isTold(each));
    copy.reset();
    QVERIFY(isTold(&menu));
}

void tst_AccessibleMenus::triggersAnActionThatIsPressed()
{
    OxaMenu menu;
    QAction *action = menu.addAction(QStringLiteral("Copy"));
    SignalLog log;
    log.record(action, &QAction::triggered, QStringLiteral("triggered"));
    Told::of(&menu)->child(0)->actionInterface()->doAction(QStringLiteral("Press"));
    QCOMPARE(log.take(), QStringLiteral("triggered"));
}

UIELEMENTS_TEST_MAIN(tst_AccessibleMenus)
#include "tst_accessiblemenus.moc"
