// SPDX-License-Identifier: Apache-2.0
#include "StyleTexts.h"
#include "support/TestMain.h"

/// Colour references in style texts: "$(name.state)".
class tst_OxaThemeUtilsReferences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void replacesAReferenceByItsColor_data();
    void replacesAReferenceByItsColor();
    void leavesWhatIsNoReferenceSilently_data();
    void leavesWhatIsNoReferenceSilently();
    void leavesAReferenceToAnUnknownSet_data();
    void leavesAReferenceToAnUnknownSet();
    void leavesAReferenceToAnInvalidSet();
    void leavesAReferenceToAnUnknownState_data();
    void leavesAReferenceToAnUnknownState();
    void resolvesReferencesAroundOneThatStays();
    void endsAReferenceAtTheFirstBracket();
    void findsSetsByNamesBeyondAscii();
    void readsALoneSurrogateInANameAsAQuestionMark();

    void substitutesBeforeItExpands();
    void addsNoBorderRuleForReferencesAlone();
    void keepsReferencesInThePlainStyleSheet();
};

void tst_OxaThemeUtilsReferences::replacesAReferenceByItsColor_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sheet");
    QTest::newRow("normal") << "$(states.normal)"
                            << "#ff000001";
    QTest::newRow("hovered") << "$(states.hovered)"
                             << "#ff000002";
    QTest::newRow("pressed") << "$(states.pressed)"
                             << "#ff000003";
    QTest::newRow("disabled") << "$(states.disabled)"
                              << "#ff000004";
    QTest::newRow("focused") << "$(states.focused)"
                             << "#ff000005";
    QTest::newRow("checked") << "$(states.checked)"
                             << "#ff000006";
    QTest::newRow("no state, which is normal") << "$(states)"
                                               << "#ff000001";
    QTest::newRow("a colour with alpha") << "$(see-through.hovered)"
                                         << "#80445566";
    QTest::newRow("one between texts") << "color: $(x); }"
                                       << "color: #ff112233; }";
    QTest::newRow("neighbours") << "$(x)$(y)"
                                << "#ff112233#ff778899";
    QTest::newRow("several of different lengths")
            << "a $(states.disabled) b $(x) c $(see-through) d"
            << "a #ff000004 b #ff112233 c #80112233 d";
    QTest::newRow("one after an open one on another line") << "$(x\n$(y)"
                                                           << "$(x\n#ff778899";
    QTest::newRow("one after a dollar") << "$$(y)"
                                        << "$#ff778899";
    QTest::newRow("one inside brackets") << "rgb($(y))"
                                         << "rgb(#ff778899)";
    QTest::newRow("one beside a lone surrogate") << QStringLiteral("$(y)") + QChar(0xd83d)
                                                 << QStringLiteral("#ff778899") + QChar(0xd83d);
    QTest::newRow("one in a value that is no colour directive") << "$shadow: $(y);"
                                                                << "$shadow: #ff778899;";
}

void tst_OxaThemeUtilsReferences::replacesAReferenceByItsColor()
{
    QFETCH(const QString, text);
    QFETCH(const QString, sheet);
    const OxaColorSetMap sets = StyleTexts::storeWith(
            { ColorSets::make(QStringLiteral("see-through"), { "#80112233", "#80445566" }) });
    QCOMPARE(StyleTexts::sheetOf(text, sets), sheet);
}

void tst_OxaThemeUtilsReferences::leavesWhatIsNoReferenceSilently_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("no closing bracket") << "$(x.hovered";
    QTest::newRow("a line's end inside") << "$(x\n.hovered)";
    QTest::newRow("a blank before the bracket") << "$ (x)";
    QTest::newRow("no dollar") << "(x)";
    QTest::newRow("other brackets") << "${x} $[x]";
}

void tst_OxaThemeUtilsReferences::leavesWhatIsNoReferenceSilently()
{
    QFETCH(const QString, text);
    QCOMPARE(StyleTexts::sheetOf(text), text);
}

void tst_OxaThemeUtilsReferences::leavesAReferenceToAnUnknownSet_data()
{
    QTest::addColumn<QString>("inside");
    QTest::newRow("a set that the store lacks") << "nope";
    QTest::newRow("its state") << "nope.hovered";
    QTest::newRow("another case") << "X.hovered";
    QTest::newRow("a blank before the name") << " x.hovered";
    QTest::newRow("a blank after the name") << "x .hovered";
    QTest::newRow("a state without a set") << ".hovered";
    QTest::newRow("nothing") << "";
    QTest::newRow("a wrong set and a wrong state") << "nope.nope";
}

void tst_OxaThemeUtilsReferences::leavesAReferenceToAnUnknownSet()
{
    QFETCH(const QString, inside);
    const QString warning =
            QStringLiteral("OxaThemeUtils: format is invalid! expected: $(colorSetName.state) "
                           "found: \"%1\"")
                    .arg(inside);
    QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(warning));
    const QString text = QStringLiteral("color: $(%1);").arg(inside);
    QCOMPARE(StyleTexts::sheetOf(text), text);
}

