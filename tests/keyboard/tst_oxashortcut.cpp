// SPDX-License-Identifier: Apache-2.0
#include "support/ContextTranslator.h"
#include "support/TestMain.h"

#include <UiElements/keyboard/OxaKeyboardShortcutsGroup.h>
#include <UiElements/keyboard/OxaKeyboardShortcutsManager.h>
#include <UiElements/keyboard/OxaShortcut.h>

#include <QMetaEnum>
#include <QMetaObject>
#include <QTest>
#include <QWidget>

#include <type_traits>

namespace {

const QKeySequence keys(Qt::CTRL | Qt::Key_K);

} // namespace

/// OxaShortcut, its groups, and OxaKeyboardShortcutsManager.
class tst_OxaShortcut : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasGroupsAsBits();
    void startsWithoutKeysInAllGroups();
    void startsWithoutAWindow();
    void takesWhatQShortcutTakes();
    void takesADescriptionAndAGroup();
    void returnsItselfForChains();
    void namesItsGroup_data();
    void namesItsGroup();
    void translatesTheGroupInItsOwnContext();

    void enablesAgainWhatWasEnabled();
    void leavesDisabledWhatWasDisabled();
    void losesTheStateWhenItIsDisabledTwice();
    void disablesWhenNothingWasRemembered();

    void numbersTheSections();
    void isAPlainValue();

    void addsNothingToOxaObject();
    void isDeletedWithItsParent();
};

void tst_OxaShortcut::hasGroupsAsBits()
{
    const auto groups = QMetaEnum::fromType<OxaShortcut::ShortcutGroup>();
    QStringList values;
    for (int index = 0; index < groups.keyCount(); ++index)
        values += QStringLiteral("%1 %2")
                          .arg(QLatin1String(groups.key(index)))
                          .arg(groups.value(index));
    QCOMPARE(values.join(QLatin1String(", ")),
             QStringLiteral("General 1, Messaging 2, CallingAndMeeting 4, Tool 8, All 15"));
    QCOMPARE(OxaShortcut::General | OxaShortcut::Messaging | OxaShortcut::CallingAndMeeting
                     | OxaShortcut::Tool,
             OxaShortcut::All);
}

void tst_OxaShortcut::startsWithoutKeysInAllGroups()
{
    QWidget window;
    const OxaShortcut shortcut(&window);
    QCOMPARE(shortcut.parentWidget(), &window);
    QCOMPARE(shortcut.key(), QKeySequence());
    QCOMPARE(shortcut.getShortcutDescription(), QString());
    QCOMPARE(shortcut.getShortcutGroup(), OxaShortcut::All);
    QVERIFY(shortcut.isEnabled());
}

void tst_OxaShortcut::startsWithoutAWindow()
{
    const OxaShortcut shortcut;
    QVERIFY(!shortcut.parent());
    QCOMPARE(shortcut.getShortcutGroup(), OxaShortcut::All);
}

void tst_OxaShortcut::takesWhatQShortcutTakes()
{
    QWidget window;
    window.setEnabled(false);
    OxaShortcut shortcut(keys, &window, SLOT(show()), SLOT(hide()), Qt::WidgetShortcut);
    QCOMPARE(shortcut.key(), keys);
    QCOMPARE(shortcut.parentWidget(), &window);
    QCOMPARE(shortcut.context(), Qt::WidgetShortcut);
    QCOMPARE(shortcut.getShortcutDescription(), QString());
    QCOMPARE(shortcut.getShortcutGroup(), OxaShortcut::All);
    Q_EMIT shortcut.activated();
    QVERIFY(window.isVisible());
    Q_EMIT shortcut.activatedAmbiguously();
    QVERIFY(!window.isVisible());
}

void tst_OxaShortcut::takesADescriptionAndAGroup()
{
    QWidget window;
    const OxaShortcut shortcut(keys, &window, QStringLiteral("Search"), OxaShortcut::Messaging);
    QCOMPARE(shortcut.key(), keys);
    QCOMPARE(shortcut.parentWidget(), &window);
    QCOMPARE(shortcut.context(), Qt::WindowShortcut);
    QCOMPARE(shortcut.getShortcutDescription(), QStringLiteral("Search"));
    QCOMPARE(shortcut.getShortcutGroup(), OxaShortcut::Messaging);
}

void tst_OxaShortcut::returnsItselfForChains()
{
    QWidget window;
    OxaShortcut shortcut(&window);
    QCOMPARE(shortcut.setShortcutKey(keys)
                     ->setShortcutDescription(QStringLiteral("Search"))
                     ->setShortcutGroup(OxaShortcut::Tool),
             &shortcut);
    QCOMPARE(shortcut.key(), keys);
    QCOMPARE(shortcut.getShortcutDescription(), QStringLiteral("Search"));
    QCOMPARE(shortcut.getShortcutGroup(), OxaShortcut::Tool);
}

