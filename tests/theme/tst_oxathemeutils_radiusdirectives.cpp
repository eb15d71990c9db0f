// SPDX-License-Identifier: Apache-2.0
#include "StyleTexts.h"
#include "support/TestMain.h"

namespace {

/// A directive that gives all sides a border, and what it expands to.
const QString border = QStringLiteral("$borderColors: y;");
const QString borderRules = QStringLiteral("#bar{border-color:#ff778899;}");

} // namespace

/// The border directive "$borderRadius:", and the corners that stay square.
class tst_OxaThemeUtilsRadiusDirectives : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheRadius_data();
    void readsTheRadius();
    void setsNoBorderForARadiusWithoutABorderSet_data();
    void setsNoBorderForARadiusWithoutABorderSet();
    void marksSquareCorners_data();
    void marksSquareCorners();
    void findsRoundCornersInTheSelectorsOfRulesToo_data();
    void findsRoundCornersInTheSelectorsOfRulesToo();
};

void tst_OxaThemeUtilsRadiusDirectives::readsTheRadius_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("radius");
    QTest::addColumn<int>("corner");
    QTest::addColumn<QString>("declarations");
    QTest::newRow("a number") << "4" << 4 << 0 << "border-radius:4px;";
    QTest::newRow("the highest that fits") << "255" << 255 << 0 << "border-radius:255px;";
    QTest::newRow("its low bits") << "300" << 44 << 0 << "border-radius:44px;";
    QTest::newRow("its low bits, which are zero") << "256" << 0 << 0 << "";
    QTest::newRow("top-left") << "4 top-left" << 4 << 1 << "border-top-left-radius:4px;";
    QTest::newRow("top-right") << "4 top-right" << 4 << 2 << "border-top-right-radius:4px;";
    QTest::newRow("bottom-left") << "4 bottom-left" << 4 << 3 << "border-bottom-left-radius:4px;";
    QTest::newRow("bottom-right") << "4 bottom-right" << 4 << 4
                                  << "border-bottom-right-radius:4px;";
    QTest::newRow("top") << "4 top" << 4 << 5
                         << "border-top-left-radius:4px; border-top-right-radius:4px;";
    QTest::newRow("bottom, which is no keyword") << "4 bottom" << 4 << 0 << "border-radius:4px;";
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

void tst_OxaThemeUtilsRadiusDirectives::readsTheRadius()
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

void tst_OxaThemeUtilsRadiusDirectives::setsNoBorderForARadiusWithoutABorderSet_data()
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

void tst_OxaThemeUtilsRadiusDirectives::setsNoBorderForARadiusWithoutABorderSet()
{
    QFETCH(const QString, text);
    QFETCH(const QString, sheet);
    QFETCH(const bool, noBorder);
    const auto result = StyleTexts::parse(text);
    QCOMPARE(result.expandedStyleSheet, sheet);
    QCOMPARE(result.oxaCSS.noBorder, noBorder);
}

void tst_OxaThemeUtilsRadiusDirectives::marksSquareCorners_data()
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

void tst_OxaThemeUtilsRadiusDirectives::marksSquareCorners()
{
    QFETCH(const QString, text);
    QFETCH(const int, mask);
    QCOMPARE(int(StyleTexts::parse(text).oxaCSS.rectangularCornerMask), mask);
}

void tst_OxaThemeUtilsRadiusDirectives::findsRoundCornersInTheSelectorsOfRulesToo_data()
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

void tst_OxaThemeUtilsRadiusDirectives::findsRoundCornersInTheSelectorsOfRulesToo()
{
    QFETCH(const QString, selector);
    QFETCH(const QString, text);
    const auto result = OxaThemeUtils::parseCSS(selector, text, StyleTexts::store());
    QTEST(int(result.oxaCSS.rectangularCornerMask), "mask");
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_OxaThemeUtilsRadiusDirectives)
#include "tst_oxathemeutils_radiusdirectives.moc"
