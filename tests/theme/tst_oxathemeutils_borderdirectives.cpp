// SPDX-License-Identifier: Apache-2.0
#include "StyleTexts.h"

#include <QTest>

namespace {

/// A directive that gives all sides a border, and what it expands to.
const QString border = QStringLiteral("$borderColors: y;");
const QString borderRules = QStringLiteral("#bar{border-color:#ff778899;}");

QString rule(const char *declarations)
{
    return QStringLiteral("#bar{%1}").arg(QLatin1String(declarations));
}

QString sidesOf(const OxaCSSData &data)
{
    QStringList sides;
    if (data.borderTop)
        sides += QStringLiteral("top");
    if (data.borderRight)
        sides += QStringLiteral("right");
    if (data.borderBottom)
        sides += QStringLiteral("bottom");
    if (data.borderLeft)
        sides += QStringLiteral("left");
    return sides.join(QLatin1Char(' '));
}

} // namespace

/// The border directives: "$borders:", "$borderWidth:" and "$borderRadius:".
class tst_OxaThemeUtilsBorderDirectives : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void insertsTheBorderRule_data();
    void insertsTheBorderRule();
    void writesABorderOfWhatItRead_data();
    void writesABorderOfWhatItRead();
    void startsWithAllSidesOnlyForABorderSet_data();
    void startsWithAllSidesOnlyForABorderSet();
    void readsSides_data();
    void readsSides();
    void readsTheWidth_data();
    void readsTheWidth();
    void readsTheRadius_data();
    void readsTheRadius();
    void wantsOnlyARadiusWithoutABorderSet_data();
    void wantsOnlyARadiusWithoutABorderSet();
    void marksSquareCorners_data();
    void marksSquareCorners();
    void findsRoundCornersInTheSelectorsOfRulesToo_data();
    void findsRoundCornersInTheSelectorsOfRulesToo();
    void honoursTheFirstDirectiveOfAKindOnly();
    void leavesDirectivesWithoutAnEnd_data();
    void leavesDirectivesWithoutAnEnd();
};

void tst_OxaThemeUtilsBorderDirectives::insertsTheBorderRule_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sheet");
    QTest::newRow("at the start for a set without a border")
            << "color: red; $backgroundColors: y;"
            << "#bar{border:none;}color: red; #bar{background-color:#ff778899;}";
    QTest::newRow("at the start for a border set")
            << "a $borderColors: y;"
            << "#bar{border-style:solid; border-width:1px;}a #bar{border-color:#ff778899;}";
    QTest::newRow("not without a set and a directive") << "color: red;"
                                                       << "color: red;";
    QTest::newRow("not for a width alone") << "a $borderWidth: 3; b"
                                           << "a  b";
    QTest::newRow("where the sides stand")
            << "$borderColors: y; a $borders: all; b"
            << "#bar{border-color:#ff778899;} a #bar{border-style:solid; border-width:1px;} b";
    QTest::newRow("where the radius stands")
            << "$backgroundColors: y; a $borderRadius: 4; b"
            << "#bar{background-color:#ff778899;} a #bar{border-radius:4px;} b";
    QTest::newRow("where the radius stands, after the sides")
            << "$borderColors: y;a$borders: all;b$borderRadius: 4;c"
            << "#bar{border-color:#ff778899;}ab#bar{border-style:solid; "
               "border-width:1px;border-radius:4px;}c";
    QTest::newRow("where the radius stands, before the sides")
            << "$borderColors: y;a$borderRadius: 4;b$borders: all;c"
            << "#bar{border-color:#ff778899;}a#bar{border-style:solid; "
               "border-width:1px;border-radius:4px;}bc";
    QTest::newRow("not where the width stands")
            << "a$borderWidth: 3;b$borderColors: y;"
            << "#bar{border-style:solid; border-width:3px;}ab#bar{border-color:#ff778899;}";
    QTest::newRow("where the sides stand once the width is gone")
            << "$borderColors: y;a$borderWidth: 3;b$borders: all;c"
            << "#bar{border-color:#ff778899;}ab#bar{border-style:solid; border-width:3px;}c";
}

void tst_OxaThemeUtilsBorderDirectives::insertsTheBorderRule()
{
    QFETCH(const QString, text);
    QFETCH(const QString, sheet);
    QCOMPARE(StyleTexts::sheetOf(text), sheet);
}

