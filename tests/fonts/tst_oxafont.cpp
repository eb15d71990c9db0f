// SPDX-License-Identifier: Apache-2.0
#include "FontTokens.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/fonts/FontUtils.h>
#include <UiElements/fonts/OxaScaledFonts.h>

#include <QFontInfo>
#include <QMetaEnum>

#include <limits>

using FontUtils::SupportedFontFamily;
using Token = OxaFont::Token;

// An OxaFont adds no members to QFont: nothing is lost where one is copied into the other.
static_assert(sizeof(OxaFont) == sizeof(QFont));

namespace {

const QStringList fallbackFamilies = { QStringLiteral("Segoe UI"), QStringLiteral("Ebrima"),
                                       QStringLiteral("Myanmar Text"),
                                       QStringLiteral("Nirmala UI") };

const QStringList monospace = { QStringLiteral("Consolas"), QStringLiteral("Courier New"),
                                QStringLiteral("monospace") };

/// Adds a data row for each value of SupportedFontFamily, and for values outside of it.
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

/// Fonts, by token and by family, under an OxaApplication.
class tst_OxaFont : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesEachTokenItsWeightSizeAndUnderline_data() { addFontTokens(); }
    void givesEachTokenItsWeightSizeAndUnderline();
    void namesEachTokenInTheMetaObject_data() { addFontTokens(); }
    void namesEachTokenInTheMetaObject();
    void namesNoOtherToken();
    void warnsOfAnUnknownTokenAndGivesAPlainFont_data();
    void warnsOfAnUnknownTokenAndGivesAPlainFont();

    void multipliesTheSizeByTheApplicationsFactor_data();
    void multipliesTheSizeByTheApplicationsFactor();
    void hasItsOwnSizeWhenTheFactorIsNoNumber();
    void keepsItsSizeWhenTheFactorChangesLater();

    void keepsTheApplicationFontsFamily();
    void takesAMonospaceFamilyForCode();
    void takesTheFallbackFamiliesWhenAsked();
    void replacesTheMonospaceFamilyByTheFallbackFamilies();

    void isTheDefaultFontWithoutArguments();
    void takesOneFamilyUpright();
    void setsOnlyTheAttributesThatAreGiven_data();
    void setsOnlyTheAttributesThatAreGiven();
    void copiesFonts();

    void writesNoHtmlForAnEmptyText();
    void writesTheTextAsAParagraph_data();
    void writesTheTextAsAParagraph();
    void joinsTheFamiliesWithoutBlanks_data() { addFamilies(); }
    void joinsTheFamiliesWithoutBlanks();

    void makesAFontOfFamilyAndPixelSize_data() { addFamilies(); }
    void makesAFontOfFamilyAndPixelSize();
    void turnsPixelsIntoPoints_data();
    void turnsPixelsIntoPoints();
    void recognisesFontsForCode_data();
    void recognisesFontsForCode();
    void measuresTheTokensFont();
};

void tst_OxaFont::givesEachTokenItsWeightSizeAndUnderline()
{
    QFETCH(const int, token);
    for (const bool useFallbackFamilies : { false, true }) {
        const OxaFont font(static_cast<Token>(token), useFallbackFamilies);
        QTEST(font.weight(), "weight");
        QTEST(font.pixelSize(), "pixelSize");
        QTEST(font.underline(), "underline");
        QVERIFY(!font.italic());
    }
}

void tst_OxaFont::namesEachTokenInTheMetaObject()
{
    QFETCH(const int, token);
    QCOMPARE(QMetaEnum::fromType<Token>().valueToKey(token), QTest::currentDataTag());
}

void tst_OxaFont::namesNoOtherToken() { QCOMPARE(QMetaEnum::fromType<Token>().keyCount(), 21); }

void tst_OxaFont::warnsOfAnUnknownTokenAndGivesAPlainFont_data()
{
    QTest::addColumn<int>("token");
    QTest::newRow("one beyond the last") << 21;
    QTest::newRow("one before the first") << -1;
}

void tst_OxaFont::warnsOfAnUnknownTokenAndGivesAPlainFont()
{
    QFETCH(const int, token);
    QTest::ignoreMessage(QtWarningMsg, "Invalid font token! This should never happen!");
    const OxaFont font(static_cast<Token>(token), false);
    QCOMPARE(font.weight(), 50);
    QCOMPARE(font.pixelSize(), 16);
    QVERIFY(!font.underline());
}

