// SPDX-License-Identifier: Apache-2.0
#include "StyleTexts.h"
#include "support/TestMain.h"

namespace {

/// What a style text without a border gets at its start as soon as it names a set.
const QString noBorder = QStringLiteral("#bar{border:none;}");

OxaColorSet one(const char *name, const char *color)
{
    return ColorSets::make(QLatin1String(name), { color });
}

} // namespace

/// The colour directives: "$backgroundColors:", "$borderColors:" and "$textColors:".
class tst_OxaThemeUtilsColorDirectives : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesARuleForEachStateThatDiffers_data();
    void writesARuleForEachStateThatDiffers();
    void readsAValueThroughTheFirstSemicolon_data();
    void readsAValueThroughTheFirstSemicolon();
    void expandsDirectivesWhereTheyStand();
    void writesAlphaFirst();

    void writesTheStatesOfAnIncompleteSet();
    void ignoresASetWithoutNormal();
    void recordsTheSetsOwnName();

    void leavesWhatItCannotExpand_data();
    void leavesWhatItCannotExpand();
    void expandsTheFirstDirectiveOfAKindOnly_data();
    void expandsTheFirstDirectiveOfAKindOnly();

    void expandsNoneToATransparentBackground();
    void prefersASetToAWord_data();
    void prefersASetToAWord();

    void expandsALiteralTextColor_data();
    void expandsALiteralTextColor();
    void namesAnInvalidSetAfterAWordItCannotExpand_data();
    void namesAnInvalidSetAfterAWordItCannotExpand();
};

void tst_OxaThemeUtilsColorDirectives::writesARuleForEachStateThatDiffers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sheet");
    QTest::newRow("a background with six colours, the strongest state last")
            << "$backgroundColors: states;"
            << "#bar{border:none;}#bar{background-color:#ff000001;}"
               "#bar:checked{background-color:#ff000006;}#bar:focus{background-color:#ff000005;}"
               "#bar:hover{background-color:#ff000002;}#bar:pressed{background-color:#ff000003;}"
               "#bar:disabled{background-color:#ff000004;}";
    QTest::newRow("a border with six colours, whose focus needs no outline")
            << "$borderColors: states;"
            << "#bar{border-style:solid; border-width:1px;}#bar{border-color:#ff000001;}"
               "#bar:checked{border-color:#ff000006;}#bar:focus{border-color:#ff000005;}"
               "#bar:hover{border-color:#ff000002;}#bar:pressed{border-color:#ff000003;}"
               "#bar:disabled{border-color:#ff000004;}#bar{outline:none;}";
    QTest::newRow("a text with six colours")
            << "$textColors: states;"
            << "#bar{border:none;}#bar{color:#ff000001;}#bar:checked{color:#ff000006;}"
               "#bar:focus{color:#ff000005;}#bar:hover{color:#ff000002;}"
               "#bar:pressed{color:#ff000003;}#bar:disabled{color:#ff000004;}";
    QTest::newRow("a background with one colour")
            << "$backgroundColors: y;"
            << "#bar{border:none;}#bar{background-color:#ff778899;}";
    QTest::newRow("a border with one colour, which has no focus")
            << "$borderColors: y;"
            << "#bar{border-style:solid; border-width:1px;}#bar{border-color:#ff778899;}";
    QTest::newRow("a border with a hover, but no focus")
            << "$borderColors: x;"
            << "#bar{border-style:solid; border-width:1px;}#bar{border-color:#ff112233;}"
               "#bar:hover{border-color:#ff445566;}";
}

void tst_OxaThemeUtilsColorDirectives::writesARuleForEachStateThatDiffers()
{
    QFETCH(const QString, text);
    QFETCH(const QString, sheet);
    QCOMPARE(StyleTexts::sheetOf(text), sheet);
}

void tst_OxaThemeUtilsColorDirectives::readsAValueThroughTheFirstSemicolon_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("rest");
    QTest::newRow("no blanks") << "$textColors:y;"
                               << "";
    QTest::newRow("white space around") << "$textColors:\t y\n ;"
                                        << "";
    QTest::newRow("another directive after it") << "$textColors: y;$shadow: 1;"
                                                << "$shadow: 1;";
}

void tst_OxaThemeUtilsColorDirectives::readsAValueThroughTheFirstSemicolon()
{
    QFETCH(const QString, text);
    QFETCH(const QString, rest);
    QCOMPARE(StyleTexts::sheetOf(text), noBorder + QLatin1String("#bar{color:#ff778899;}") + rest);
}

