// SPDX-License-Identifier: Apache-2.0
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/fonts/OxaScaledFonts.h>

#include <QMetaEnum>
#include <QMetaProperty>
#include <QSignalSpy>

using Token = OxaFont::Token;
using Factor = FontManagerEnum::FontScalingFactor;

namespace {

QFont fontOf(const OxaScaledFonts &fonts, const char *property)
{
    return fonts.property(property).value<QFont>();
}

QFont smallHeading(int pixelSize)
{
    QFont font = OxaFont(Token::Default, false);
    font.setPixelSize(pixelSize);
    font.setWeight(63);
    return font;
}

QFont fontOfSize(int pixelSize)
{
    QFont font;
    font.setPixelSize(pixelSize);
    return font;
}

/// Returns the property \a number of those that the class itself declares.
QMetaProperty ownProperty(int number)
{
    const QMetaObject &type = OxaScaledFonts::staticMetaObject;
    return type.property(type.propertyOffset() + number);
}

void addFont(const char *name, const QFont &initial, int small = 0, int medium = 0, int large = 0)
{
    QTest::newRow(name) << initial << small << medium << large;
}

void addFont(const char *name, Token token, int small = 0, int medium = 0, int large = 0)
{
    addFont(name, OxaFont(token, false), small, medium, large);
}

/// Adds a data row for each property in its order: its initial font, and its sizes at the factors,
/// where 0 means that the size does not change.
void addFonts()
{
    QTest::addColumn<QFont>("initial");
    QTest::addColumn<int>("small");
    QTest::addColumn<int>("medium");
    QTest::addColumn<int>("large");

    addFont("Display", Token::Display);
    addFont("H1", Token::BannerTertiary, 20, 32, 40);
    addFont("BannerTertiary", Token::BannerTertiary);
    addFont("BannerPrimary", Token::BannerPrimary);
    addFont("BannerSecondary", Token::BannerSecondary);
    addFont("H2", Token::Title, 16, 26, 32);
    addFont("Title", Token::Title);
    addFont("HeaderPrimary", Token::Header);
    addFont("HighlightPrimary", Token::HighlightPrimary, 14, 20, 26);
    addFont("H3", Token::SubheaderPrimary, 14, 20, 26);
    addFont("SubheaderPrimary", Token::SubheaderPrimary);
    addFont("BodyPrimary", Token::BodyPrimary, 14, 20, 26);
    addFont("HyperlinkPrimary", Token::HyperlinkPrimary, 14, 20, 26);
    addFont("SubheaderSecondary", Token::SubheaderSecondary);
    addFont("HighlightSecondary", Token::HighlightSecondary, 12, 16, 20);
    addFont("HeaderSecondary", Token::HighlightSecondary);
    addFont("BodySecondary", Token::BodySecondary, 12, 16, 20);
    addFont("HyperlinkSecondary", Token::HyperlinkSecondary, 12, 16, 20);
    addFont("HighlightCompact", Token::HighlightTertiary);
    addFont("BodyCompact", Token::BodyTertiary);
    addFont("LabelCompact", Token::TagLabelSecondary);
    addFont("CodeBlocks", Token::CodeBlocks, 14, 20, 26);
    addFont("Default", Token::Default);
    addFont("H4", Token::SubheaderSecondary, 12, 16, 20);
    addFont("H5", smallHeading(12), 10, 14, 16);
    addFont("H6", smallHeading(10));
}

} // namespace

class tst_OxaScaledFonts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsItsFontsAsPropertiesInThisOrder();
    void emitsASignalForEachFontThatIsSet_data() { addFonts(); }
    void emitsASignalForEachFontThatIsSet();

    void startsWithTheTokensFont_data() { addFonts(); }
    void startsWithTheTokensFont();
    void takesTheApplicationsFactorWhenItIsMade();
    void keepsItsSizesWhenTheApplicationsFactorChangesLater();

    void takesTheSizesOfEachFactor_data() { addFonts(); }
    void takesTheSizesOfEachFactor();
    void goesStraightFromOneFactorToAnother_data() { addFonts(); }
    void goesStraightFromOneFactorToAnother();
    void scalesToAbsoluteSizesWhateverTheApplicationsFactor();
    void keepsFontsThatTheFactorDoesNotListAsTheyWere();
    void rebuildsAllFontsAtTheRegularFactor_data() { addFonts(); }
    void rebuildsAllFontsAtTheRegularFactor();
    void readsTheApplicationsFactorAgainAtTheRegularFactor();
    void changesNoFontForAnUnknownFactor_data();
    void changesNoFontForAnUnknownFactor();
    void emitsASignalForEachFactorEvenTheSame_data();
    void emitsASignalForEachFactorEvenTheSame();

    void givesATokenItsFont_data();
    void givesATokenItsFont();
    void givesARadioButtonsTokenTheDefaultSize();
};

