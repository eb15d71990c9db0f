// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/TestMain.h"

#include <UiElements/theme/StateColor_p.h>

namespace {

constexpr QStyle::State enabled = QStyle::State_Enabled;
constexpr QStyle::State sunken = QStyle::State_Sunken;
constexpr QStyle::State mouseOver = QStyle::State_MouseOver;
constexpr QStyle::State hasFocus = QStyle::State_HasFocus;
constexpr QStyle::State selected = QStyle::State_Selected;
constexpr QStyle::State on = QStyle::State_On;
constexpr QStyle::State others = ~(enabled | sunken | mouseOver | hasFocus | selected | on);

OxaColorSet sixColors()
{
    return ColorSets::make(QStringLiteral("six"),
                           { "#000001", "#000002", "#000003", "#000004", "#000005", "#000006" });
}

} // namespace

Q_DECLARE_METATYPE(QStyle::State)

class tst_StateColor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesTheStrongestStatesColor_data();
    void takesTheStrongestStatesColor();
    void skipsFocusWithoutAColorOfItsOwn_data();
    void skipsFocusWithoutAColorOfItsOwn();
};

void tst_StateColor::takesTheStrongestStatesColor_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("color");
    const auto addRow = [](const char *name, QStyle::State state, const char *color) {
        QTest::newRow(name) << state << QString::fromLatin1(color);
    };
    addRow("no state at all is disabled", QStyle::State_None, "disabled");
    addRow("every state but enabled is disabled", ~enabled, "disabled");
    addRow("every state is pressed", ~QStyle::State(), "pressed");
    addRow("pressed", enabled | sunken, "pressed");
    addRow("every state but pressed is hovered", ~sunken, "hovered");
    addRow("hovered", enabled | mouseOver, "hovered");
    addRow("focused goes before checked", enabled | hasFocus | selected | on, "focused");
    addRow("focused", enabled | hasFocus, "focused");
    addRow("selected is checked", enabled | selected, "checked");
    addRow("on is checked", enabled | on, "checked");
    addRow("selected and on are checked", enabled | selected | on, "checked");
    addRow("enabled alone is normal", enabled, "normal");
    addRow("no other state counts", enabled | others, "normal");
}

void tst_StateColor::takesTheStrongestStatesColor()
{
    QFETCH(const QStyle::State, state);
    QFETCH(const QString, color);
    const OxaColorSet set = sixColors();
    QCOMPARE(colorForStyleState(set, state), set.colorForState(color));
}

void tst_StateColor::skipsFocusWithoutAColorOfItsOwn_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("color");
    QTest::newRow("focused") << (enabled | hasFocus) << QStringLiteral("normal");
    QTest::newRow("focused and selected")
            << (enabled | hasFocus | selected) << QStringLiteral("checked");
    QTest::newRow("focused and on") << (enabled | hasFocus | on) << QStringLiteral("checked");
}

void tst_StateColor::skipsFocusWithoutAColorOfItsOwn()
{
    QFETCH(const QStyle::State, state);
    QFETCH(const QString, color);
    OxaColorSet set = sixColors();
    set.focused = set.normal;
    QCOMPARE(colorForStyleState(set, state), set.colorForState(color));
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_StateColor)
#include "tst_statecolor.moc"