void tst_OxaThemeUtilsColorDirectives::expandsDirectivesWhereTheyStand()
{
    const auto result = StyleTexts::parse(
            QStringLiteral("a $textColors: y; b $backgroundColors: y; c $borderColors: y; d"));
    QCOMPARE(result.expandedStyleSheet,
             QLatin1String("#bar{border-style:solid; border-width:1px;}a #bar{color:#ff778899;} "
                           "b #bar{background-color:#ff778899;} c #bar{border-color:#ff778899;} "
                           "d"));
    QCOMPARE(result.backgroundColorSet, StyleTexts::store().at("y"));
    QCOMPARE(result.borderColorSet, StyleTexts::store().at("y"));
    QCOMPARE(result.textColorSet, StyleTexts::store().at("y"));
}

void tst_OxaThemeUtilsColorDirectives::writesAlphaFirst()
{
    QCOMPARE(StyleTexts::sheetOf(QStringLiteral("$textColors: t;"),
                                 ColorSets::storeOf({ one("t", "#0a112233") })),
             noBorder + QLatin1String("#bar{color:#0a112233;}"));
}

void tst_OxaThemeUtilsColorDirectives::writesTheStatesOfAnIncompleteSet()
{
    OxaColorSet incomplete = ColorSets::make(QStringLiteral("incomplete"),
                                             { "#112233", "#445566" });
    incomplete.pressed = QColor();
    incomplete.focused = QColor();
    const auto result = StyleTexts::parse(QStringLiteral("$borderColors: incomplete;"),
                                          StyleTexts::storeWith({ incomplete }));
    // The set isn't valid, so the record has no name, and without a name there is no border rule.
    QCOMPARE(result.expandedStyleSheet,
             QLatin1String("#bar{border-color:#ff112233;}#bar:hover{border-color:#ff445566;}"));
    QCOMPARE(result.borderColorSet, incomplete);
    QCOMPARE(result.oxaCSS.borderColorSetName, QString());
}

void tst_OxaThemeUtilsColorDirectives::ignoresASetWithoutNormal()
{
    OxaColorSet hollow(QStringLiteral("red"), Qt::blue);
    hollow.normal = QColor();
    const auto result = StyleTexts::parse(QStringLiteral("$textColors: red;"),
                                          ColorSets::storeOf({ hollow }));
    QCOMPARE(result.expandedStyleSheet, noBorder + QLatin1String("#bar{color:#ffff0000;}"));
    QCOMPARE(result.textColorSet, OxaColorSet(QStringLiteral("red"), Qt::red));
}

void tst_OxaThemeUtilsColorDirectives::recordsTheSetsOwnName()
{
    const OxaColorSetMap sets = { { "key", one("itself", "#112233") } };
    const auto result = StyleTexts::parse(QStringLiteral("$textColors: key;"), sets);
    QCOMPARE(result.oxaCSS.textColorSetName, QLatin1String("itself"));
}

void tst_OxaThemeUtilsColorDirectives::leavesWhatItCannotExpand_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a background of an unknown set") << "$backgroundColors: nope;";
    QTest::newRow("a border of an unknown set") << "$borderColors: nope;";
    QTest::newRow("a text of an unknown set") << "$textColors: nope;";
    QTest::newRow("a background without a value") << "$backgroundColors: ;";
    QTest::newRow("a border without a value") << "$borderColors:;";
    QTest::newRow("a text without a value") << "$textColors:\n;";
    QTest::newRow("a background without an end") << "$backgroundColors: x";
    QTest::newRow("a border without an end") << "$borderColors: x";
    QTest::newRow("a text without an end") << "$textColors: x";
    QTest::newRow("a set in another case") << "$textColors: X;";
    QTest::newRow("two sets") << "$textColors: x y;";
    QTest::newRow("a background of a literal colour") << "$backgroundColors: red;";
    QTest::newRow("a border of a literal colour") << "$borderColors: red;";
    QTest::newRow("a border of none") << "$borderColors: none;";
    QTest::newRow("a text of none") << "$textColors: none;";
    QTest::newRow("a background of none in another case") << "$backgroundColors: None;";
}

void tst_OxaThemeUtilsColorDirectives::leavesWhatItCannotExpand()
{
    QFETCH(const QString, text);
    const auto result = StyleTexts::parse(text);
    QCOMPARE(result.expandedStyleSheet, text);
    QVERIFY(!result.backgroundColorSet.isValid());
    QVERIFY(!result.borderColorSet.isValid());
    QVERIFY(!result.textColorSet.isValid());
    QCOMPARE(result.oxaCSS.backgroundColorSetName, QString());
    QCOMPARE(result.oxaCSS.borderColorSetName, QString());
    QCOMPARE(result.oxaCSS.textColorSetName, QString());
}

