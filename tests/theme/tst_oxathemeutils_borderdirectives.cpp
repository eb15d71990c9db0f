// SPDX-License-Identifier: Apache-2.0
#include "StyleTexts.h"
#include "support/TestMain.h"

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

/// The border directives "$borders:" and "$borderWidth:", and all three together.
class tst_OxaThemeUtilsBorderDirectives : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void insertsTheBorderRule_data();
    void insertsTheBorderRule();
    void writesTheBorderOfTheDirectives_data();
    void writesTheBorderOfTheDirectives();
    void startsWithAllSidesOnlyForABorderSet_data();
    void startsWithAllSidesOnlyForABorderSet();
    void readsSides_data();
    void readsSides();
    void readsTheWidth_data();
    void readsTheWidth();
    void expandsTheFirstDirectiveOfAKindOnly();
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
    QTest::newRow("at the sides")
            << "$borderColors: y; a $borders: all; b"
            << "#bar{border-color:#ff778899;} a #bar{border-style:solid; border-width:1px;} b";
    QTest::newRow("at the radius")
            << "$backgroundColors: y; a $borderRadius: 4; b"
            << "#bar{background-color:#ff778899;} a #bar{border-radius:4px;} b";
    QTest::newRow("at the radius, after the sides")
            << "$borderColors: y;a$borders: all;b$borderRadius: 4;c"
            << "#bar{border-color:#ff778899;}ab#bar{border-style:solid; "
               "border-width:1px;border-radius:4px;}c";
    QTest::newRow("at the radius, before the sides")
            << "$borderColors: y;a$borderRadius: 4;b$borders: all;c"
            << "#bar{border-color:#ff778899;}a#bar{border-style:solid; "
               "border-width:1px;border-radius:4px;}bc";
    QTest::newRow("not at the width")
            << "a$borderWidth: 3;b$borderColors: y;"
            << "#bar{border-style:solid; border-width:3px;}ab#bar{border-color:#ff778899;}";
    QTest::newRow("at the sides, after a removed width")
            << "$borderColors: y;a$borderWidth: 3;b$borders: all;c"
            << "#bar{border-color:#ff778899;}ab#bar{border-style:solid; border-width:3px;}c";
}

void tst_OxaThemeUtilsBorderDirectives::insertsTheBorderRule()
{
    QFETCH(const QString, text);
    QFETCH(const QString, sheet);
    QCOMPARE(StyleTexts::sheetOf(text), sheet);
}

void tst_OxaThemeUtilsBorderDirectives::writesTheBorderOfTheDirectives_data()
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
    QTest::newRow("empty directives are removed, and move nothing")
            << "a$borders:;b$borderRadius: ;c$borderWidth:\n;d$borderColors: y;"
            << "#bar{border-style:solid; border-width:1px;}abcd#bar{border-color:#ff778899;}";
    QTest::newRow("none for an empty width without a border set")
            << "$textColors: y;$borderWidth: ;$borders: all;"
            << "#bar{color:#ff778899;}#bar{border:none;}";
}

void tst_OxaThemeUtilsBorderDirectives::writesTheBorderOfTheDirectives()
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
    QTest::newRow("its low bits, which are zero") << "256" << 0;
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
    QTest::newRow("nothing, which leaves the default") << "" << 1;
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

void tst_OxaThemeUtilsBorderDirectives::expandsTheFirstDirectiveOfAKindOnly()
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

UIELEMENTS_APPLESS_TEST_MAIN(tst_OxaThemeUtilsBorderDirectives)
#include "tst_oxathemeutils_borderdirectives.moc"
