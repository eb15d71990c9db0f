// SPDX-License-Identifier: Apache-2.0
#include <UiElements/keyboard/OxaKeyboardShortcutsGroup.h>

#include <QMetaEnum>
#include <QTest>

#include <type_traits>

class tst_OxaKeyboardShortcutsGroup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersTheSections();
    void isAPlainValue();
};

void tst_OxaKeyboardShortcutsGroup::numbersTheSections()
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

void tst_OxaKeyboardShortcutsGroup::isAPlainValue()
{
    QVERIFY(std::is_default_constructible_v<OxaKeyboardShortcutsGroup>);
    QVERIFY(std::is_copy_assignable_v<OxaKeyboardShortcutsGroup>);
    QVERIFY(std::is_move_assignable_v<OxaKeyboardShortcutsGroup>);
    QVERIFY(!(std::is_base_of_v<QObject, OxaKeyboardShortcutsGroup>));
}

QTEST_APPLESS_MAIN(tst_OxaKeyboardShortcutsGroup)
#include "tst_oxakeyboardshortcutsgroup.moc"
