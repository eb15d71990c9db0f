// SPDX-License-Identifier: Apache-2.0
#include <UiElements/keyboard/OxaKeyboardShortcutsManager.h>

#include <QMetaObject>
#include <QTest>

class tst_OxaKeyboardShortcutsManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isABareObjectOfTheLibrary();
    void goesWithItsParent();
};

void tst_OxaKeyboardShortcutsManager::isABareObjectOfTheLibrary()
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

void tst_OxaKeyboardShortcutsManager::goesWithItsParent()
{
    auto parent = std::make_unique<QObject>();
    const QPointer<OxaKeyboardShortcutsManager> manager = new OxaKeyboardShortcutsManager(
            parent.get());
    QCOMPARE(manager->parent(), parent.get());
    parent.reset();
    QVERIFY(!manager);
}

QTEST_APPLESS_MAIN(tst_OxaKeyboardShortcutsManager)
#include "tst_oxakeyboardshortcutsmanager.moc"
