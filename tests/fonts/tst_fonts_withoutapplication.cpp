// SPDX-License-Identifier: Apache-2.0
#include "FontTokens.h"

#include <UiElements/fonts/OxaFontManager.h>
#include <UiElements/fonts/OxaScaledFonts.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QApplication>

using FontType = FontManagerEnum::FontType;
using Token = OxaFont::Token;

/// Fonts in a process without an OxaApplication.
class tst_OxaFontWithoutApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesEachTokenItsUnscaledStyle_data() { addFontTokens(); }
    void givesEachTokenItsUnscaledStyle();
    void namesTheInterfacesFamilies();
    void namesTheFallbackFamiliesAfterThemWhenAsked();
    void hasNoMonospaceFamilyWithOrWithoutFallbacks();
    void warnsOfAnUnknownToken();
};

void tst_OxaFontWithoutApplication::givesEachTokenItsUnscaledStyle()
{
    QFETCH(const int, token);
    for (const bool useFallbackFamilies : { false, true }) {
        const OxaFont font(static_cast<Token>(token), useFallbackFamilies);
        QTEST(font.weight(), "weight");
        QTEST(font.pixelSize(), "pixelSize");
        QTEST(font.underline(), "underline");
    }
}

void tst_OxaFontWithoutApplication::namesTheInterfacesFamilies()
{
    QCOMPARE(OxaFont(Token::Default, false).families(),
             QStringList({ QStringLiteral("Segoe UI"), QStringLiteral("Segoe UI Emoji") }));
}

void tst_OxaFontWithoutApplication::namesTheFallbackFamiliesAfterThemWhenAsked()
{
    QCOMPARE(OxaFont(Token::Default, true).families(),
             QStringList({ QStringLiteral("Segoe UI"), QStringLiteral("Segoe UI Emoji"),
                           QStringLiteral("Ebrima"), QStringLiteral("Myanmar Text"),
                           QStringLiteral("Nirmala UI") }));
}

void tst_OxaFontWithoutApplication::hasNoMonospaceFamilyWithOrWithoutFallbacks()
{
    QCOMPARE(OxaFont(Token::CodeBlocks, false).families(),
             QStringList({ QStringLiteral("Segoe UI"), QStringLiteral("Segoe UI Emoji") }));
}

void tst_OxaFontWithoutApplication::warnsOfAnUnknownToken()
{
    QTest::ignoreMessage(QtWarningMsg, "Invalid font token! This should never happen!");
    QCOMPARE(OxaFont(static_cast<Token>(99), false).pixelSize(), 16);
}

/// The font manager, and widgets that look for it, under a plain QApplication.
class tst_OxaFontManagerWithoutApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void warnsThatThereIsNone();
    void worksWhenMadeByHand();
    void leavesWidgetsWithTheirTokensFont();
};

void tst_OxaFontManagerWithoutApplication::warnsThatThereIsNone()
{
    QTest::ignoreMessage(QtWarningMsg, "Unable to find OxaApplication");
    QVERIFY(!OxaFontManager::get());
}

void tst_OxaFontManagerWithoutApplication::worksWhenMadeByHand()
{
    OxaFontManager manager;
    manager.setScalingFactor(FontType::MeetingView, FontManagerEnum::FontScalingFactor::Large);
    QCOMPARE(manager.getFont(FontType::MeetingView)->getFont(OxaFont::Token::Title).pixelSize(),
             20);
}

void tst_OxaFontManagerWithoutApplication::leavesWidgetsWithTheirTokensFont()
{
    OxaWidget widget;
    widget.setFontToken(OxaFont::Token::Title);
    QTest::ignoreMessage(QtWarningMsg, "Unable to find OxaApplication");
    widget.setFontType(FontType::MessagingView);
    QCOMPARE(widget.getFontType(), FontType::MessagingView);
    QCOMPARE(widget.font().pixelSize(), 20);

    QTest::ignoreMessage(QtWarningMsg, "Unable to find OxaApplication");
    widget.setFontToken(OxaFont::Token::Display);
    QCOMPARE(widget.font().pixelSize(), 40);
}

/// Runs the tests of fonts without any application object, and under a plain QApplication.
int main(int argc, char **argv)
{
    tst_OxaFontWithoutApplication test;
    int failures = QTest::qExec(&test, argc, argv);
    const QApplication application(argc, argv);
    failures += QTest::qExec(&test, argc, argv);
    tst_OxaFontManagerWithoutApplication managerTest;
    return failures + QTest::qExec(&managerTest, argc, argv);
}
#include "tst_fonts_withoutapplication.moc"
