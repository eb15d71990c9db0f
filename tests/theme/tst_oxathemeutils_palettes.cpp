// SPDX-License-Identifier: Apache-2.0
#include "Documents.h"
#include "support/TestMain.h"

#include <UiElements/theme/OxaThemeUtils.h>

namespace {

const QString red = QStringLiteral(R"({"name":"red","rgba":{"r":255,"g":0,"b":0,"a":1}})");

/// Returns an entry called "bad", "good" or the like with the text \a rgba as its value.
QString entry(const char *name, const char *rgba)
{
    return QStringLiteral(R"({"name":"%1","rgba":%2})")
            .arg(QLatin1String(name), QLatin1String(rgba));
}

QString alias(const char *name, const char *target)
{
    return QStringLiteral(R"({"name":"%1","alias":"%2"})")
            .arg(QLatin1String(name), QLatin1String(target));
}

/// Returns a colour document with one group for each of \a groups, which are lists of entries.
QJsonObject documentOf(const QStringList &groups)
{
    QStringList objects;
    for (const QString &variations : groups)
        objects += QStringLiteral(R"({"variations":[%1]})").arg(variations);
    return Documents::objectOf(
            QStringLiteral(R"({"colors":[%1]})").arg(objects.join(QLatin1Char(','))));
}

QString paletteOf(const QJsonObject &document)
{
    return Documents::describe(OxaThemeUtils::parseOxaColorsFromJson(document));
}

} // namespace

/// Colour documents, which give names to colours.
class tst_OxaThemeUtilsPalettes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsColors_data();
    void readsColors();
    void readsRgba_data();
    void readsRgba();
    void keysColorsByTheirNamesInUtf8();

    void givesNothingSilentlyWithoutColors_data();
    void givesNothingSilentlyWithoutColors();
    void givesNothingSilentlyWhenAColorHasNoName_data();
    void givesNothingSilentlyWhenAColorHasNoName();

    void givesNothingWhenAColorIsInvalid_data();
    void givesNothingWhenAColorIsInvalid();
    void warnsOfTheFirstInvalidColorOnly();

    void givesNothingWhenAnAliasHasNoTarget_data();
    void givesNothingWhenAnAliasHasNoTarget();
    void warnsOfTheFirstMissingTargetOnly();
    void resolvesAliasesAfterAllColors();
};

void tst_OxaThemeUtilsPalettes::readsColors_data()
{
    const QString blue = entry("blue", R"({"r":0,"g":0,"b":255,"a":1})");
    const QString comma = QStringLiteral(",");
    const QString redAndBlue = QStringLiteral("blue=#ff0000ff, red=#ffff0000");
    const QString redAndTwin = QStringLiteral("red=#ffff0000, twin=#ffff0000");

    QTest::addColumn<QStringList>("groups");
    QTest::addColumn<QString>("palette");
    QTest::newRow("two colours of one group") << QStringList(red + comma + blue) << redAndBlue;
    QTest::newRow("two groups, which are merged") << QStringList { red, blue } << redAndBlue;
    QTest::newRow("an empty group") << QStringList { QString(), red } << "red=#ffff0000";
    QTest::newRow("an alias of an earlier colour")
            << QStringList(red + comma + alias("twin", "red")) << redAndTwin;
    QTest::newRow("an alias of a later colour")
            << QStringList(alias("twin", "red") + comma + red) << redAndTwin;
    QTest::newRow("an alias of a later group's colour")
            << QStringList { alias("twin", "red"), red } << redAndTwin;
    QTest::newRow("an alias of an earlier alias")
            << QStringList { alias("twin", "red"), red + comma + alias("triplet", "twin") }
            << "red=#ffff0000, triplet=#ffff0000, twin=#ffff0000";
    QTest::newRow("an alias beats a colour of its own")
            << QStringList(red + comma
                           + QStringLiteral(R"({"name":"twin","alias":"red",)"
                                            R"("rgba":{"r":0,"g":0,"b":255,"a":1}})"))
            << redAndTwin;
    QTest::newRow("an alias beats even an invalid colour") << QStringList(
            red + comma + QStringLiteral(R"({"name":"twin","alias":"red","rgba":{"r":256}})"))
                                                           << redAndTwin;
    QTest::newRow("the first of two colours of one name")
            << QStringList { red, entry("red", R"({"r":0,"g":0,"b":255,"a":1})") }
            << "red=#ffff0000";
    QTest::newRow("a colour before an alias of its name")
            << QStringList(red + comma + blue + comma + alias("red", "blue")) << redAndBlue;
    QTest::newRow("a colour, even after an alias of its name")
            << QStringList(alias("red", "blue") + comma + red + comma + blue) << redAndBlue;
    QTest::newRow("the first of two aliases of one name")
            << QStringList(red + comma + blue + comma + alias("twin", "red") + comma
                           + alias("twin", "blue"))
            << QString(redAndBlue + QStringLiteral(", twin=#ffff0000"));
    QTest::newRow("an empty alias is none")
            << QStringList(QStringLiteral(R"({"name":"blue","alias":"",)"
                                          R"("rgba":{"r":0,"g":0,"b":255,"a":1}})"))
            << "blue=#ff0000ff";
}

