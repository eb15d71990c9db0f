// SPDX-License-Identifier: Apache-2.0
#include "StyleTexts.h"
#include "support/TestMain.h"

#include <functional>

using Change = std::function<void(OxaCSSData &)>;
Q_DECLARE_METATYPE(Change)

namespace {

void setAllSides(OxaCSSData &data)
{
    data.borderTop = true;
    data.borderRight = true;
    data.borderBottom = true;
    data.borderLeft = true;
}

} // namespace

/// Conversions between style texts and their structured form.
class tst_OxaThemeUtilsRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void writesRecordsAsStyleTexts_data();
    void writesRecordsAsStyleTexts();
    void dropsTheBorderNameBesideARadiusWithoutSides();
    void writesNoMask();
    void writesTheBorderOfARecord_data();
    void writesTheBorderOfARecord();
    void derivesNoBorderFromTheOtherFields();
    void leavesTheGivenRecordAlone();

    void readsStyleTextsIntoRecords_data();
    void readsStyleTextsIntoRecords();
    void readsBackWhatItWrote_data();
    void readsBackWhatItWrote();
    void marksCornersSquareOnceTheSidesAreWrittenOut();
    void losesATransparentBackground();
    void differsWhenAFieldDiffers_data();
    void differsWhenAFieldDiffers();
};

void tst_OxaThemeUtilsRecords::startsEmpty()
{
    const OxaThemeUtils::CSSParserResult result;
    QCOMPARE(StyleRecords::describe(result.oxaCSS),
             QLatin1String("background \"\" border \"\" text \"\" sides width 1 radius 0 corner 0 "
                           "mask 0 plain \"\""));
    QCOMPARE(result.expandedStyleSheet, QString());
    QVERIFY(!result.backgroundColorSet.isValid());
    QVERIFY(!result.borderColorSet.isValid());
    QVERIFY(!result.textColorSet.isValid());
}

void tst_OxaThemeUtilsRecords::writesRecordsAsStyleTexts_data()
{
    QTest::addColumn<QString>("background");
    QTest::addColumn<QString>("border");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("plain");
    QTest::addColumn<QString>("styleText");
    QTest::newRow("nothing") << ""
                             << ""
                             << ""
                             << ""
                             << "";
    QTest::newRow("a background") << "x"
                                  << ""
                                  << ""
                                  << ""
                                  << "$backgroundColors: x;";
    QTest::newRow("a border") << ""
                              << "x"
                              << ""
                              << ""
                              << "$borderColors: x;";
    QTest::newRow("a text") << ""
                            << ""
                            << "x"
                            << ""
                            << "$textColors: x;";
    QTest::newRow("all names, trimmed")
            << " x "
            << "\ty"
            << "z\n"
            << ""
            << "$backgroundColors: x; $borderColors: y; $textColors: z;";
    QTest::newRow("a name of white space") << " "
                                           << "\n"
                                           << "\t"
                                           << ""
                                           << "";
    QTest::newRow("a plain style sheet") << ""
                                         << ""
                                         << ""
                                         << " color: red; "
                                         << " color: red; ";
    QTest::newRow("a plain style sheet right after the directives") << ""
                                                                    << ""
                                                                    << "x"
                                                                    << "color: red;"
                                                                    << "$textColors: x;color: red;";
}

void tst_OxaThemeUtilsRecords::writesRecordsAsStyleTexts()
{
    QFETCH(const QString, background);
    QFETCH(const QString, border);
    QFETCH(const QString, text);
    QFETCH(const QString, plain);
    QFETCH(const QString, styleText);
    OxaCSSData data;
    data.backgroundColorSetName = background;
    data.borderColorSetName = border;
    data.textColorSetName = text;
    data.plainStyleSheet = plain;
    QCOMPARE(OxaThemeUtils::convertToOxaCSS(data), styleText);
}

void tst_OxaThemeUtilsRecords::dropsTheBorderNameBesideARadiusWithoutSides()
{
    OxaCSSData data;
    data.backgroundColorSetName = QStringLiteral("x");
    data.borderColorSetName = QStringLiteral("y");
    data.borderRadius = 4;
    QCOMPARE(OxaThemeUtils::convertToOxaCSS(data),
             QLatin1String("$borderRadius:4; $backgroundColors: x;"));
    data.borderLeft = true;
    QCOMPARE(OxaThemeUtils::convertToOxaCSS(data),
             QLatin1String("$borders: left; $borderWidth:1;$borderRadius:4; "
                           "$backgroundColors: x; $borderColors: y;"));
}

void tst_OxaThemeUtilsRecords::writesNoMask()
{
    OxaCSSData data;
    data.rectangularCornerMask = 15;
    QCOMPARE(OxaThemeUtils::convertToOxaCSS(data), QString());
}

