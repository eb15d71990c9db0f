// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/RealInput.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <UiElements/widgets/OxaMenu.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QScreen>
#include <QSignalSpy>

namespace {

/// A menu that counts the changes of its theme type.
class Menu : public OxaMenu
{
public:
    using OxaMenu::OxaMenu;

    int themeChanges = 0;

protected:
    void onThemeChanged() override { ++themeChanges; }
};

} // namespace

class tst_OxaMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensWithItsFirstActionHighlighted();
    void opensWithTheActionThatWasSetFirstHighlighted();
    void opensWithNothingHighlightedWithoutActions();
    void opensWithNothingHighlightedIfItsFirstActionIsDisabled();
    void takesTheNextActionOnceTheFirstIsDeleted();
    void takesNoActionThatQtAddsAsItsFirst();
    void copiesTheActionsOfAnotherMenu_data();
    void copiesTheActionsOfAnotherMenu();
    void takesNoCopiedActionAsItsFirst();
    void followsTheThemeOfItsParent();
    void followsNoThemeAsACopyWithoutAParent();
    void expandsItsStyleText();
    void fitsItsActionsWhenItIsShown();
    void choosesItsActionsByKeys_data();
    void choosesItsActionsByKeys();
    void showsAsManyActionsAsQtsMenu_data();
    void showsAsManyActionsAsQtsMenu();
};

void tst_OxaMenu::opensWithItsFirstActionHighlighted()
{
    OxaMenu menu;
    QAction first(QStringLiteral("first"));
    menu.addAction(&first);
    const QAction *second = menu.addAction(QStringLiteral("second"));
    QCOMPARE(second->text(), QStringLiteral("second"));
    QCOMPARE(menu.actions().size(), 2);
    QCOMPARE(menu.getPopupPosition(), QPoint());
    menu.popupAt(QPoint(30, 40));
    QVERIFY(menu.isVisible());
    QCOMPARE(menu.pos(), QPoint(30, 40));
    QCOMPARE(menu.getPopupPosition(), QPoint(30, 40));
    QCOMPARE(menu.activeAction(), &first);
    // A plain popup() does not highlight it.
    menu.hide();
    menu.setActiveAction(nullptr);
    menu.popup(QPoint(10, 10));
    QVERIFY(!menu.activeAction());
    QCOMPARE(menu.getPopupPosition(), QPoint(30, 40));
}

void tst_OxaMenu::opensWithTheActionThatWasSetFirstHighlighted()
{
    OxaMenu menu;
    menu.addAction(QStringLiteral("a"));
    QAction *b = menu.addAction(QStringLiteral("b"));
    menu.setFirstAction(b);
    menu.addAction(QStringLiteral("c"));
    menu.popupAt(QPoint());
    QCOMPARE(menu.activeAction(), b);
    menu.hide();
    menu.setFirstAction(nullptr);
    menu.popupAt(QPoint());
    QVERIFY(!menu.activeAction());
}

void tst_OxaMenu::opensWithNothingHighlightedWithoutActions()
{
    OxaMenu menu;
    menu.popupAt(QPoint(5, 5));
    QVERIFY(menu.isVisible());
    QVERIFY(!menu.activeAction());
}

void tst_OxaMenu::opensWithNothingHighlightedIfItsFirstActionIsDisabled()
{
    OxaMenu menu;
    menu.addAction(QStringLiteral("a"))->setEnabled(false);
    menu.addAction(QStringLiteral("b"));
    menu.popupAt(QPoint());
    QVERIFY(!menu.activeAction());
}

void tst_OxaMenu::takesTheNextActionOnceTheFirstIsDeleted()
{
    OxaMenu menu;
    delete menu.addAction(QStringLiteral("a"));
    QAction *b = menu.addAction(QStringLiteral("b"));
    menu.addAction(QStringLiteral("c"));
    menu.popupAt(QPoint());
    QCOMPARE(menu.activeAction(), b);
    delete b;
    menu.hide();
    menu.popupAt(QPoint());
    QVERIFY(!menu.activeAction());
}

void tst_OxaMenu::takesNoActionThatQtAddsAsItsFirst()
{
    OxaMenu menu;
    menu.addAction(QIcon(), QStringLiteral("with an icon"));
    QAction *plain = menu.addAction(QStringLiteral("plain"));
    menu.popupAt(QPoint());
    QCOMPARE(menu.activeAction(), plain);
}

void tst_OxaMenu::copiesTheActionsOfAnotherMenu_data()
{
    QTest::addColumn<bool>("hasParent");
    QTest::newRow("with a parent") << true;
    QTest::newRow("without a parent") << false;
}