void tst_OxaFont::multipliesTheSizeByTheApplicationsFactor_data()
{
    QTest::addColumn<float>("factor");
    QTest::addColumn<Token>("token");
    QTest::addColumn<int>("pixelSize");
    QTest::newRow("a title of 20") << 1.25F << Token::Title << 25;
    QTest::newRow("the default of 16") << 1.25F << Token::Default << 20;
    QTest::newRow("the largest factor") << 1.5F << Token::Display << 60;
    QTest::newRow("the smallest factor") << 0.5F << Token::BodyTertiary << 6;
    QTest::newRow("17.6 rounds up") << 1.1F << Token::Default << 18;
    QTest::newRow("13.2 rounds down") << 1.1F << Token::BodyTertiary << 13;
    QTest::newRow("17.5 rounds up to an even size") << 1.25F << Token::BodySecondary << 18;
    QTest::newRow("12.5 rounds up to an odd size") << 0.625F << Token::Title << 13;
}

void tst_OxaFont::multipliesTheSizeByTheApplicationsFactor()
{
    QFETCH(const float, factor);
    QFETCH(const Token, token);
    const ApplicationPropertyGuard scaled("fontScaleFactor", factor);
    for (const bool useFallbackFamilies : { false, true })
        QTEST(OxaFont(token, useFallbackFamilies).pixelSize(), "pixelSize");
}

void tst_OxaFont::hasItsOwnSizeWhenTheFactorIsNoNumber()
{
    const ApplicationPropertyGuard guard("fontScaleFactor",
                                         std::numeric_limits<float>::quiet_NaN());
    QCOMPARE(OxaFont(Token::Title, false).pixelSize(), 20);
    QCOMPARE(OxaScaledFonts().getFont(Token::Title).pixelSize(), 20);
}

void tst_OxaFont::keepsItsSizeWhenTheFactorChangesLater()
{
    const OxaFont font(Token::Title, false);
    const ApplicationPropertyGuard scaled("fontScaleFactor", 1.5F);
    QCOMPARE(font.pixelSize(), 20);
}

void tst_OxaFont::keepsTheApplicationFontsFamily()
{
    const OxaFont font(Token::Title, false);
    QCOMPARE(font.family(), QStringLiteral("Segoe UI"));
    QCOMPARE(font.family(), QApplication::font().family());
    QCOMPARE(font.families(), QStringList());
}

void tst_OxaFont::takesAMonospaceFamilyForCode()
{
    const OxaFont font(Token::CodeBlocks, false);
    QCOMPARE(font.family(), QStringLiteral("Consolas"));
    QCOMPARE(font.families(), QStringList());
    QVERIFY(QFontInfo(font).fixedPitch());
}

void tst_OxaFont::takesTheFallbackFamiliesWhenAsked()
{
    QCOMPARE(OxaFont(Token::Default, true).families(), fallbackFamilies);
}

void tst_OxaFont::replacesTheMonospaceFamilyByTheFallbackFamilies()
{
    const OxaFont font(Token::CodeBlocks, true);
    QCOMPARE(font.families(), fallbackFamilies);
    QVERIFY(!QFontInfo(font).fixedPitch());
}

void tst_OxaFont::isTheDefaultFontWithoutArguments() { QCOMPARE(QFont(OxaFont()), QFont()); }

void tst_OxaFont::takesOneFamilyUpright()
{
    const OxaFont font(QStringLiteral("Ebrima"), 11, QFont::Black);
    QCOMPARE(font.family(), QStringLiteral("Ebrima"));
    QCOMPARE(font.pointSize(), 11);
    QCOMPARE(font.weight(), int(QFont::Black));
    QVERIFY(!font.italic());
}

void tst_OxaFont::setsOnlyTheAttributesThatAreGiven_data()
{
    const QFont plain;
    const QStringList families = { QStringLiteral("Ebrima"), QStringLiteral("Courier New") };
    QTest::addColumn<QStringList>("families");
    QTest::addColumn<int>("pointSize");
    QTest::addColumn<int>("weight");
    QTest::addColumn<QStringList>("expectedFamilies");
    QTest::addColumn<int>("expectedPointSize");
    QTest::addColumn<int>("expectedWeight");
    QTest::newRow("all three") << families << 11 << 75 << families << 11 << 75;
    QTest::newRow("no families") << QStringList() << 11 << 75 << plain.families() << 11 << 75;
    QTest::newRow("a size of 0 is not set")
            << families << 0 << 75 << families << plain.pointSize() << 75;
    QTest::newRow("a size of 1 is set") << families << 1 << 75 << families << 1 << 75;
    QTest::newRow("a weight of 0 is set") << families << 11 << 0 << families << 11 << 0;
    QTest::newRow("a weight of -1 is not set")
            << families << 11 << -1 << families << 11 << plain.weight();
    QTest::newRow("nothing") << QStringList() << -1 << -1 << plain.families() << plain.pointSize()
                             << plain.weight();
}

