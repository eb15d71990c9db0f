// SPDX-License-Identifier: Apache-2.0
#include "Documents.h"
#include "support/TestMain.h"

#include <UiElements/theme/OxaThemeUtils.h>

namespace {

const char rgbaOne[] = R"({"r":0,"g":0,"b":1,"a":1})";
const char rgbaTwo[] = R"({"r":0,"g":0,"b":2,"a":1})";
const char rgbaOutOfRange[] = R"({"r":0,"g":0,"b":256,"a":1})";

const char badSetWarning[] = "Unable to parse ColorSet: \"bad\"";

OxaColorPalette somePalette()
{
    return { { "one", QColor(0, 0, 1) },  { "two", QColor(0, 0, 2) },  { "three", QColor(0, 0, 3) },
             { "four", QColor(0, 0, 4) }, { "five", QColor(0, 0, 5) }, { "six", QColor(0, 0, 6) } };
}

/// Returns what a document with \a tokens, the inside of its "tokens" object, yields.
QString setsOf(const QString &tokens, const OxaColorPalette &palette)
{
    const QJsonObject document = Documents::objectOf(
            QStringLiteral(R"({"tokens":{%1}})").arg(tokens));
    return Documents::describe(OxaThemeUtils::parseOxaColorSetsFromJson(document, palette));
}

/// Returns a token called "panel" whose "normal" and whose \a state have the given JSON values.
QString panelWith(const QString &normal, const QString &state, const QString &value)
{
    return QStringLiteral(R"("panel":{"normal":%1,"%2":%3})").arg(normal, state, value);
}

} // namespace

/// Colour-set documents, which bind the states of sets to colours.
class tst_OxaThemeUtilsColorSetDocuments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsStatesAsNamesOfPaletteColors();
    void readsStatesAsColorsWithoutAPalette();
    void readsTwoStatesOnly_data();
    void readsTwoStatesOnly();
    void keysSetsByTheirNamesInUtf8();

    void takesNormalSilentlyForAnUnusableState_data();
    void takesNormalSilentlyForAnUnusableState();
    void takesNormalForAllStatesWhenNoOtherIsGiven_data();
    void takesNormalForAllStatesWhenNoOtherIsGiven();
    void ignoresANamelessPaletteColorForAMissingState();

    void givesNothingWhenNormalIsUnusable_data();
    void givesNothingWhenNormalIsUnusable();
    void givesNothingWhenASetHasNoName();
    void warnsOfTheFirstBadSetInSortedOrderOnly();
    void givesNothingWithoutTokens_data();
    void givesNothingWithoutTokens();
};

void tst_OxaThemeUtilsColorSetDocuments::readsStatesAsNamesOfPaletteColors()
{
    const QString tokens = QStringLiteral(
            R"("all":{"checked":"six","disabled":"four","focused":"five","hovered":"two",)"
            R"("normal":"one","pressed":"three"},"plain":{"normal":"six"})");
    QCOMPARE(setsOf(tokens, somePalette()),
             QLatin1String("all=\"all\" #ff000001 #ff000002 #ff000003 #ff000004 #ff000005 "
                           "#ff000006, plain=\"plain\" #ff000006 #ff000006 #ff000006 #ff000006 "
                           "#ff000006 #ff000006"));
}

void tst_OxaThemeUtilsColorSetDocuments::readsStatesAsColorsWithoutAPalette()
{
    const QString rgba = QStringLiteral(R"({"r":0,"g":0,"b":%1,"a":0.5})");
    const QString tokens = QStringLiteral(
                                   R"("all":{"normal":%1,"hovered":%2,"pressed":%3,"disabled":%4,)"
                                   R"("focused":%5,"checked":%6})")
                                   .arg(rgba.arg(1), rgba.arg(2), rgba.arg(3), rgba.arg(4),
                                        rgba.arg(5), rgba.arg(6));
    QCOMPARE(setsOf(tokens, {}),
             QLatin1String("all=\"all\" #7f000001 #7f000002 #7f000003 #7f000004 #7f000005 "
                           "#7f000006"));
}

