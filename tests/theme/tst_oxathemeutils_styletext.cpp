// SPDX-License-Identifier: Apache-2.0
#include "StyleTexts.h"
#include "support/TestMain.h"

using OxaThemeUtils::ColorSetType;

Q_DECLARE_METATYPE(OxaThemeUtils::ColorSetType)

/// The style language as a whole.
class tst_OxaThemeUtilsStyleText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void expandsTheWorkedExample();

    void returnsTheTextWhenSomethingIsMissing_data();
    void returnsTheTextWhenSomethingIsMissing();
    void passesEverythingElseThrough_data();
    void passesEverythingElseThrough();
    void expandsTheSameTextToTheSameSheet();
    void putsTheSelectorBeforeEveryRule();

    void removesDirectives_data();
    void removesDirectives();
    void findsTheNameInADirective_data();
    void findsTheNameInADirective();
};

void tst_OxaThemeUtilsStyleText::expandsTheWorkedExample()
{
    const auto result = StyleTexts::parse(
            QStringLiteral("$backgroundColors: x; $borderColors: y; $borderRadius: 4;"));
    QCOMPARE(result.expandedStyleSheet,
             QLatin1String("#bar{background-color:#ff112233;}"
                           "#bar:hover{background-color:#ff445566;} "
                           "#bar{border-color:#ff778899;} "
                           "#bar{border-style:solid; border-width:1px;border-radius:4px;}"));
    QCOMPARE(StyleRecords::describe(result.oxaCSS),
             QLatin1String("background \"x\" border \"y\" text \"\" sides top right bottom left "
                           "width 1 radius 4 corner 0 mask 0 plain \"\""));
    QCOMPARE(OxaThemeUtils::convertToOxaCSS(result.oxaCSS),
             QLatin1String("$borders: all; $borderWidth:1;$borderRadius:4; "
                           "$backgroundColors: x; $borderColors: y;"));
    QCOMPARE(result.backgroundColorSet, StyleTexts::store().at("x"));
    QCOMPARE(result.borderColorSet, StyleTexts::store().at("y"));
    QCOMPARE(result.textColorSet, OxaColorSet());
}

void tst_OxaThemeUtilsStyleText::returnsTheTextWhenSomethingIsMissing_data()
{
    const QString text = QStringLiteral(" $backgroundColors: x; color: $(x.nope); ");
    QTest::addColumn<QString>("selector");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasStore");
    QTest::newRow("the style text") << "#bar"
                                    << "" << true;
    QTest::newRow("the selector") << "" << text << true;
    QTest::newRow("the store") << "#bar" << text << false;
    QTest::newRow("all of them") << ""
                                 << "" << false;
}

void tst_OxaThemeUtilsStyleText::returnsTheTextWhenSomethingIsMissing()
{
    QFETCH(const QString, selector);
    QFETCH(const QString, text);
    QFETCH(const bool, hasStore);
    const auto result = OxaThemeUtils::parseCSS(selector, text,
                                                hasStore ? StyleTexts::store() : OxaColorSetMap());
    QCOMPARE(result.expandedStyleSheet, text);
    QCOMPARE(result.oxaCSS, OxaCSSData());
    QCOMPARE(result.backgroundColorSet, OxaColorSet());
    QCOMPARE(result.borderColorSet, OxaColorSet());
    QCOMPARE(result.textColorSet, OxaColorSet());
}

void tst_OxaThemeUtilsStyleText::passesEverythingElseThrough_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("declarations") << "color: red; border: none;";
    QTest::newRow("rules with white space around") << " \n#bar:hover { color: red; }\t ";
    QTest::newRow("an unknown directive") << "$shadowColors: x;";
    QTest::newRow("a tag in another case") << "$BackgroundColors: x; $bordercolors: y;";
    QTest::newRow("a tag with a blank before its colon") << "$textColors : x;";
    QTest::newRow("a tag without its dollar") << "textColors: x;";
    QTest::newRow("dollars and brackets") << "$ $$ $) ) ( $ (x) $(";
    QTest::newRow("a style sheet's own words") << "background-color: x; borders: all;";
    QTest::newRow("letters beyond ASCII") << "/* \xc3\xa4\xf0\x9f\x98\x80 */";
    QTest::newRow("a lone high surrogate") << QString(QChar(0xd83d));
    QTest::newRow("a lone low surrogate") << QString(QChar(0xde00));
    QTest::newRow("surrogates in the wrong order") << QString(QChar(0xde00)) + QChar(0xd83d);
    QTest::newRow("tags without an end")
            << "$backgroundColors: x $borderColors: y $textColors: x $borders: all "
               "$borderRadius: 4 $borderWidth: 2";
}

