// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/RealInput.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <UiElements/fonts/OxaFont.h>
#include <UiElements/widgets/OxaLineEdit.h>

#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>
#include <QScreen>
#include <QShortcut>
#include <QSignalSpy>
#include <QWindow>

namespace {

/// Opens the context menu of \a edit at \a position in it, and returns it.
QMenu *openMenu(QWidget &edit, const QPoint &position)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, edit.mapToGlobal(position));
    QCoreApplication::sendEvent(&edit, &event);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

/// Returns the finished sheet of context menus, for sets whose colours are those below plus
/// \a shade.
QString menuSheet(int shade)
{
    const QString sheet = QStringLiteral(
            "QMenu {     background-color: #ff0000%1; } QMenu::item {     color: #ff0001%1;     "
            "background-color: #ff0002%1;     height: 32px;     width: 238px;     "
            "padding-top: 5px;     padding-bottom: 5px;     padding-left: 12px;     "
            "padding-right: 12px; } QMenu::item:hover {     color: #ff0101%1;     "
            "background-color: #ff0102%1; } QMenu::item:selected {     color: #ff0101%1;     "
            "background-color: #ff0102%1; } QMenu::item:disabled {     color: #ff0201%1;     "
            "background-color: #ff0202%1; } QMenu::separator {     height: 1px;     "
            "background: #ff0003%1;     margin-left: 12px;     margin-right: 12px; } ");
    return sheet.arg(shade, 2, 16, QLatin1Char('0'));
}

/// Returns the sets of context menus: the red part of a colour tells its state, the green one its
/// set.
OxaColorSetMap menuStore(int shade)
{
    OxaColorSetMap store;
    int number = 0;
    for (const char *name : { "menulistbackground-secondary-background", "listitem-textprimary",
                              "listitem-background", "separator-primary" }) {
        OxaColorSet set(QString::fromLatin1(name), QColor(0, number, shade));
        set.hovered = QColor(1, number, shade);
        set.disabled = QColor(2, number, shade);
        ++number;
        store.emplace(name, set);
    }
    return store;
}

} // namespace

/// A line edit in a real window, under a real pointer and keyboard.
class tst_OxaLineEditInteraction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensAContextMenuInTheColorsOfItsTheme_data();
    void opensAContextMenuInTheColorsOfItsTheme();
    void deletesItsContextMenuAsItCloses();
    void opensNoContextMenuWhereNoneIsWanted();
    void changesUnderThePointer();
    void typesWhatAltGrGives();
    void typesByAltGrAndDeadKeys();
};

void tst_OxaLineEditInteraction::opensAContextMenuInTheColorsOfItsTheme_data()
{
    QTest::addColumn<QString>("themeType");
    QTest::addColumn<int>("shade");
    QTest::newRow("ordinary theme") << QStringLiteral("global") << 16;
    QTest::newRow("inverted theme") << QStringLiteral("inverted") << 32;
}