void tst_OxaThemeUtilsRecords::writesTheBorderOfARecord_data()
{
    QTest::addColumn<QString>("sides");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("radius");
    QTest::addColumn<int>("corner");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << "" << 1 << 0 << 0 << "";
    QTest::newRow("a radius") << "" << 1 << 4 << 0 << "$borderRadius:4;";
    QTest::newRow("a radius of top-left") << "" << 1 << 4 << 1 << "$borderRadius:4 top-left;";
    QTest::newRow("a radius of top-right") << "" << 1 << 4 << 2 << "$borderRadius:4 top-right;";
    QTest::newRow("a radius of bottom-left") << "" << 1 << 4 << 3 << "$borderRadius:4 bottom-left;";
    QTest::newRow("a radius of bottom-right")
            << "" << 1 << 4 << 4 << "$borderRadius:4 bottom-right;";
    QTest::newRow("a radius of the top") << "" << 1 << 4 << 5 << "$borderRadius:4 top;";
    QTest::newRow("a corner without a radius") << "" << 1 << 0 << 1 << "";
    QTest::newRow("all sides") << "trbl" << 1 << 0 << 0 << "$borders: all; $borderWidth:1;";
    QTest::newRow("all sides of another width")
            << "trbl" << 255 << 0 << 0 << "$borders: all; $borderWidth:255;";
    QTest::newRow("all sides with a radius")
            << "trbl" << 2 << 4 << 5 << "$borders: all; $borderWidth:2;$borderRadius:4 top;";
    QTest::newRow("all sides of no width, which drop the radius") << "trbl" << 0 << 4 << 0 << "";
    QTest::newRow("one side") << "t" << 1 << 0 << 0 << "$borders: top; $borderWidth:1;";
    QTest::newRow("three sides") << "rbl" << 2 << 0 << 0
                                 << "$borders: right bottom left; $borderWidth:2;";
    QTest::newRow("two sides of no width")
            << "tb" << 0 << 0 << 0 << "$borders: top bottom; $borderWidth:0;";
    QTest::newRow("two sides with a radius")
            << "tl" << 1 << 4 << 1
            << "$borders: top left; $borderWidth:1;$borderRadius:4 top-left;";
}

void tst_OxaThemeUtilsRecords::writesTheBorderOfARecord()
{
    QFETCH(const QString, sides);
    QFETCH(const int, width);
    QFETCH(const int, radius);
    QFETCH(const int, corner);
    QFETCH(const QString, text);
    OxaCSSData data;
    data.borderTop = sides.contains(QLatin1Char('t'));
    data.borderRight = sides.contains(QLatin1Char('r'));
    data.borderBottom = sides.contains(QLatin1Char('b'));
    data.borderLeft = sides.contains(QLatin1Char('l'));
    data.borderWidth = quint8(width);
    data.borderRadius = quint8(radius);
    data.radiusCorner = corner;
    QCOMPARE(OxaThemeUtils::convertToOxaCSS(data), text);
}

void tst_OxaThemeUtilsRecords::derivesNoBorderFromTheOtherFields()
{
    OxaCSSData sides;
    setAllSides(sides);
    sides.borderRadius = 4;
    sides.borderColorSetName = QStringLiteral("y");
    sides.noBorder = true;
    QCOMPARE(OxaThemeUtils::convertToOxaCSS(sides),
             QLatin1String("$borders: all; $borderWidth:1;$borderRadius:4; $borderColors: y;"));

    OxaCSSData nothing;
    nothing.borderColorSetName = QStringLiteral("y");
    nothing.noBorder = true;
    QCOMPARE(OxaThemeUtils::convertToOxaCSS(nothing), QLatin1String("$borderColors: y;"));
}

void tst_OxaThemeUtilsRecords::leavesTheGivenRecordAlone()
{
    OxaCSSData data;
    data.borderRadius = 4;
    const OxaCSSData before = data;
    OxaThemeUtils::convertToOxaCSS(data);
    QCOMPARE(data, before);
}

void tst_OxaThemeUtilsRecords::readsStyleTextsIntoRecords_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("record");
    QTest::newRow("plain text only")
            << " color: red; "
            << "background \"\" border \"\" text \"\" sides width 0 radius 0 corner 0 mask 0 "
               "plain \"color: red;\"";
    QTest::newRow("every directive")
            << "a $backgroundColors: x; $borderColors: y; $textColors: states; $borders: top left; "
               "$borderWidth: 3; $borderRadius: 4 top-right; b"
            << "background \"x\" border \"y\" text \"states\" sides top left width 3 radius 4 "
               "corner 2 mask 0 plain \"a       b\"";
    QTest::newRow("only a radius wanted")
            << "$textColors: y; $borderRadius: 4;"
            << "background \"\" border \"\" text \"y\" sides width 0 radius 4 corner 0 mask 0 "
               "noBorder plain \"\"";
    QTest::newRow("a gradient or none, which has the transparent set's name")
            << "$backgroundColors: none;"
            << "background \"transparent\" border \"\" text \"\" sides width 0 radius 0 corner 0 "
               "mask 0 plain \"\"";
    QTest::newRow("directives that can't be expanded are no plain text either")
            << "$backgroundColors: nope; $borderColors: red; $textColors: nope;"
            << "background \"\" border \"\" text \"\" sides width 0 radius 0 corner 0 mask 0 "
               "plain \"\"";
    QTest::newRow("a second directive of a kind is plain text")
            << "$textColors: x; $textColors: y;"
            << "background \"\" border \"\" text \"x\" sides width 0 radius 0 corner 0 mask 0 "
               "plain \"$textColors: y;\"";
}