void tst_OxaScaledFonts::showsItsFontsAsPropertiesInThisOrder()
{
    QStringList names;
    const QMetaObject &type = OxaScaledFonts::staticMetaObject;
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i)
        names += QLatin1String(type.property(i).name());
    QCOMPARE(names.join(QLatin1Char(' ')),
             QStringLiteral(
                     "Display H1 BannerTertiary BannerPrimary BannerSecondary H2 Title "
                     "HeaderPrimary HighlightPrimary H3 SubheaderPrimary BodyPrimary "
                     "HyperlinkPrimary SubheaderSecondary HighlightSecondary HeaderSecondary "
                     "BodySecondary HyperlinkSecondary HighlightCompact BodyCompact LabelCompact "
                     "CodeBlocks Default H4 H5 H6"));
}

void tst_OxaScaledFonts::emitsASignalForEachFontThatIsSet()
{
    const char *name = QTest::currentDataTag();
    OxaScaledFonts fonts;
    const QSignalSpy changes(&fonts, &OxaScaledFonts::fontTokenChanged);
    QVERIFY(fonts.setProperty(name, fontOf(fonts, name)));
    QCOMPARE(changes.size(), 0);
    QVERIFY(fonts.setProperty(name, fontOfSize(99)));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(fontOf(fonts, name), fontOfSize(99));
    QCOMPARE(fonts.metaObject()->property(fonts.metaObject()->indexOfProperty(name)).notifySignal(),
             QMetaMethod::fromSignal(&OxaScaledFonts::fontTokenChanged));
}

void tst_OxaScaledFonts::startsWithTheTokensFont()
{
    const OxaScaledFonts fonts;
    QTEST(fontOf(fonts, QTest::currentDataTag()), "initial");
}

void tst_OxaScaledFonts::takesTheApplicationsFactorWhenItIsMade()
{
    const ApplicationPropertyGuard scaled("fontScaleFactor", 1.25F);
    const OxaScaledFonts fonts;
    QCOMPARE(fontOf(fonts, "Title").pixelSize(), 25);
    QCOMPARE(fontOf(fonts, "BodyPrimary").pixelSize(), 20);
    // The two smallest headings are set to a size of their own afterwards.
    QCOMPARE(fontOf(fonts, "H5").pixelSize(), 12);
    QCOMPARE(fontOf(fonts, "H6").pixelSize(), 10);
}

void tst_OxaScaledFonts::keepsItsSizesWhenTheApplicationsFactorChangesLater()
{
    const OxaScaledFonts fonts;
    const QSignalSpy changes(&fonts, &OxaScaledFonts::fontTokenChanged);
    const ApplicationPropertyGuard scaled("fontScaleFactor", 1.25F);
    QCOMPARE(fontOf(fonts, "Title").pixelSize(), 20);
    QCOMPARE(changes.size(), 0);
}

void tst_OxaScaledFonts::takesTheSizesOfEachFactor()
{
    QFETCH(const QFont, initial);
    QFETCH(const int, small);
    QFETCH(const int, medium);
    QFETCH(const int, large);
    const std::pair<Factor, int> sizes[] = { { Factor::Small, small },
                                             { Factor::Medium, medium },
                                             { Factor::Large, large } };
    for (const auto &[factor, size] : sizes) {
        QFont expected = initial;
        if (size > 0)
            expected.setPixelSize(size);
        OxaScaledFonts fonts;
        fonts.setScalingFactor(factor);
        QCOMPARE(fontOf(fonts, QTest::currentDataTag()), expected);
    }
}

void tst_OxaScaledFonts::goesStraightFromOneFactorToAnother()
{
    OxaScaledFonts fonts;
    fonts.setScalingFactor(Factor::Medium);
    OxaScaledFonts enlargedBefore;
    enlargedBefore.setScalingFactor(Factor::Large);
    enlargedBefore.setScalingFactor(Factor::Medium);
    QCOMPARE(fontOf(enlargedBefore, QTest::currentDataTag()),
             fontOf(fonts, QTest::currentDataTag()));
}

void tst_OxaScaledFonts::scalesToAbsoluteSizesWhateverTheApplicationsFactor()
{
    const ApplicationPropertyGuard scaled("fontScaleFactor", 1.25F);
    OxaScaledFonts fonts;
    fonts.setScalingFactor(Factor::Large);
    QCOMPARE(fontOf(fonts, "BodyPrimary").pixelSize(), 26);
    QCOMPARE(fontOf(fonts, "Title").pixelSize(), 25);
}

void tst_OxaScaledFonts::keepsFontsThatTheFactorDoesNotListAsTheyWere()
{
    OxaScaledFonts fonts;
    fonts.setProperty("Display", fontOfSize(99));
    fonts.setProperty("H6", fontOfSize(98));
    for (const Factor factor : { Factor::Small, Factor::Medium, Factor::Large }) {
        fonts.setScalingFactor(factor);
        QCOMPARE(fontOf(fonts, "Display"), fontOfSize(99));
        QCOMPARE(fontOf(fonts, "H6"), fontOfSize(98));
    }
}