void tst_OxaLineEditInteraction::opensAContextMenuInTheColorsOfItsTheme()
{
    QFETCH(const QString, themeType);
    QFETCH(const int, shade);
    const StoreGuard stores(menuStore(16), menuStore(32));
    OxaLineEdit edit(QStringLiteral("abc"));
    edit.setFixedSize(200, 30);
    edit.setThemeType(themeType);
    edit.move(50, 60);
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    const QMenu *menu = openMenu(edit, QPoint(5, 7));
    QVERIFY(menu);
    QCOMPARE(menu->styleSheet(), menuSheet(shade));
    QCOMPARE(menu->font(), QFont(OxaFont(OxaFont::Token::BodySecondary)));
    QVERIFY(menu->testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(menu->pos(), edit.mapToGlobal(QPoint(5, 7)));
    QVERIFY(menu->actions().size() > 5);
}

void tst_OxaLineEditInteraction::deletesItsContextMenuAsItCloses()
{
    const StoreGuard stores(menuStore(0));
    OxaLineEdit edit(QStringLiteral("abc"));
    edit.show();
    const QPointer<QMenu> menu = openMenu(edit, QPoint());
    QVERIFY(menu);
    menu->close();
    QTRY_VERIFY(!menu);
}

void tst_OxaLineEditInteraction::opensNoContextMenuWhereNoneIsWanted()
{
    OxaLineEdit edit;
    edit.setContextMenuPolicy(Qt::PreventContextMenu);
    edit.show();
    QVERIFY(!openMenu(edit, QPoint()));
}

/// Returns how many pixels of \a edit on the screen are near \a color.
static int pixelsOnScreen(const QWidget &edit, const QColor &color)
{
    return Pixels::countNear(Windows::onScreen(edit), color);
}

void tst_OxaLineEditInteraction::changesUnderThePointer()
{
    OxaColorSet ground(QStringLiteral("ground"), QColor(0, 200, 0));
    ground.hovered = QColor(0, 0, 200);
    OxaColorSet hint(QStringLiteral("hint"), QColor(1, 1, 1));
    hint.hovered = QColor(2, 2, 2);
    const StoreGuard stores(ColorSets::storeOf({ ground, hint }));
    QVERIFY(RealInput::parkPointer());
    OxaLineEdit edit;
    edit.setCSS(QStringLiteral("$backgroundColors: ground;"));
    edit.setPlaceholderColorSetName(hint.name);
    edit.setGeometry(100, 100, 200, 40);
    edit.show();
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    QTRY_VERIFY(pixelsOnScreen(edit, ground.normal) > 1000);
    QSignalSpy hovered(&edit, &OxaLineEdit::hoveredChanged);
    QVERIFY(RealInput::moveTo(edit, QPoint(50, 20)));
    QTRY_COMPARE(hovered.size(), 1);
    QCOMPARE(hovered.takeFirst().constFirst().toBool(), true);
    QCOMPARE(edit.palette().color(QPalette::PlaceholderText), hint.hovered);
    QTRY_VERIFY(pixelsOnScreen(edit, ground.hovered) > 1000);
    QVERIFY(RealInput::parkPointer());
    QTRY_COMPARE(hovered.size(), 1);
    QCOMPARE(hovered.takeFirst().constFirst().toBool(), false);
    QCOMPARE(edit.palette().color(QPalette::PlaceholderText), hint.normal);
    QTRY_VERIFY(pixelsOnScreen(edit, ground.normal) > 1000);
}

void tst_OxaLineEditInteraction::typesWhatAltGrGives()
{
    OxaLineEdit edit;
    edit.show();
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    edit.setFocus();
    const QShortcut shortcut(QKeySequence(QStringLiteral("Ctrl+Alt+Q")), &edit);
    const QSignalSpy fired(&shortcut, &QShortcut::activated);
    // As keyboards with AltGr report it on some systems.
    QTest::sendKeyEvent(QTest::Click, edit.windowHandle(), Qt::Key_Q, QStringLiteral("@"),
                        Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(fired.size(), 0);
    QTest::sendKeyEvent(QTest::Click, edit.windowHandle(), Qt::Key_Q, QString(),
                        Qt::ControlModifier | Qt::AltModifier);
    QTRY_COMPARE(fired.size(), 1);
}

void tst_OxaLineEditInteraction::typesByAltGrAndDeadKeys()
{
    const RealInput::KeyboardLayoutGuard layout(QStringLiteral("de"));
    OxaLineEdit edit;
    QVERIFY(Windows::activate(edit));
    edit.setFocus();
    const QShortcut shortcut(QKeySequence(QStringLiteral("Ctrl+Alt+Q")), &edit);
    const QSignalSpy fired(&shortcut, &QShortcut::activated);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("ISO_Level3_Shift+q"),
                                  QStringLiteral("dead_acute"), QStringLiteral("e") }));
    QTRY_COMPARE(edit.text(), QString::fromUtf8("@\xc3\xa9"));
    QCOMPARE(fired.size(), 0);
}

UIELEMENTS_TEST_MAIN(tst_OxaLineEditInteraction)
#include "tst_oxalineedit_interaction.moc"