void tst_OxaThemeUtilsRecords::readsStyleTextsIntoRecords()
{
    QFETCH(const QString, text);
    QFETCH(const QString, record);
    QCOMPARE(StyleRecords::describe(StyleTexts::parse(text).oxaCSS), record);
}

void tst_OxaThemeUtilsRecords::readsBackWhatItWrote_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("plain text") << "color: red;";
    QTest::newRow("a background") << "$backgroundColors: x;";
    QTest::newRow("a border with a radius") << "$borderColors: y; $borderRadius: 4;";
    QTest::newRow("a literal text colour") << "$textColors: #336699;";
    QTest::newRow("a radius alone") << "$borderRadius: 4;";
    QTest::newRow("a radius without a border") << "$backgroundColors: x; $borderRadius: 4 top;";
    QTest::newRow("a wide border") << "$borderColors: y; $borders: all; $borderWidth: 3; "
                                      "$borderRadius: 4 bottom-right;";
    QTest::newRow("some sides") << "$borderColors: y; $borders: left right; $borderRadius: 7;";
    QTest::newRow("square corners")
            << "$borderColors: y; $borders: all; #bar{border-top-left-radius:3px;}";
    QTest::newRow("everything, in any order")
            << "#bar{color:$(x);} $borderRadius: 4 top-left; $textColors: x; $borders: bottom; "
               "$backgroundColors: y; $borderWidth: 300; $borderColors: states;";
}

void tst_OxaThemeUtilsRecords::readsBackWhatItWrote()
{
    QFETCH(const QString, text);
    const OxaCSSData data = StyleTexts::parse(text).oxaCSS;
    QCOMPARE(StyleTexts::parse(OxaThemeUtils::convertToOxaCSS(data)).oxaCSS, data);
}

// Only a text that names sides has a mask, and a border set alone names none.
void tst_OxaThemeUtilsRecords::marksCornersSquareOnceTheSidesAreWrittenOut()
{
    const OxaCSSData data = StyleTexts::parse(QStringLiteral("$borderColors: y;")).oxaCSS;
    QCOMPARE(int(data.rectangularCornerMask), 0);
    const QString text = OxaThemeUtils::convertToOxaCSS(data);
    QCOMPARE(text, QLatin1String("$borders: all; $borderWidth:1; $borderColors: y;"));
    QCOMPARE(int(StyleTexts::parse(text).oxaCSS.rectangularCornerMask), 15);
}

// "none" and gradients leave the transparent set's name in a record, which no store holds.
void tst_OxaThemeUtilsRecords::losesATransparentBackground()
{
    const OxaCSSData data = StyleTexts::parse(QStringLiteral("$backgroundColors: none;")).oxaCSS;
    const QString text = OxaThemeUtils::convertToOxaCSS(data);
    QCOMPARE(text, QLatin1String("$backgroundColors: transparent;"));
    QCOMPARE(StyleTexts::sheetOf(text), text);
}

void tst_OxaThemeUtilsRecords::differsWhenAFieldDiffers_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    const QString x = QStringLiteral("x");
    row("background name", [x](OxaCSSData &data) { data.backgroundColorSetName = x; });
    row("border name", [x](OxaCSSData &data) { data.borderColorSetName = x; });
    row("text name", [x](OxaCSSData &data) { data.textColorSetName = x; });
    row("plain style sheet", [x](OxaCSSData &data) { data.plainStyleSheet = x; });
    row("top", [](OxaCSSData &data) { data.borderTop = true; });
    row("right", [](OxaCSSData &data) { data.borderRight = true; });
    row("bottom", [](OxaCSSData &data) { data.borderBottom = true; });
    row("left", [](OxaCSSData &data) { data.borderLeft = true; });
    row("only a radius", [](OxaCSSData &data) { data.noBorder = true; });
    row("radius", [](OxaCSSData &data) { data.borderRadius = 9; });
    row("width", [](OxaCSSData &data) { data.borderWidth = 9; });
    row("mask", [](OxaCSSData &data) { data.rectangularCornerMask = 9; });
    row("corner", [](OxaCSSData &data) { data.radiusCorner = 9; });
}

void tst_OxaThemeUtilsRecords::differsWhenAFieldDiffers()
{
    QFETCH(const Change, change);
    OxaCSSData data;
    QVERIFY(data == OxaCSSData());
    QVERIFY(!(data != OxaCSSData()));
    change(data);
    QVERIFY(data != OxaCSSData());
    QVERIFY(!(data == OxaCSSData()));
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_OxaThemeUtilsRecords)
#include "tst_oxathemeutils_records.moc"