void tst_OxaShortcut::namesItsGroup_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<QString>("name");
    QTest::newRow("general") << 1 << QStringLiteral("General");
    QTest::newRow("messaging") << 2 << QStringLiteral("Messaging");
    QTest::newRow("calling and meeting") << 4 << QStringLiteral("Meetings and calling");
    QTest::newRow("tools have no name") << 8 << QString();
    QTest::newRow("all groups have no name") << 15 << QString();
    QTest::newRow("two groups have no name") << 3 << QString();
    QTest::newRow("no group has no name") << 0 << QString();
}

void tst_OxaShortcut::namesItsGroup()
{
    QFETCH(int, group);
    QFETCH(QString, name);
    QWidget window;
    OxaShortcut shortcut(&window);
    shortcut.setShortcutGroup(OxaShortcut::ShortcutGroup(group));
    QCOMPARE(shortcut.getShortcutGroupName(), name);
}

void tst_OxaShortcut::translatesTheGroupInItsOwnContext()
{
    QWidget window;
    const OxaShortcut shortcut(keys, &window, QString(), OxaShortcut::CallingAndMeeting);
    const ContextTranslator translator;
    QCOMPARE(shortcut.getShortcutGroupName(), QStringLiteral("OxaShortcut/Meetings and calling"));
}

void tst_OxaShortcut::enablesAgainWhatWasEnabled()
{
    QWidget window;
    OxaShortcut shortcut(&window);
    shortcut.temporarilyDisable(true);
    QVERIFY(!shortcut.isEnabled());
    shortcut.temporarilyDisable(false);
    QVERIFY(shortcut.isEnabled());
}

void tst_OxaShortcut::leavesDisabledWhatWasDisabled()
{
    QWidget window;
    OxaShortcut shortcut(&window);
    shortcut.setEnabled(false);
    shortcut.temporarilyDisable(true);
    QVERIFY(!shortcut.isEnabled());
    shortcut.temporarilyDisable(false);
    QVERIFY(!shortcut.isEnabled());
}

void tst_OxaShortcut::losesTheStateWhenItIsDisabledTwice()
{
    QWidget window;
    OxaShortcut shortcut(&window);
    shortcut.temporarilyDisable(true);
    shortcut.temporarilyDisable(true);
    shortcut.temporarilyDisable(false);
    QVERIFY(!shortcut.isEnabled());
}

void tst_OxaShortcut::disablesWhenNothingWasRemembered()
{
    QWidget window;
    OxaShortcut shortcut(&window);
    shortcut.temporarilyDisable(false);
    QVERIFY(!shortcut.isEnabled());
}

void tst_OxaShortcut::numbersTheSections()
{
    const auto sections = QMetaEnum::fromType<OxaKeyboardShortcutsGroup::ShortcutGroup>();
    QCOMPARE(sections.scope(), "OxaKeyboardShortcutsGroup");
    QStringList values;
    for (int index = 0; index < sections.keyCount(); ++index)
        values += QStringLiteral("%1 %2")
                          .arg(QLatin1String(sections.key(index)))
                          .arg(sections.value(index));
    QCOMPARE(values.join(QLatin1String(", ")),
             QStringLiteral("None 0, General 1, Messaging 2, Formatting 3, MeetingsAndCalling 4"));
}

void tst_OxaShortcut::isAPlainValue()
{
    QVERIFY(std::is_default_constructible_v<OxaKeyboardShortcutsGroup>);
    QVERIFY(std::is_copy_assignable_v<OxaKeyboardShortcutsGroup>);
    QVERIFY(std::is_move_assignable_v<OxaKeyboardShortcutsGroup>);
    QVERIFY(!(std::is_base_of_v<QObject, OxaKeyboardShortcutsGroup>));
}

void tst_OxaShortcut::addsNothingToOxaObject()
{
    const OxaKeyboardShortcutsManager manager;
    const QMetaObject *type = manager.metaObject();
    QCOMPARE(type->className(), "OxaKeyboardShortcutsManager");
    QCOMPARE(type->superClass(), &OxaObject::staticMetaObject);
    QCOMPARE(type->methodCount(), type->methodOffset());
    QCOMPARE(type->propertyCount(), type->propertyOffset());
    QVERIFY(!manager.parent());
    QVERIFY(manager.children().isEmpty());
}

void tst_OxaShortcut::isDeletedWithItsParent()
{
    auto parent = std::make_unique<QObject>();
    const QPointer<OxaKeyboardShortcutsManager> manager = new OxaKeyboardShortcutsManager(
            parent.get());
    QCOMPARE(manager->parent(), parent.get());
    parent.reset();
    QVERIFY(!manager);
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_OxaShortcut)
#include "tst_oxashortcut.moc"