void tst_OxaThemeUtilsPalettes::readsColors()
{
    QFETCH(const QStringList, groups);
    QFETCH(const QString, palette);
    QCOMPARE(paletteOf(documentOf(groups)), palette);
}

void tst_OxaThemeUtilsPalettes::readsRgba_data()
{
    QTest::addColumn<QString>("rgba");
    QTest::addColumn<QString>("color");
    QTest::newRow("each channel") << R"({"r":17,"g":34,"b":51,"a":1})"
                                  << "#ff112233";
    QTest::newRow("the lowest values") << R"({"r":0,"g":0,"b":0,"a":0})"
                                       << "#00000000";
    QTest::newRow("the highest values") << R"({"r":255,"g":255,"b":255,"a":1})"
                                        << "#ffffffff";
    QTest::newRow("whole numbers with a point") << R"({"r":17.0,"g":0,"b":0,"a":1.0})"
                                                << "#ff110000";
    QTest::newRow("half an alpha, truncated") << R"({"r":0,"g":0,"b":0,"a":0.5})"
                                              << "#7f000000";
    QTest::newRow("nearly all alpha, truncated") << R"({"r":0,"g":0,"b":0,"a":0.999})"
                                                 << "#fe000000";
    QTest::newRow("less than a step over, truncated") << R"({"r":0,"g":0,"b":0,"a":1.003})"
                                                      << "#ff000000";
    QTest::newRow("less than a step under, truncated") << R"({"r":0,"g":0,"b":0,"a":-0.003})"
                                                       << "#00000000";
}

void tst_OxaThemeUtilsPalettes::readsRgba()
{
    QFETCH(const QString, rgba);
    QFETCH(const QString, color);
    QCOMPARE(paletteOf(documentOf({ entry("it", qUtf8Printable(rgba)) })),
             QStringLiteral("it=") + color);
}

void tst_OxaThemeUtilsPalettes::keysColorsByTheirNamesInUtf8()
{
    const QString umlaut = QString::fromUtf8("gr\xc3\xbcn");
    const QString variation = QStringLiteral(R"({"name":"%1","rgba":{"r":0,"g":255,"b":0,"a":1}})")
                                      .arg(umlaut);
    const auto palette = OxaThemeUtils::parseOxaColorsFromJson(documentOf({ variation }));
    QCOMPARE(palette.count("gr\xc3\xbcn"), std::size_t(1));
}

void tst_OxaThemeUtilsPalettes::givesNothingSilentlyWithoutColors_data()
{
    QTest::addColumn<QString>("document");
    QTest::newRow("an empty document") << "{}";
    QTest::newRow("another key") << R"({"colours":[]})";
    QTest::newRow("no groups") << R"({"colors":[]})";
    QTest::newRow("an object instead of an array") << R"({"colors":{"variations":[]}})";
    QTest::newRow("a group without variations") << R"({"colors":[{"name":"red"}]})";
}

void tst_OxaThemeUtilsPalettes::givesNothingSilentlyWithoutColors()
{
    QFETCH(const QString, document);
    QCOMPARE(paletteOf(Documents::objectOf(document)), QString());
}

void tst_OxaThemeUtilsPalettes::givesNothingSilentlyWhenAColorHasNoName_data()
{
    QTest::addColumn<QString>("variation");
    QTest::newRow("an empty name") << entry("", R"({"r":0,"g":0,"b":0,"a":1})");
    QTest::newRow("a missing name") << R"({"rgba":{"r":0,"g":0,"b":0,"a":1}})";
    QTest::newRow("a number as a name") << R"({"name":1,"rgba":{"r":0,"g":0,"b":0,"a":1}})";
    QTest::newRow("an empty name with an alias") << alias("", "red");
    QTest::newRow("an empty name before an invalid colour")
            << entry("", R"({"r":0,"g":0,"b":0,"a":1})") + QLatin1Char(',') + entry("bad", "{}");
    QTest::newRow("an alias without a target before an empty name")
            << alias("bad", "nope") + QLatin1Char(',') + entry("", "{}");
}

