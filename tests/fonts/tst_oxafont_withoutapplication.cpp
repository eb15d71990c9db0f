// SPDX-License-Identifier: Apache-2.0
#include "FontTokens.h"

#include <QApplication>

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
    void losesTheMonospaceFamilyInAnyCase();
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

void tst_OxaFontWithoutApplication::losesTheMonospaceFamilyInAnyCase()
{
    QCOMPARE(OxaFont(Token::CodeBlocks, false).families(),
             QStringList({ QStringLiteral("Segoe UI"), QStringLiteral("Segoe UI Emoji") }));
}

void tst_OxaFontWithoutApplication::warnsOfAnUnknownToken()
{
    QTest::ignoreMessage(QtWarningMsg, "Invalid font token! This should never happen!");
    QCOMPARE(OxaFont(static_cast<Token>(99), false).pixelSize(), 16);
}

/// Runs the tests twice: without any application object, and under one that is Qt's own.
int main(int argc, char **argv)
{
    tst_OxaFontWithoutApplication test;
    const int failures = QTest::qExec(&test, argc, argv);
    const QApplication application(argc, argv);
    return failures + QTest::qExec(&test, argc, argv);
}
#include "tst_oxafont_withoutapplication.moc"