void tst_OxaMenu::copiesTheActionsOfAnotherMenu()
{
    QFETCH(const bool, hasParent);
    QWidget parent;
    QMenu other;
    other.addAction(QStringLiteral("a"));
    other.addSeparator();
    other.addAction(QStringLiteral("b"));
    const std::unique_ptr<OxaMenu> menu(hasParent ? new OxaMenu(&other, &parent)
                                                  : new OxaMenu(&other));
    QCOMPARE(menu->actions(), other.actions());
    QCOMPARE(menu->parentWidget(), hasParent ? &parent : nullptr);
    QMenu *none = nullptr;
    QVERIFY(OxaMenu(none).actions().isEmpty());
    QVERIFY(OxaMenu(none, &parent).actions().isEmpty());
}

void tst_OxaMenu::takesNoCopiedActionAsItsFirst()
{
    QMenu other;
    other.addAction(QStringLiteral("a"));
    OxaMenu menu(&other);
    menu.popupAt(QPoint());
    QVERIFY(!menu.activeAction());
    QAction *b = menu.addAction(QStringLiteral("b"));
    menu.popupAt(QPoint());
    QCOMPARE(menu.activeAction(), b);
}

void tst_OxaMenu::followsTheThemeOfItsParent()
{
    OxaWidget parent;
    QMenu other;
    Menu made(&parent, true);
    Menu copied(&other, &parent);
    parent.setThemeType(QStringLiteral("dark"));
    for (const Menu *menu : { &made, &copied }) {
        QCOMPARE(menu->property("themeType"), QVariant(QStringLiteral("dark")));
        QCOMPARE(menu->themeChanges, 1);
    }
}

void tst_OxaMenu::followsNoThemeAsACopyWithoutAParent()
{
    QMenu other;
    Menu menu(&other);
    QSignalSpy changed(&menu, &OxaMenu::themeTypeChanged);
    menu.setThemeType(QStringLiteral("dark"));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(menu.themeChanges, 0);
}

void tst_OxaMenu::expandsItsStyleText()
{
    const StoreGuard stores(
            ColorSets::storeOf({ ColorSets::make(QStringLiteral("panel"), { "#112233" }) }));
    OxaMenu menu;
    menu.setCSS(QStringLiteral("$backgroundColors: panel;"));
    QVERIFY(menu.styleSheet().contains(QLatin1String("#ff112233")));
}

void tst_OxaMenu::fitsItsActionsWhenItIsShown()
{
    OxaMenu menu;
    menu.addAction(QStringLiteral("a"));
    menu.resize(700, 500);
    menu.show();
    QCOMPARE(menu.size(), menu.sizeHint());
}

void tst_OxaMenu::choosesItsActionsByKeys_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QString>("chosen");
    const QString down = QStringLiteral("Down");
    const QString enter = QStringLiteral("Return");
    QTest::newRow("the first one at once") << QStringList { enter } << QStringLiteral("a");
    QTest::newRow("the second one") << QStringList { down, enter } << QStringLiteral("b");
    QTest::newRow("the last one") << QStringList { QStringLiteral("Up"), enter }
                                  << QStringLiteral("c");
    QTest::newRow("none") << QStringList { down, QStringLiteral("Escape") } << QString();
}

void tst_OxaMenu::choosesItsActionsByKeys()
{
    QFETCH(const QStringList, keys);
    QFETCH(const QString, chosen);
    QWidget window;
    QVERIFY(Windows::activate(window));
    OxaMenu menu(&window);
    for (const char *text : { "a", "b", "c" })
        menu.addAction(QString::fromLatin1(text));
    QString triggered;
    connect(&menu, &QMenu::triggered, this,
            [&triggered](const QAction *action) { triggered += action->text(); });
    menu.popupAt(window.mapToGlobal(QPoint(20, 20)));
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    QVERIFY(RealInput::typeKeys(keys));
    QTRY_VERIFY(!menu.isVisible());
    QCOMPARE(triggered, chosen);
}

void tst_OxaMenu::showsAsManyActionsAsQtsMenu_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("few") << 5;
    QTest::newRow("more than two thirds of the screen") << 30;
    QTest::newRow("more than the screen") << 100;
}

void tst_OxaMenu::showsAsManyActionsAsQtsMenu()
{
    QFETCH(const int, count);
    OxaMenu menu;
    for (int i = 0; i < count; ++i)
        menu.addAction(QString::number(i));
    menu.popupAt(QPoint(20, 30));
    const QRect geometry = menu.geometry();
    menu.hide();
    QMenu plain;
    plain.setFont(menu.font());
    plain.addActions(menu.actions());
    plain.popup(QPoint(20, 30));
    QCOMPARE(geometry, plain.geometry());
    QVERIFY(count < 30 || geometry.height() > plain.screen()->geometry().height() * 2 / 3);
}

UIELEMENTS_TEST_MAIN(tst_OxaMenu)
#include "tst_oxamenu.moc"