void tst_OxaThemeUtilsPalettes::givesNothingSilentlyWhenAColorHasNoName()
{
    QFETCH(const QString, variation);
    QCOMPARE(paletteOf(documentOf({ red, variation, red })), QString());
}

void tst_OxaThemeUtilsPalettes::givesNothingWhenAColorIsInvalid_data()
{
    QTest::addColumn<QString>("rgba");
    QTest::newRow("no channels") << "{}";
    QTest::newRow("a text") << R"("#ff0000")";
    QTest::newRow("no value") << "null";
    QTest::newRow("red above its range") << R"({"r":256,"g":0,"b":0,"a":1})";
    QTest::newRow("green above its range") << R"({"r":0,"g":256,"b":0,"a":1})";
    QTest::newRow("blue above its range") << R"({"r":0,"g":0,"b":256,"a":1})";
    QTest::newRow("red below its range") << R"({"r":-1,"g":0,"b":0,"a":1})";
    QTest::newRow("green below its range") << R"({"r":0,"g":-1,"b":0,"a":1})";
    QTest::newRow("blue below its range") << R"({"r":0,"g":0,"b":-1,"a":1})";
    QTest::newRow("red missing") << R"({"g":0,"b":0,"a":1})";
    QTest::newRow("green missing") << R"({"r":0,"b":0,"a":1})";
    QTest::newRow("blue missing") << R"({"r":0,"g":0,"a":1})";
    QTest::newRow("alpha missing") << R"({"r":0,"g":0,"b":0})";
    QTest::newRow("a fraction of red") << R"({"r":12.5,"g":0,"b":0,"a":1})";
    QTest::newRow("red as a text") << R"({"r":"12","g":0,"b":0,"a":1})";
    QTest::newRow("alpha as a text") << R"({"r":0,"g":0,"b":0,"a":"1"})";
    QTest::newRow("alpha a step above its range") << R"({"r":0,"g":0,"b":0,"a":1.004})";
    QTest::newRow("alpha a step below its range") << R"({"r":0,"g":0,"b":0,"a":-0.004})";
    QTest::newRow("alpha too large for a number") << R"({"r":0,"g":0,"b":0,"a":1e300})";
}

void tst_OxaThemeUtilsPalettes::givesNothingWhenAColorIsInvalid()
{
    QFETCH(const QString, rgba);
    QTest::ignoreMessage(QtWarningMsg, "Invalid color for:  \"bad\"");
    QCOMPARE(paletteOf(documentOf({ red, entry("bad", qUtf8Printable(rgba)), red })), QString());
}

void tst_OxaThemeUtilsPalettes::warnsOfTheFirstInvalidColorOnly()
{
    QTest::ignoreMessage(QtWarningMsg, "Invalid color for:  \"zebra\"");
    QCOMPARE(paletteOf(documentOf({ entry("zebra", "{}"), entry("ape", "{}") })), QString());
}

void tst_OxaThemeUtilsPalettes::givesNothingWhenAnAliasHasNoTarget_data()
{
    QTest::addColumn<QString>("variations");
    QTest::addColumn<QString>("target");
    QTest::newRow("an unknown colour") << alias("twin", "nope") << "nope";
    QTest::newRow("another case") << alias("twin", "Red") << "Red";
    QTest::newRow("itself") << alias("twin", "twin") << "twin";
    QTest::newRow("a later alias")
            << alias("triplet", "twin") + QLatin1Char(',') + alias("twin", "red") << "twin";
}

void tst_OxaThemeUtilsPalettes::givesNothingWhenAnAliasHasNoTarget()
{
    QFETCH(const QString, variations);
    QFETCH(const QString, target);
    const QString warning =
            QStringLiteral("Unable to parse colors.json! The color:  \"%1\" doesn't exist!")
                    .arg(target);
    QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(warning));
    QCOMPARE(paletteOf(documentOf({ red, variations })), QString());
}

void tst_OxaThemeUtilsPalettes::warnsOfTheFirstMissingTargetOnly()
{
    QTest::ignoreMessage(QtWarningMsg,
                         "Unable to parse colors.json! The color:  \"one\" doesn't exist!");
    QCOMPARE(paletteOf(documentOf({ alias("zebra", "one"), alias("ape", "two") })), QString());
}

void tst_OxaThemeUtilsPalettes::resolvesAliasesAfterAllColors()
{
    QTest::ignoreMessage(QtWarningMsg, "Invalid color for:  \"bad\"");
    QCOMPARE(paletteOf(documentOf({ alias("twin", "nope"), entry("bad", "{}") })), QString());
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_OxaThemeUtilsPalettes)
#include "tst_oxathemeutils_palettes.moc"