void tst_OxaThemeUtilsColorSetDocuments::readsTwoStatesOnly_data()
{
    QTest::addColumn<QString>("colors");
    QTest::newRow("hovered") << "#ff000001 #ff000002 #ff000001 #ff000001 #ff000001 #ff000001";
    QTest::newRow("pressed") << "#ff000001 #ff000001 #ff000002 #ff000001 #ff000001 #ff000001";
    QTest::newRow("disabled") << "#ff000001 #ff000001 #ff000001 #ff000002 #ff000001 #ff000001";
    QTest::newRow("focused") << "#ff000001 #ff000001 #ff000001 #ff000001 #ff000002 #ff000001";
    QTest::newRow("checked") << "#ff000001 #ff000001 #ff000001 #ff000001 #ff000001 #ff000002";
    QTest::newRow("Hovered") << "#ff000001 #ff000001 #ff000001 #ff000001 #ff000001 #ff000001";
}

void tst_OxaThemeUtilsColorSetDocuments::readsTwoStatesOnly()
{
    QFETCH(const QString, colors);
    const QString state = QLatin1String(QTest::currentDataTag());
    const QString expected = QStringLiteral("panel=\"panel\" ") + colors;
    QCOMPARE(setsOf(panelWith(QStringLiteral("\"one\""), state, QStringLiteral("\"two\"")),
                    somePalette()),
             expected);
    QCOMPARE(setsOf(panelWith(QLatin1String(rgbaOne), state, QLatin1String(rgbaTwo)), {}),
             expected);
}

void tst_OxaThemeUtilsColorSetDocuments::keysSetsByTheirNamesInUtf8()
{
    const QString umlaut = QString::fromUtf8("fl\xc3\xa4"
                                             "che");
    const QJsonObject document = Documents::objectOf(
            QStringLiteral(R"({"tokens":{"%1":{"normal":"one"}}})").arg(umlaut));
    const auto sets = OxaThemeUtils::parseOxaColorSetsFromJson(document, somePalette());
    QCOMPARE(sets.count("fl\xc3\xa4"
                        "che"),
             std::size_t(1));
    QCOMPARE(sets.begin()->second.name, umlaut);
}

void tst_OxaThemeUtilsColorSetDocuments::takesNormalSilentlyForAnUnusableState_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("normal");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("hasPalette");
    const char *const states[] = { "hovered", "pressed", "disabled", "focused", "checked" };
    for (const char *state : states) {
        const auto row = [state](const char *fault) -> QTestData & {
            return QTest::addRow("%s %s", state, fault) << state;
        };
        row("names no palette colour") << "\"one\""
                                       << "\"nope\"" << true;
        row("is a colour beside a palette") << "\"one\"" << rgbaTwo << true;
        row("is out of range") << rgbaOne << rgbaOutOfRange << false;
        row("has no alpha") << rgbaOne << R"({"r":0,"g":0,"b":2})" << false;
        row("is a name without a palette") << rgbaOne << "\"two\"" << false;
    }
}

void tst_OxaThemeUtilsColorSetDocuments::takesNormalSilentlyForAnUnusableState()
{
    QFETCH(const QString, state);
    QFETCH(const QString, normal);
    QFETCH(const QString, value);
    QFETCH(const bool, hasPalette);
    QCOMPARE(setsOf(panelWith(normal, state, value),
                    hasPalette ? somePalette() : OxaColorPalette()),
             QLatin1String("panel=\"panel\" #ff000001 #ff000001 #ff000001 #ff000001 #ff000001 "
                           "#ff000001"));
}

void tst_OxaThemeUtilsColorSetDocuments::takesNormalForAllStatesWhenNoOtherIsGiven_data()
{
    QTest::addColumn<QString>("normal");
    QTest::addColumn<bool>("hasPalette");
    QTest::newRow("a palette colour") << "\"one\"" << true;
    QTest::newRow("a colour of its own") << rgbaOne << false;
}

void tst_OxaThemeUtilsColorSetDocuments::takesNormalForAllStatesWhenNoOtherIsGiven()
{
    QFETCH(const QString, normal);
    QFETCH(const bool, hasPalette);
    const QJsonObject document = Documents::objectOf(
            QStringLiteral(R"({"tokens":{"panel":{"normal":%1}}})").arg(normal));
    const auto sets = OxaThemeUtils::parseOxaColorSetsFromJson(document,
                                                               hasPalette ? somePalette()
                                                                          : OxaColorPalette());
    QCOMPARE(sets.at("panel"), OxaColorSet(QStringLiteral("panel"), QColor(0, 0, 1)));
    QVERIFY(sets.at("panel").isValid());
}