void tst_OxaThemeUtilsStyleText::passesEverythingElseThrough()
{
    QFETCH(const QString, text);
    const auto result = StyleTexts::parse(text);
    QCOMPARE(result.expandedStyleSheet, text);
    QCOMPARE(result.oxaCSS.plainStyleSheet, text.trimmed());
}

void tst_OxaThemeUtilsStyleText::expandsTheSameTextToTheSameSheet()
{
    const QString text = QStringLiteral("$textColors: x; $borders: top; color: $(y);");
    const QString before = text;
    const QString first = StyleTexts::sheetOf(text);
    QCOMPARE(text, before);
    QCOMPARE(StyleTexts::sheetOf(text), first);
}

void tst_OxaThemeUtilsStyleText::putsTheSelectorBeforeEveryRule()
{
    const auto result = OxaThemeUtils::parseCSS(QStringLiteral("QLabel"),
                                                QStringLiteral("$textColors: x;"),
                                                StyleTexts::store());
    QCOMPARE(result.expandedStyleSheet,
             QLatin1String("QLabel{border:none;}QLabel{color:#ff112233;}"
                           "QLabel:hover{color:#ff445566;}"));
}

void tst_OxaThemeUtilsStyleText::removesDirectives_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("rest");
    QTest::newRow("an empty text") << ""
                                   << "";
    QTest::newRow("white space around") << " \n color: red;\t"
                                        << "color: red;";
    QTest::newRow("each kind")
            << "a$backgroundColors: x;b$borderColors: x;c$textColors: x;d$borders: all;e"
               "$borderRadius: 4;f$borderWidth: 1;g"
            << "abcdefg";
    QTest::newRow("kinds in another order")
            << "a$borderWidth: 1;b$borderRadius: 4;c$borders: all;d$textColors: x;e"
            << "abcde";
    QTest::newRow("the first of two only") << "$textColors: x; $textColors: y;"
                                           << "$textColors: y;";
    QTest::newRow("those that can't be expanded") << "$textColors: nope; $borders:;"
                                                  << "";
    QTest::newRow("through the next semicolon") << "$textColors: x { color: red; }"
                                                << "}";
    QTest::newRow("not a tag without an end") << "color: red; $textColors: x"
                                              << "color: red; $textColors: x";
    QTest::newRow("not a colour reference") << "color: $(x.hovered);"
                                            << "color: $(x.hovered);";
    QTest::newRow("white space inside stays") << " a; $textColors: x; b; "
                                              << "a;  b;";
    QTest::newRow("a tag formed by an earlier removal") << "$border$textColors: x;Radius: 4;"
                                                        << "";
    QTest::newRow("not a tag formed by a later removal") << "$text$borderRadius: 4;Colors: x;"
                                                         << "$textColors: x;";
}

void tst_OxaThemeUtilsStyleText::removesDirectives()
{
    QFETCH(QString, text);
    QFETCH(const QString, rest);
    OxaThemeUtils::removeOxaCSSFromStyleSheet(text);
    QCOMPARE(text, rest);
}

void tst_OxaThemeUtilsStyleText::findsTheNameInADirective_data()
{
    QTest::addColumn<ColorSetType>("type");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    const QString all = QStringLiteral("$textColors: t; $borderColors: b;$backgroundColors:\n g ;");
    QTest::newRow("background") << ColorSetType::Background << all << "g";
    QTest::newRow("border") << ColorSetType::Border << all << "b";
    QTest::newRow("text") << ColorSetType::Text << all << "t";
    QTest::newRow("the first of two") << ColorSetType::Text << "$textColors: t; $textColors: u;"
                                      << "t";
    QTest::newRow("a name with blanks inside") << ColorSetType::Text << "$textColors: a  b ;"
                                               << "a  b";
    QTest::newRow("a name with a dollar inside") << ColorSetType::Text << "$textColors: a $ b;"
                                                 << "a $ b";
    QTest::newRow("a name with a reference and a tag inside")
            << ColorSetType::Text
            << "$textColors: first-part-$(x.hovered)-second-part-$borders: third-part; d;"
            << "first-part-$(x.hovered)-second-part-$borders: third-part";
    QTest::newRow("another type only") << ColorSetType::Text << "$backgroundColors: g;"
                                       << "";
    QTest::newRow("an empty value") << ColorSetType::Text << "$textColors: ;"
                                    << "";
    QTest::newRow("no end") << ColorSetType::Text << "$textColors: t"
                            << "";
    QTest::newRow("no text") << ColorSetType::Text << ""
                             << "";
}

void tst_OxaThemeUtilsStyleText::findsTheNameInADirective()
{
    QFETCH(const ColorSetType, type);
    QFETCH(const QString, text);
    QFETCH(const QString, name);
    QCOMPARE(OxaThemeUtils::getColorSetNameFromString(type, text), name);
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_OxaThemeUtilsStyleText)
#include "tst_oxathemeutils_styletext.moc"