void tst_OxaThemeUtilsColorDirectives::expandsTheFirstDirectiveOfAKindOnly_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sheet");
    QTest::newRow("two texts") << "$textColors: y; $textColors: x;"
                               << "#bar{border:none;}#bar{color:#ff778899;} $textColors: x;";
    QTest::newRow("two backgrounds")
            << "$backgroundColors: y; $backgroundColors: x;"
            << "#bar{border:none;}#bar{background-color:#ff778899;} $backgroundColors: x;";
    QTest::newRow("two borders")
            << "$borderColors: y; $borderColors: x;"
            << "#bar{border-style:solid; border-width:1px;}#bar{border-color:#ff778899;} "
               "$borderColors: x;";
    QTest::newRow("an unknown one first") << "$textColors: nope; $textColors: x;"
                                          << "$textColors: nope; $textColors: x;";
}

void tst_OxaThemeUtilsColorDirectives::expandsTheFirstDirectiveOfAKindOnly()
{
    QFETCH(const QString, text);
    QFETCH(const QString, sheet);
    QCOMPARE(StyleTexts::sheetOf(text), sheet);
}

void tst_OxaThemeUtilsColorDirectives::expandsNoneToATransparentBackground()
{
    const auto result = StyleTexts::parse(QStringLiteral("$backgroundColors: none;"));
    QCOMPARE(result.expandedStyleSheet,
             noBorder + QLatin1String("#bar{background-color:#00000000;}"));
    QCOMPARE(result.backgroundColorSet, OxaThemeUtils::transparentColourSet());
    QCOMPARE(result.oxaCSS.backgroundColorSetName, QLatin1String("transparent"));
}

void tst_OxaThemeUtilsColorDirectives::prefersASetToAWord_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("rule");
    QTest::newRow("none") << "$backgroundColors: none;"
                          << "#bar{background-color:#ff0000aa;}";
    QTest::newRow("red") << "$textColors: red;"
                         << "#bar{color:#ff0000aa;}";
}

void tst_OxaThemeUtilsColorDirectives::prefersASetToAWord()
{
    QFETCH(const QString, text);
    QFETCH(const QString, rule);
    const OxaColorSetMap sets = ColorSets::storeOf({ one(QTest::currentDataTag(), "#0000aa") });
    QCOMPARE(StyleTexts::sheetOf(text, sets), noBorder + rule);
}

void tst_OxaThemeUtilsColorDirectives::expandsALiteralTextColor_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("color");
    QTest::newRow("a name") << "red"
                            << "#ffff0000";
    QTest::newRow("a name in capitals") << "RED"
                                        << "#ffff0000";
    QTest::newRow("transparent") << "transparent"
                                 << "#00000000";
    QTest::newRow("six digits") << "#336699"
                                << "#ff336699";
    QTest::newRow("three digits") << "#369"
                                  << "#ff336699";
    QTest::newRow("eight digits, alpha first") << "#80336699"
                                               << "#80336699";
}

void tst_OxaThemeUtilsColorDirectives::expandsALiteralTextColor()
{
    QFETCH(const QString, value);
    QFETCH(const QString, color);
    const auto result = StyleTexts::parse(QStringLiteral("$textColors: %1;").arg(value));
    QCOMPARE(result.expandedStyleSheet, noBorder + QStringLiteral("#bar{color:%1;}").arg(color));
    QCOMPARE(result.textColorSet, OxaColorSet(value, QColor(color)));
    QCOMPARE(result.oxaCSS.textColorSetName, value);
}

void tst_OxaThemeUtilsColorDirectives::namesAnInvalidSetAfterAWordItCannotExpand_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("background");
    QTest::addColumn<QString>("border");
    QTest::addColumn<QString>("textName");
    QTest::newRow("a border of a colour") << "$borderColors: red;"
                                          << ""
                                          << "red"
                                          << "";
    QTest::newRow("a border of an unknown set") << "$borderColors: nope;"
                                                << ""
                                                << "nope"
                                                << "";
    QTest::newRow("a text of an unknown set") << "$textColors: nope;"
                                              << ""
                                              << ""
                                              << "nope";
    QTest::newRow("not a background") << "$backgroundColors: nope;"
                                      << ""
                                      << ""
                                      << "";
    QTest::newRow("not without a directive") << "color: red;"
                                             << ""
                                             << ""
                                             << "";
}

void tst_OxaThemeUtilsColorDirectives::namesAnInvalidSetAfterAWordItCannotExpand()
{
    QFETCH(const QString, text);
    QFETCH(const QString, background);
    QFETCH(const QString, border);
    QFETCH(const QString, textName);
    const auto result = StyleTexts::parse(text);
    QCOMPARE(result.backgroundColorSet, OxaColorSet(background, QColor()));
    QCOMPARE(result.borderColorSet, OxaColorSet(border, QColor()));
    QCOMPARE(result.textColorSet, OxaColorSet(textName, QColor()));
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_OxaThemeUtilsColorDirectives)
#include "tst_oxathemeutils_colordirectives.moc"