void tst_OxaThemeUtilsReferences::leavesAReferenceToAnInvalidSet()
{
    OxaColorSet incomplete(QStringLiteral("incomplete"), Qt::red);
    incomplete.checked = QColor();
    QTest::ignoreMessage(QtWarningMsg,
                         "OxaThemeUtils: format is invalid! expected: $(colorSetName.state) "
                         "found: \"incomplete.hovered\"");
    const QString text = QStringLiteral("color: $(incomplete.hovered);");
    QCOMPARE(StyleTexts::sheetOf(text, StyleTexts::storeWith({ incomplete })), text);
}

void tst_OxaThemeUtilsReferences::leavesAReferenceToAnUnknownState_data()
{
    QTest::addColumn<QString>("state");
    QTest::newRow("a style sheet's word") << "hover";
    QTest::newRow("another case") << "Hovered";
    QTest::newRow("a blank before it") << " hovered";
    QTest::newRow("a blank after it") << "hovered ";
    QTest::newRow("all after the first dot") << "hovered.x";
    QTest::newRow("two dots") << ".hovered";
    QTest::newRow("nothing") << "";
}

void tst_OxaThemeUtilsReferences::leavesAReferenceToAnUnknownState()
{
    QFETCH(const QString, state);
    const QString warning = QStringLiteral("OxaColorSet: color state is invalid! \"%1\"")
                                    .arg(state);
    QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(warning));
    const QString text = QStringLiteral("color: $(x.%1);").arg(state);
    QCOMPARE(StyleTexts::sheetOf(text), text);
}

void tst_OxaThemeUtilsReferences::resolvesReferencesAroundOneThatStays()
{
    QTest::ignoreMessage(QtWarningMsg,
                         "OxaThemeUtils: format is invalid! expected: $(colorSetName.state) "
                         "found: \"nope\"");
    QTest::ignoreMessage(QtWarningMsg, "OxaColorSet: color state is invalid! \"nope\"");
    QCOMPARE(StyleTexts::sheetOf(QStringLiteral("$(x) $(nope) $(x.hovered) $(x.nope) $(y)")),
             QLatin1String("#ff112233 $(nope) #ff445566 $(x.nope) #ff778899"));
}

void tst_OxaThemeUtilsReferences::endsAReferenceAtTheFirstBracket()
{
    QTest::ignoreMessage(QtWarningMsg,
                         "OxaThemeUtils: format is invalid! expected: $(colorSetName.state) "
                         "found: \"$(x\"");
    QCOMPARE(StyleTexts::sheetOf(QStringLiteral("$($(x)) $(y))")),
             QLatin1String("$($(x)) #ff778899)"));
}

void tst_OxaThemeUtilsReferences::findsSetsByNamesBeyondAscii()
{
    const QString umlaut = QString::fromUtf8("fl\xc3\xa4"
                                             "che");
    const OxaColorSetMap sets = { { "fl\xc3\xa4"
                                    "che",
                                    OxaColorSet(umlaut, Qt::red) } };
    QCOMPARE(StyleTexts::sheetOf(QStringLiteral("$(%1.normal)").arg(umlaut), sets),
             QLatin1String("#ffff0000"));
}

// Names are looked up as UTF-8, which cannot represent it.
void tst_OxaThemeUtilsReferences::readsALoneSurrogateInANameAsAQuestionMark()
{
    const OxaColorSetMap sets = ColorSets::storeOf({ OxaColorSet(QStringLiteral("?"), Qt::red) });
    const QString half = QChar(0xd83d);
    QCOMPARE(half.toStdString(), std::string("?"));
    QCOMPARE(StyleTexts::sheetOf(QStringLiteral("$(%1)").arg(half), sets),
             QLatin1String("#ffff0000"));
}

void tst_OxaThemeUtilsReferences::substitutesBeforeItExpands()
{
    const auto result = StyleTexts::parse(QStringLiteral("$textColors: $(x.hovered);"));
    QCOMPARE(result.expandedStyleSheet, QLatin1String("#bar{border:none;}#bar{color:#ff445566;}"));
    QCOMPARE(result.oxaCSS.textColorSetName, QLatin1String("#ff445566"));
}

void tst_OxaThemeUtilsReferences::addsNoBorderRuleForReferencesAlone()
{
    const auto result = StyleTexts::parse(QStringLiteral("#bar{color:$(x);}"));
    QCOMPARE(result.expandedStyleSheet, QLatin1String("#bar{color:#ff112233;}"));
    QCOMPARE(result.textColorSet, OxaColorSet());
}

void tst_OxaThemeUtilsReferences::keepsReferencesInThePlainStyleSheet()
{
    const auto result = StyleTexts::parse(
            QStringLiteral("$textColors: y; #bar{color:$(x.hovered);}"));
    QCOMPARE(result.oxaCSS.plainStyleSheet, QLatin1String("#bar{color:$(x.hovered);}"));
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_OxaThemeUtilsReferences)
#include "tst_oxathemeutils_references.moc"