void tst_OxaThemeUtilsBorderDirectives::writesABorderOfWhatItRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sheet");
    QTest::newRow("for sides without any set")
            << "a $borders: top; b"
            << "a #bar{border-style:solid;border-top-width:0px;} b";
    QTest::newRow("for a radius without any set") << "a $borderRadius: 4; b"
                                                  << "a #bar{border-radius:4px;} b";
    QTest::newRow("a border of none for a radius that is no number") << "a $borderRadius: x; b"
                                                                     << "a #bar{border:none;} b";
    QTest::newRow("no radius for four sides of no width") << "$borders: all; $borderRadius: 4;"
                                                          << " #bar{border:none;}";
    QTest::newRow("no radius for a width whose low bits are zero")
            << "$borderColors: y;$borderWidth: 256; $borderRadius: 4;"
            << "#bar{border-color:#ff778899;} #bar{border:none;}";
    QTest::newRow("empty directives go, and move nothing")
            << "a$borders:;b$borderRadius: ;c$borderWidth:\n;d$borderColors: y;"
            << "#bar{border-style:solid; border-width:1px;}abcd#bar{border-color:#ff778899;}";
    QTest::newRow("none for an empty width without a border set")
            << "$textColors: y;$borderWidth: ;$borders: all;"
            << "#bar{color:#ff778899;}#bar{border:none;}";
}

void tst_OxaThemeUtilsBorderDirectives::writesABorderOfWhatItRead()
{
    QFETCH(const QString, text);
    QFETCH(const QString, sheet);
    QCOMPARE(StyleTexts::sheetOf(text), sheet);
}

void tst_OxaThemeUtilsBorderDirectives::startsWithAllSidesOnlyForABorderSet_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sides");
    QTest::addColumn<int>("width");
    QTest::newRow("a border set") << "$borderColors: y;"
                                  << "top right bottom left" << 1;
    QTest::newRow("a background set") << "$backgroundColors: y;"
                                      << "" << 0;
    QTest::newRow("a text set") << "$textColors: y;"
                                << "" << 0;
    QTest::newRow("an unknown border set") << "$borderColors: nope;"
                                           << "" << 0;
    QTest::newRow("a literal border colour") << "$borderColors: red;"
                                             << "" << 0;
    QTest::newRow("no set") << "color: red;"
                            << "" << 0;
}

void tst_OxaThemeUtilsBorderDirectives::startsWithAllSidesOnlyForABorderSet()
{
    QFETCH(const QString, text);
    QFETCH(const QString, sides);
    QFETCH(const int, width);
    const OxaCSSData data = StyleTexts::parse(text).oxaCSS;
    QCOMPARE(sidesOf(data), sides);
    QCOMPARE(int(data.borderWidth), width);
    QVERIFY(!data.noBorder);
}

void tst_OxaThemeUtilsBorderDirectives::readsSides_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("sides");
    QTest::addColumn<QString>("declarations");
    const QString all = QStringLiteral("border-style:solid; border-width:1px;");
    QTest::newRow("all") << "all"
                         << "top right bottom left" << all;
    QTest::newRow("all inside another word") << "small"
                                             << "top right bottom left" << all;
    QTest::newRow("all beside a side") << "top all"
                                       << "top right bottom left" << all;
    QTest::newRow("each by name") << "left bottom right top"
                                  << "top right bottom left" << all;
    QTest::newRow("two") << "top bottom"
                         << "top bottom"
                         << "border-style:solid;border-top-width:1px;border-bottom-width:1px;";
    QTest::newRow("two in the other order")
            << "left,right"
            << "right left"
            << "border-style:solid;border-right-width:1px;border-left-width:1px;";
    QTest::newRow("two in one word") << "topleft"
                                     << "top left"
                                     << "border-style:solid;border-top-width:1px;"
                                        "border-left-width:1px;";
    QTest::newRow("one") << "right"
                         << "right"
                         << "border-style:solid;border-right-width:1px;";
    QTest::newRow("none of them") << "none"
                                  << ""
                                  << "border:none;";
    QTest::newRow("another case") << "Top ALL"
                                  << ""
                                  << "border:none;";
}

