// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/theme/OxaPaletteUtils.h>

using OxaThemeUtils::AppThemeType;

/// Palettes for Qt's own widgets.
class tst_OxaPaletteUtils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_stores.reset(); }

    void takesTheNormalColorInActiveAndInactiveWindows();
    void takesTheDisabledColorInTheDisabledGroup();
    void takesTheStoreOfTheThemeType();
    void derivesTheOtherRolesFromTheWindow();
    void leavesTheOtherRolesToTheApplicationWithoutAWindow();
    void leavesARoleAloneWhoseSetIsMissing();
    void ignoresAMissingWindowSet();
    void takesTheLastOfTwoSourcesForOneRole();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaPaletteUtils::init()
{
    using ColorSets::make;
    m_stores = std::make_unique<StoreGuard>(
            ColorSets::storeOf({
                    make(QStringLiteral("window"), { "#102030" }),
                    make(QStringLiteral("text"), { "#ffeedd", "#ffeedd", "#ffeedd", "#887766" }),
                    make(QStringLiteral("other-text"), { "#00ff00" }),
            }),
            ColorSets::storeOf({ make(QStringLiteral("text"), { "#010203" }) }));
}

void tst_OxaPaletteUtils::takesTheNormalColorInActiveAndInactiveWindows()
{
    const QPalette palette = OxaPaletteUtils::makePalette({ { QPalette::WindowText, "text" } });
    QCOMPARE(palette.color(QPalette::Active, QPalette::WindowText), QColor(0xff, 0xee, 0xdd));
    QCOMPARE(palette.color(QPalette::Inactive, QPalette::WindowText), QColor(0xff, 0xee, 0xdd));
}

void tst_OxaPaletteUtils::takesTheDisabledColorInTheDisabledGroup()
{
    const QPalette palette = OxaPaletteUtils::makePalette({ { QPalette::WindowText, "text" } });
    QCOMPARE(palette.color(QPalette::Disabled, QPalette::WindowText), QColor(0x88, 0x77, 0x66));
}

void tst_OxaPaletteUtils::takesTheStoreOfTheThemeType()
{
    const QPalette palette = OxaPaletteUtils::makePalette({ { QPalette::WindowText, "text" } },
                                                          AppThemeType::Inverted);
    QCOMPARE(palette.color(QPalette::WindowText), QColor(1, 2, 3));
}

void tst_OxaPaletteUtils::derivesTheOtherRolesFromTheWindow()
{
    const QPalette palette = OxaPaletteUtils::makePalette(
            { { QPalette::WindowText, "text" }, { QPalette::Window, "window" } });
    const QPalette fromWindow(QColor(0x10, 0x20, 0x30));
    QCOMPARE(palette.color(QPalette::Window), QColor(0x10, 0x20, 0x30));
    for (const auto role : { QPalette::Light, QPalette::Dark, QPalette::Shadow, QPalette::Base })
        QCOMPARE(palette.color(role), fromWindow.color(role));
}

void tst_OxaPaletteUtils::leavesTheOtherRolesToTheApplicationWithoutAWindow()
{
    const QPalette palette = OxaPaletteUtils::makePalette({ { QPalette::WindowText, "text" } });
    QCOMPARE(palette.color(QPalette::Base), QApplication::palette().color(QPalette::Base));
    QCOMPARE(OxaPaletteUtils::makePalette({}), QPalette());
}

void tst_OxaPaletteUtils::leavesARoleAloneWhoseSetIsMissing()
{
    QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"missing\"");
    const QPalette palette = OxaPaletteUtils::makePalette(
            { { QPalette::WindowText, "text" }, { QPalette::WindowText, "missing" } });
    QCOMPARE(palette.color(QPalette::WindowText), QColor(0xff, 0xee, 0xdd));
}

void tst_OxaPaletteUtils::ignoresAMissingWindowSet()
{
    QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"missing\"");
    QCOMPARE(OxaPaletteUtils::makePalette({ { QPalette::Window, "missing" } }), QPalette());
}

void tst_OxaPaletteUtils::takesTheLastOfTwoSourcesForOneRole()
{
    const QPalette palette = OxaPaletteUtils::makePalette(
            { { QPalette::Text, "text" }, { QPalette::Text, "other-text" } });
    QCOMPARE(palette.color(QPalette::Text), QColor(0, 0xff, 0));
}

UIELEMENTS_TEST_MAIN(tst_OxaPaletteUtils)
#include "tst_oxapaletteutils.moc"