void tst_OxaFont::setsOnlyTheAttributesThatAreGiven()
{
    QFETCH(const QStringList, families);
    QFETCH(const int, pointSize);
    QFETCH(const int, weight);
    const OxaFont font(families, pointSize, weight);
    QTEST(font.families(), "expectedFamilies");
    QTEST(font.pointSize(), "expectedPointSize");
    QTEST(font.weight(), "expectedWeight");
}

void tst_OxaFont::copiesFonts()
{
    QFont font(QStringLiteral("Ebrima"), 11, QFont::Black, true);
    font.setStrikeOut(true);
    const OxaFont copy(font);
    QCOMPARE(QFont(copy), font);
    QCOMPARE(QFont(OxaFont(copy)), font);
}

void tst_OxaFont::writesNoHtmlForAnEmptyText()
{
    for (const bool wrap : { false, true })
        QCOMPARE(FontUtils::toHtml(QString(), SupportedFontFamily::Monospace, wrap), QString());
}

void tst_OxaFont::writesTheTextAsAParagraph_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("wrap");
    QTest::addColumn<QString>("html");
    QTest::newRow("wrapped")
            << QStringLiteral("a b") << true
            << QStringLiteral("<html><head/><body><p style=\"font-family: Ebrima;\">a b</p></body>"
                              "</html>");
    QTest::newRow("not wrapped: blanks are kept")
            << QStringLiteral("a b") << false
            << QStringLiteral("<html><head/><body><p style=\"font-family: Ebrima;white-space: "
                              "pre\">a b</p></body></html>");
    QTest::newRow("escaped")
            << QStringLiteral("<\"a\" & b>") << true
            << QStringLiteral("<html><head/><body><p style=\"font-family: Ebrima;\">&lt;&quot;a"
                              "&quot; &amp; b&gt;</p></body></html>");
    QTest::newRow("one that looks like a place marker")
            << QStringLiteral("%1 %2") << true
            << QStringLiteral("<html><head/><body><p style=\"font-family: Ebrima;\">%1 %2</p>"
                              "</body></html>");
}

void tst_OxaFont::writesTheTextAsAParagraph()
{
    QFETCH(const QString, text);
    QFETCH(const bool, wrap);
    QTEST(FontUtils::toHtml(text, SupportedFontFamily::Ethiopic, wrap), "html");
}

void tst_OxaFont::joinsTheFamiliesWithoutBlanks()
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

void tst_OxaFont::makesAFontOfFamilyAndPixelSize()
{
    QFETCH(const int, family);
    const OxaFont font = FontUtils::getFontByPixelSize(37,
                                                       static_cast<SupportedFontFamily>(family));
    QTEST(font.families(), "families");
    QCOMPARE(font.pixelSize(), 37);
    QCOMPARE(font.weight(), QFont().weight());
}

void tst_OxaFont::turnsPixelsIntoPoints_data()
{
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<double>("pointSize");
    QTest::newRow("a whole number") << 16 << 12.0;
    QTest::newRow("a fraction is kept") << 13 << 9.75;
    QTest::newRow("zero") << 0 << 0.0;
    QTest::newRow("negative") << -2 << -1.5;
}

void tst_OxaFont::turnsPixelsIntoPoints()
{
    QFETCH(const int, pixelSize);
    QTEST(FontUtils::pixelSizeToPointSize(pixelSize), "pointSize");
}

void tst_OxaFont::recognisesFontsForCode_data()
{
    QStringList reversed = monospace;
    std::reverse(reversed.begin(), reversed.end());
    QTest::addColumn<OxaFont>("font");
    QTest::addColumn<bool>("isMonospace");
    QTest::newRow("the first family") << fontWithFamily("Consolas") << true;
    QTest::newRow("the second family") << fontWithFamily("Courier New") << true;
    QTest::newRow("the generic family") << fontWithFamily("monospace") << true;
    QTest::newRow("a family in another case") << fontWithFamily("consolas") << false;
    QTest::newRow("a family that is not listed") << fontWithFamily("DejaVu Sans Mono") << false;
    QTest::newRow("exactly the list") << fontWithFamilies(monospace) << true;
    QTest::newRow("a part of the list") << fontWithFamilies(monospace.mid(0, 2)) << false;
    QTest::newRow("the list with one more")
            << fontWithFamilies(monospace + QStringList(QStringLiteral("Ebrima"))) << false;
    QTest::newRow("the list in another order") << fontWithFamilies(reversed) << false;
    QTest::newRow("the token for code") << OxaFont(Token::CodeBlocks, false) << true;
    QTest::newRow("a token for text") << OxaFont(Token::Default, false) << false;
}

void tst_OxaFont::recognisesFontsForCode()
{
    QFETCH(const OxaFont, font);
    QTEST(FontUtils::isMonospaceFont(font), "isMonospace");
}

void tst_OxaFont::measuresTheTokensFont()
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

UIELEMENTS_TEST_MAIN(tst_OxaFont)
#include "tst_oxafont.moc"