void tst_OxaThemeUtilsBorderDirectives::readsSides()
{
    QFETCH(const QString, value);
    QFETCH(const QString, sides);
    QFETCH(const QString, declarations);
    const auto result = StyleTexts::parse(border + QStringLiteral("$borders: %1;").arg(value));
    QCOMPARE(sidesOf(result.oxaCSS), sides);
    QCOMPARE(result.expandedStyleSheet, borderRules + QStringLiteral("#bar{%1}").arg(declarations));
}

void tst_OxaThemeUtilsBorderDirectives::readsTheWidth_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("width");
    QTest::newRow("a number") << "3" << 3;
    QTest::newRow("the highest that fits") << "255" << 255;
    QTest::newRow("its low bits, which are none") << "256" << 0;
    QTest::newRow("its low bits") << "300" << 44;
    QTest::newRow("zero") << "0" << 1;
    QTest::newRow("below zero") << "-3" << 1;
    QTest::newRow("a word") << "thick" << 1;
    QTest::newRow("a unit") << "3px" << 1;
    QTest::newRow("a fraction") << "2.5" << 1;
    QTest::newRow("two numbers") << "2 3" << 1;
    QTest::newRow("a hexadecimal number") << "0x10" << 1;
    QTest::newRow("nine digits") << "999999999" << (999999999 & 0xff);
    QTest::newRow("all that an int holds") << "2147483647" << 255;
    QTest::newRow("one more than an int holds") << "2147483648" << 1;
    QTest::newRow("zeros before a number") << "00000000003" << 3;
    QTest::newRow("a plus before a number") << "+3" << 3;
    QTest::newRow("digits of another script") << "\xd9\xa3" << 1;
    QTest::newRow("white space around") << "\t3\n" << 3;
    QTest::newRow("nothing, which leaves it") << "" << 1;
}

void tst_OxaThemeUtilsBorderDirectives::readsTheWidth()
{
    QFETCH(const QString, value);
    QFETCH(const int, width);
    const auto result = StyleTexts::parse(border + QStringLiteral("$borderWidth:%1;").arg(value));
    QCOMPARE(int(result.oxaCSS.borderWidth), width);
    const QString declarations = width == 0
            ? QStringLiteral("border:none;")
            : QStringLiteral("border-style:solid; border-width:%1px;").arg(width);
    QCOMPARE(result.expandedStyleSheet, QStringLiteral("#bar{%1}").arg(declarations) + borderRules);
}

void tst_OxaThemeUtilsBorderDirectives::readsTheRadius_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("radius");
    QTest::addColumn<int>("corner");
    QTest::addColumn<QString>("declarations");
    QTest::newRow("a number") << "4" << 4 << 0 << "border-radius:4px;";
    QTest::newRow("the highest that fits") << "255" << 255 << 0 << "border-radius:255px;";
    QTest::newRow("its low bits") << "300" << 44 << 0 << "border-radius:44px;";
    QTest::newRow("its low bits, which are none") << "256" << 0 << 0 << "";
    QTest::newRow("top-left") << "4 top-left" << 4 << 1 << "border-top-left-radius:4px;";
    QTest::newRow("top-right") << "4 top-right" << 4 << 2 << "border-top-right-radius:4px;";
    QTest::newRow("bottom-left") << "4 bottom-left" << 4 << 3 << "border-bottom-left-radius:4px;";
    QTest::newRow("bottom-right") << "4 bottom-right" << 4 << 4
                                  << "border-bottom-right-radius:4px;";
    QTest::newRow("top") << "4 top" << 4 << 5
                         << "border-top-left-radius:4px; border-top-right-radius:4px;";
    QTest::newRow("bottom, which is no word") << "4 bottom" << 4 << 0 << "border-radius:4px;";
    QTest::newRow("a longer word") << "4 topmost" << 4 << 0 << "border-radius:4px;";
    QTest::newRow("another case") << "4 Top-left" << 4 << 0 << "border-radius:4px;";
    QTest::newRow("a word around a corner")
            << "4 xtop-lefty" << 4 << 1 << "border-top-left-radius:4px;";
    QTest::newRow("a corner of three parts")
            << "4 top-left-corner" << 4 << 0 << "border-radius:4px;";
    QTest::newRow("two parts that are no corner") << "4 left-top" << 4 << 0 << "border-radius:4px;";
    QTest::newRow("low bits with a corner") << "300 top" << 44 << 5
                                            << "border-top-left-radius:44px; "
                                               "border-top-right-radius:44px;";
    QTest::newRow("two blanks") << "4  top" << 0 << 0 << "";
    QTest::newRow("a tab instead of the blank") << "4\ttop" << 0 << 0 << "";
    QTest::newRow("three parts") << "4 top left" << 0 << 0 << "";
    QTest::newRow("a word") << "round" << 0 << 0 << "";
    QTest::newRow("a unit") << "4px" << 0 << 0 << "";
    QTest::newRow("below zero") << "-4" << 0 << 0 << "";
    QTest::newRow("more than an int holds") << "4294967044" << 4 << 0 << "border-radius:4px;";
    QTest::newRow("more than an unsigned number holds") << "4294967300" << 0 << 0 << "";
    QTest::newRow("a plus before a number") << "+4" << 4 << 0 << "border-radius:4px;";
    QTest::newRow("a word with a corner") << "round top-left" << 0 << 1 << "";
    QTest::newRow("the other way round") << "top-left 4" << 0 << 0 << "";
}