void tst_OxaScaledFonts::rebuildsAllFontsAtTheRegularFactor()
{
    const char *name = QTest::currentDataTag();
    OxaScaledFonts fonts;
    fonts.setScalingFactor(Factor::Small);
    fonts.setProperty(name, fontOfSize(99));
    fonts.setScalingFactor(Factor::Regular);
    QTEST(fontOf(fonts, name), "initial");
}

void tst_OxaScaledFonts::readsTheApplicationsFactorAgainAtTheRegularFactor()
{
    OxaScaledFonts fonts;
    fonts.setScalingFactor(Factor::Small);
    const ApplicationPropertyGuard scaled("fontScaleFactor", 1.25F);
    fonts.setScalingFactor(Factor::Regular);
    QCOMPARE(fontOf(fonts, "BodyPrimary").pixelSize(), 20);
}

void tst_OxaScaledFonts::changesNoFontForAnUnknownFactor_data()
{
    QTest::addColumn<int>("factor");
    QTest::newRow("one beyond the largest") << 3;
    QTest::newRow("one before the smallest") << -2;
}

void tst_OxaScaledFonts::changesNoFontForAnUnknownFactor()
{
    QFETCH(const int, factor);
    OxaScaledFonts fonts;
    const int count = fonts.metaObject()->propertyCount() - fonts.metaObject()->propertyOffset();
    for (int i = 0; i < count; ++i)
        ownProperty(i).write(&fonts, fontOfSize(100 + i));
    const QSignalSpy changes(&fonts, &OxaScaledFonts::fontTokenChanged);
    fonts.setScalingFactor(static_cast<Factor>(factor));
    QCOMPARE(changes.size(), 1);
    for (int i = 0; i < count; ++i)
        QCOMPARE(ownProperty(i).read(&fonts).value<QFont>(), fontOfSize(100 + i));
}

void tst_OxaScaledFonts::emitsASignalForEachFactorEvenTheSame_data()
{
    QTest::addColumn<Factor>("factor");
    QTest::newRow("Small") << Factor::Small;
    QTest::newRow("Regular") << Factor::Regular;
    QTest::newRow("Medium") << Factor::Medium;
    QTest::newRow("Large") << Factor::Large;
}

void tst_OxaScaledFonts::emitsASignalForEachFactorEvenTheSame()
{
    QFETCH(const Factor, factor);
    OxaScaledFonts fonts;
    const QSignalSpy changes(&fonts, &OxaScaledFonts::fontTokenChanged);
    fonts.setScalingFactor(factor);
    QCOMPARE(changes.size(), 1);
    fonts.setScalingFactor(factor);
    QCOMPARE(changes.size(), 2);
}

void tst_OxaScaledFonts::givesATokenItsFont_data()
{
    QTest::addColumn<int>("token");
    QTest::addColumn<QByteArray>("property");
    const std::pair<Token, const char *> properties[] = {
        { Token::Default, "Default" },
        { Token::Title, "Title" },
        { Token::Header, "HeaderPrimary" },
        { Token::SubheaderPrimary, "SubheaderPrimary" },
        { Token::SubheaderSecondary, "SubheaderSecondary" },
        { Token::TagLabelPrimary, "SubheaderSecondary" },
        { Token::BodyPrimary, "BodyPrimary" },
        { Token::BodySecondary, "BodySecondary" },
        { Token::BodyTertiary, "BodyCompact" },
        { Token::BannerPrimary, "BannerPrimary" },
        { Token::BannerSecondary, "BannerSecondary" },
        { Token::BannerTertiary, "BannerTertiary" },
        { Token::HighlightPrimary, "HighlightPrimary" },
        { Token::HighlightSecondary, "HighlightSecondary" },
        { Token::HighlightTertiary, "HighlightCompact" },
        { Token::HyperlinkPrimary, "HyperlinkPrimary" },
        { Token::HyperlinkSecondary, "HyperlinkSecondary" },
        { Token::TagLabelSecondary, "LabelCompact" },
        { Token::CodeBlocks, "CodeBlocks" },
        { Token::Display, "Display" },
        { Token::RadioButtonLabelSecondary, "Default" },
    };
    for (const auto &[token, property] : properties)
        QTest::newRow(QMetaEnum::fromType<Token>().valueToKey(int(token)))
                << int(token) << QByteArray(property);
    QTest::newRow("an unknown token") << 99 << QByteArray("Default");
}

void tst_OxaScaledFonts::givesATokenItsFont()
{
    QFETCH(const int, token);
    QFETCH(const QByteArray, property);
    // Different fonts, since many properties start with the same one.
    OxaScaledFonts fonts;
    for (int i = 0; i < 26; ++i)
        ownProperty(i).write(&fonts, fontOfSize(100 + i));
    QCOMPARE(fonts.getFont(static_cast<Token>(token)), fontOf(fonts, property.constData()));
}

void tst_OxaScaledFonts::givesARadioButtonsTokenTheDefaultSize()
{
    QCOMPARE(OxaScaledFonts().getFont(Token::RadioButtonLabelSecondary).pixelSize(), 16);
}

UIELEMENTS_TEST_MAIN(tst_OxaScaledFonts)
#include "tst_oxascaledfonts.moc"
