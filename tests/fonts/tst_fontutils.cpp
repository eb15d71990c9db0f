// SPDX-License-Identifier: Apache-2.0
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/fonts/FontUtils.h>

using FontUtils::SupportedFontFamily;
using Token = OxaFont::Token;

namespace {

const QStringList monospace = { QStringLiteral("Consolas"), QStringLiteral("Courier New"),
                                QStringLiteral("monospace") };

/// Adds a data row for each value of SupportedFontFamily, and for values that are none of it.
void addFamilies()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QStringList>("families");
    QTest::newRow("the brand's") << 0 << QStringList { QStringLiteral("MarloSansTT") };
    QTest::newRow("code") << 1 << monospace;
    QTest::newRow("the interface's with emoji")
            << 2 << QStringList { QStringLiteral("Segoe UI"), QStringLiteral("Segoe UI Emoji") };
    QTest::newRow("emoji") << 3 << QStringList { QStringLiteral("Segoe UI Emoji") };
    QTest::newRow("the interface's") << 4 << QStringList { QStringLiteral("Segoe UI") };
    QTest::newRow("Ethiopic") << 5 << QStringList { QStringLiteral("Ebrima") };
    QTest::newRow("beyond the last is the interface's")
            << 6 << QStringList { QStringLiteral("Segoe UI") };
    QTest::newRow("before the first is the interface's")
            << -1 << QStringList { QStringLiteral("Segoe UI") };
}

OxaFont fontWithFamilies(const QStringList &families) { return { families, -1, -1 }; }

OxaFont fontWithFamily(const char *family) { return { QLatin1String(family), -1, -1 }; }

} // namespace

Q_DECLARE_METATYPE(OxaFont)

class tst_FontUtils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesNoHtmlForAnEmptyText();
    void writesTheTextAsAParagraph_data();
    void writesTheTextAsAParagraph();
    void joinsTheFamiliesWithoutBlanks_data() { addFamilies(); }
    void joinsTheFamiliesWithoutBlanks();

    void makesAFontOfFamilyAndPixelSize_data() { addFamilies(); }
    void makesAFontOfFamilyAndPixelSize();
    void turnsPixelsIntoPoints_data();
    void turnsPixelsIntoPoints();
    void tellsFontsForCode_data();
    void tellsFontsForCode();
    void measuresTheTokensFont();
};

void tst_FontUtils::writesNoHtmlForAnEmptyText()
{
    for (const bool wrap : { false, true })
        QCOMPARE(FontUtils::toHtml(QString(), SupportedFontFamily::Monospace, wrap), QString());
}

void tst_FontUtils::writesTheTextAsAParagraph_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("wrap");
    QTest::addColumn<QString>("html");
    QTest::newRow("one that wraps")
            << QStringLiteral("a b") << true
            << QStringLiteral("<html><head/><body><p style=\"font-family: Ebrima;\">a b</p></body>"
                              "</html>");
    QTest::newRow("one that keeps its blanks")
            << QStringLiteral("a b") << false
            << QStringLiteral("<html><head/><body><p style=\"font-family: Ebrima;white-space: "
                              "pre\">a b</p></body></html>");
    QTest::newRow("one that is escaped")
            << QStringLiteral("<\"a\" & b>") << true
            << QStringLiteral("<html><head/><body><p style=\"font-family: Ebrima;\">&lt;&quot;a"
                              "&quot; &amp; b&gt;</p></body></html>");
    QTest::newRow("one that looks like a place in the template")
            << QStringLiteral("%1 %2") << true
            << QStringLiteral("<html><head/><body><p style=\"font-family: Ebrima;\">%1 %2</p>"
                              "</body></html>");
}

void tst_FontUtils::writesTheTextAsAParagraph()
{
    QFETCH(const QString, text);
    QFETCH(const bool, wrap);
    QTEST(FontUtils::toHtml(text, SupportedFontFamily::Ethiopic, wrap), "html");
}

void tst_FontUtils::joinsTheFamiliesWithoutBlanks()
{
    QFETCH(const int, family);
    QFETCH(const QStringList, families);
    const QString html = FontUtils::toHtml(QStringLiteral("a<b"),
                                           static_cast<SupportedFontFamily>(family), false);
    QCOMPARE(html,
             QStringLiteral("<html><head/><body><p style=\"font-family: %1;white-space: pre\">"
                            "a&lt;b</p></body></html>")
                     .arg(families.join(QLatin1Char(','))));
}

void tst_FontUtils::makesAFontOfFamilyAndPixelSize()
{
    QFETCH(const int, family);
    const OxaFont font = FontUtils::getFontByPixelSize(37,
                                                       static_cast<SupportedFontFamily>(family));
    QTEST(font.families(), "families");
    QCOMPARE(font.pixelSize(), 37);
    QCOMPARE(font.weight(), QFont().weight());
}

void tst_FontUtils::turnsPixelsIntoPoints_data()
{
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<double>("pointSize");
    QTest::newRow("a whole number") << 16 << 12.0;
    QTest::newRow("a part is kept") << 13 << 9.75;
    QTest::newRow("none") << 0 << 0.0;
    QTest::newRow("less than none") << -2 << -1.5;
}

void tst_FontUtils::turnsPixelsIntoPoints()
{
    QFETCH(const int, pixelSize);
    QTEST(FontUtils::pixelSizeToPointSize(pixelSize), "pointSize");
}

void tst_FontUtils::tellsFontsForCode_data()
{
    QStringList reversed = monospace;
    std::reverse(reversed.begin(), reversed.end());
    QTest::addColumn<OxaFont>("font");
    QTest::addColumn<bool>("isMonospace");
    QTest::newRow("the first family") << fontWithFamily("Consolas") << true;
    QTest::newRow("the second family") << fontWithFamily("Courier New") << true;
    QTest::newRow("the generic family") << fontWithFamily("monospace") << true;
    QTest::newRow("a family in other letters") << fontWithFamily("consolas") << false;
    QTest::newRow("a family that is not listed") << fontWithFamily("DejaVu Sans Mono") << false;
    QTest::newRow("exactly the list") << fontWithFamilies(monospace) << true;
    QTest::newRow("a part of the list") << fontWithFamilies(monospace.mid(0, 2)) << false;
    QTest::newRow("the list with one more")
            << fontWithFamilies(monospace + QStringList(QStringLiteral("Ebrima"))) << false;
    QTest::newRow("the list in another order") << fontWithFamilies(reversed) << false;
    QTest::newRow("the token for code") << OxaFont(Token::CodeBlocks, false) << true;
    QTest::newRow("a token for text") << OxaFont(Token::Default, false) << false;
}

void tst_FontUtils::tellsFontsForCode()
{
    QFETCH(const OxaFont, font);
    QTEST(FontUtils::isMonospaceFont(font), "isMonospace");
}

void tst_FontUtils::measuresTheTokensFont()
{
    const QString text = QStringLiteral("Text");
    const auto advance = [&text](Token token) {
        return FontUtils::fontMetrics(token).horizontalAdvance(text);
    };
    const int before = advance(Token::CodeBlocks);
    QVERIFY(before != advance(Token::Default));
    QCOMPARE(before, QFontMetrics(OxaFont(Token::CodeBlocks, false)).horizontalAdvance(text));
    const ApplicationPropertyGuard scaled("fontScaleFactor", 1.5F);
    QVERIFY(advance(Token::CodeBlocks) > before);
}

UIELEMENTS_TEST_MAIN(tst_FontUtils)
#include "tst_fontutils.moc"