void tst_OxaThemeUtilsBorderDirectives::readsTheRadius()
{
    QFETCH(const QString, value);
    QFETCH(const int, radius);
    QFETCH(const int, corner);
    QFETCH(const QString, declarations);
    const auto result = StyleTexts::parse(border + QStringLiteral("$borderRadius: %1;").arg(value));
    QCOMPARE(int(result.oxaCSS.borderRadius), radius);
    QCOMPARE(result.oxaCSS.radiusCorner, corner);
    QVERIFY(!result.oxaCSS.noBorder);
    QCOMPARE(result.expandedStyleSheet,
             borderRules
                     + QStringLiteral("#bar{border-style:solid; border-width:1px;%1}")
                               .arg(declarations));
}

void tst_OxaThemeUtilsBorderDirectives::wantsOnlyARadiusWithoutABorderSet_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<bool>("noBorder");
    QTest::newRow("a radius") << "$backgroundColors: y;$borderRadius: 4;"
                              << "#bar{background-color:#ff778899;}#bar{border-radius:4px;}"
                              << true;
    QTest::newRow("a radius of one corner")
            << "$backgroundColors: y;$borderRadius: 4 bottom-left;"
            << "#bar{background-color:#ff778899;}#bar{border-bottom-left-radius:4px;}" << true;
    QTest::newRow("a radius beats a side")
            << "$backgroundColors: y;$borders: top; $borderWidth: 2; $borderRadius: 4;"
            << "#bar{background-color:#ff778899;}  #bar{border-radius:4px;}" << true;
    QTest::newRow("a radius beats four sides of some width")
            << "$backgroundColors: y;$borders: all; $borderWidth: 2; $borderRadius: 4;"
            << "#bar{background-color:#ff778899;}  #bar{border-radius:4px;}" << true;
    QTest::newRow("four sides of no width beat a radius")
            << "$backgroundColors: y;$borders: all; $borderRadius: 4;"
            << "#bar{background-color:#ff778899;} #bar{border:none;}" << true;
    QTest::newRow("no radius") << "$backgroundColors: y;$borderRadius: 0;"
                               << "#bar{background-color:#ff778899;}#bar{border:none;}" << false;
}

void tst_OxaThemeUtilsBorderDirectives::wantsOnlyARadiusWithoutABorderSet()
{
    QFETCH(const QString, text);
    QFETCH(const QString, sheet);
    QFETCH(const bool, noBorder);
    const auto result = StyleTexts::parse(text);
    QCOMPARE(result.expandedStyleSheet, sheet);
    QCOMPARE(result.oxaCSS.noBorder, noBorder);
}