void tst_OxaThemeUtilsColorSetDocuments::ignoresANamelessPaletteColorForAMissingState()
{
    // No document gives a palette with such a colour, but a client may.
    const OxaColorPalette palette = { { "", QColor(0, 0, 9) }, { "one", QColor(0, 0, 1) } };
    QCOMPARE(setsOf(QStringLiteral(R"("panel":{"normal":"one","hovered":""})"), palette),
             QLatin1String("panel=\"panel\" #ff000001 #ff000009 #ff000001 #ff000001 #ff000001 "
                           "#ff000001"));
}

void tst_OxaThemeUtilsColorSetDocuments::givesNothingWhenNormalIsUnusable_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<bool>("hasPalette");
    QTest::newRow("a name that the palette lacks") << R"({"normal":"nope"})" << true;
    QTest::newRow("a name in another case") << R"({"normal":"One"})" << true;
    QTest::newRow("another state only") << R"({"hovered":"one"})" << true;
    QTest::newRow("a colour beside a palette") << R"({"normal":{"r":0,"g":0,"b":1,"a":1}})" << true;
    QTest::newRow("no states") << "{}" << true;
    QTest::newRow("no object") << "\"one\"" << true;
    QTest::newRow("a colour out of range") << R"({"normal":{"r":0,"g":0,"b":256,"a":1}})" << false;
    QTest::newRow("a name without a palette") << R"({"normal":"one"})" << false;
    QTest::newRow("no states without a palette") << "{}" << false;
}

void tst_OxaThemeUtilsColorSetDocuments::givesNothingWhenNormalIsUnusable()
{
    QFETCH(const QString, token);
    QFETCH(const bool, hasPalette);
    const QString good = hasPalette ? QStringLiteral("{\"normal\":\"one\"}")
                                    : QStringLiteral("{\"normal\":%1}").arg(QLatin1String(rgbaOne));
    const QString tokens = QStringLiteral(R"("able":%1,"bad":%2,"capable":%1)").arg(good, token);
    QTest::ignoreMessage(QtWarningMsg, badSetWarning);
    QCOMPARE(setsOf(tokens, hasPalette ? somePalette() : OxaColorPalette()), QString());
}

void tst_OxaThemeUtilsColorSetDocuments::givesNothingWhenASetHasNoName()
{
    QTest::ignoreMessage(QtWarningMsg, "Unable to parse ColorSet: \"\"");
    QCOMPARE(setsOf(QStringLiteral(R"("":{"normal":"one"},"good":{"normal":"one"})"),
                    somePalette()),
             QString());
}

void tst_OxaThemeUtilsColorSetDocuments::warnsOfTheFirstBadSetInSortedOrderOnly()
{
    QTest::ignoreMessage(QtWarningMsg, badSetWarning);
    QCOMPARE(setsOf(QStringLiteral(R"("worse":{},"bad":{},"able":{"normal":"one"})"),
                    somePalette()),
             QString());
}

void tst_OxaThemeUtilsColorSetDocuments::givesNothingWithoutTokens_data()
{
    QTest::addColumn<QString>("document");
    QTest::newRow("an empty document") << "{}";
    QTest::newRow("another key") << R"({"Tokens":{"panel":{"normal":"one"}}})";
    QTest::newRow("no sets") << R"({"tokens":{}})";
    QTest::newRow("an array instead of an object") << R"({"tokens":[{"normal":"one"}]})";
}

void tst_OxaThemeUtilsColorSetDocuments::givesNothingWithoutTokens()
{
    QFETCH(const QString, document);
    QTest::ignoreMessage(QtWarningMsg, "Could not find the 'tokens' object in the json file");
    QVERIFY(OxaThemeUtils::parseOxaColorSetsFromJson(Documents::objectOf(document), somePalette())
                    .empty());
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_OxaThemeUtilsColorSetDocuments)
#include "tst_oxathemeutils_colorsetdocuments.moc"