void tst_OxaThemeUtilsBorderDirectives::marksSquareCorners_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("mask");
    QTest::newRow("all of them, as nothing is round") << "$borders: all;" << 15;
    QTest::newRow("none with a radius directive") << "$borders: all; $borderRadius: 4;" << 0;
    QTest::newRow("none with a radius directive before it")
            << "$borderRadius: 4; $borders: all;" << 0;
    QTest::newRow("none with an empty radius directive") << "$borders: all; $borderRadius:;" << 0;
    QTest::newRow("none with a radius directive that has no end")
            << "$borders: all; $borderRadius: 4" << 0;
    QTest::newRow("three beside top-left") << "$borders: all; border-top-left-radius: 4px;" << 14;
    QTest::newRow("three beside top-right") << "$borders: all; border-top-right-radius: 4px;" << 13;
    QTest::newRow("three beside bottom-left")
            << "border-bottom-left-radius: 4px; $borders: all;" << 11;
    QTest::newRow("three beside bottom-right")
            << "border-bottom-right-radius: 4px; $borders: all;" << 7;
    QTest::newRow("two beside the top")
            << "$borders: all; border-top-left-radius: 4px; border-top-right-radius: 4px;" << 12;
    QTest::newRow("none, as each is round")
            << "$borders: all; /* top-left-radius top-right-radius bottom-left-radius "
               "bottom-right-radius */"
            << 0;
    QTest::newRow("three beside a round one, whatever the directive says")
            << "$borders: all; $borderRadius: 4; border-top-left-radius: 4px;" << 14;
    QTest::newRow("all beside a plain radius") << "$borders: all; border-radius: 4px;" << 15;
    QTest::newRow("one side's corners, too") << "$borders: top;" << 15;
    QTest::newRow("none without sides") << "border-top-left-radius: 4px;" << 0;
    QTest::newRow("none with empty sides") << "$borders: ; border-top-left-radius: 4px;" << 0;
    QTest::newRow("not what the sides' own value says") << "$borders: all top-left-radius;" << 15;
}

void tst_OxaThemeUtilsBorderDirectives::marksSquareCorners()
{
    QFETCH(const QString, text);
    QFETCH(const int, mask);
    QCOMPARE(int(StyleTexts::parse(text).oxaCSS.rectangularCornerMask), mask);
}

void tst_OxaThemeUtilsBorderDirectives::findsRoundCornersInTheSelectorsOfRulesToo_data()
{
    QTest::addColumn<QString>("selector");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("mask");
    QTest::newRow("a corner") << "#top-left-radius"
                              << "$textColors: y; $borders: all;" << 14;
    QTest::newRow("a corner of a rule for a state") << "#bottom-left-radius"
                                                    << "$textColors: x; $borders: all;" << 11;
    QTest::newRow("a corner that the text before it begins")
            << "left-radius"
            << "top-$textColors: y; $borders: all;" << 14;
    QTest::newRow("what only the directive says") << "#Radius"
                                                  << "$textColors: y; $borders: all;" << 0;
    QTest::newRow("nothing before there are rules") << "#top-left-radius"
                                                    << "$borders: all;" << 15;
    QTest::newRow("a corner in what a directive takes from rules")
            << "#top-left-radius"
            << "$borderWidth: $textColors: x; $borders: all;" << 14;
}

void tst_OxaThemeUtilsBorderDirectives::findsRoundCornersInTheSelectorsOfRulesToo()
{
    QFETCH(const QString, selector);
    QFETCH(const QString, text);
    const auto result = OxaThemeUtils::parseCSS(selector, text, StyleTexts::store());
    QTEST(int(result.oxaCSS.rectangularCornerMask), "mask");
}

void tst_OxaThemeUtilsBorderDirectives::honoursTheFirstDirectiveOfAKindOnly()
{
    const auto result = StyleTexts::parse(
            border
            + QStringLiteral("$borders: top;$borderWidth: 2;$borderRadius: 4;"
                             "$borders: left;$borderWidth: 3;$borderRadius: 5;"));
    QCOMPARE(result.expandedStyleSheet,
             borderRules + rule("border-style:solid;border-top-width:2px;border-radius:4px;")
                     + QLatin1String("$borders: left;$borderWidth: 3;$borderRadius: 5;"));
}

void tst_OxaThemeUtilsBorderDirectives::leavesDirectivesWithoutAnEnd_data()
{
    QTest::addColumn<QString>("directive");
    QTest::newRow("sides") << "$borders: top";
    QTest::newRow("width") << "$borderWidth: 3";
    QTest::newRow("radius") << "$borderRadius: 4";
}

void tst_OxaThemeUtilsBorderDirectives::leavesDirectivesWithoutAnEnd()
{
    QFETCH(const QString, directive);
    QCOMPARE(StyleTexts::sheetOf(border + directive),
             rule("border-style:solid; border-width:1px;") + borderRules + directive);
}

QTEST_APPLESS_MAIN(tst_OxaThemeUtilsBorderDirectives)
#include "tst_oxathemeutils_borderdirectives.moc"
