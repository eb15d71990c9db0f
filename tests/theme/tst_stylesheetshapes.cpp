// SPDX-License-Identifier: Apache-2.0
#include "StyleTexts.h"
#include "support/Pixels.h"
#include "support/TestMain.h"

#include <QDebug>
#include <QLabel>
#include <QTest>

namespace {

const QColor panel(0x11, 0x22, 0x33);

/// A label called "bar" that has been given an expanded style text.
class StyledLabel : public QLabel
{
public:
    explicit StyledLabel(const QString &styleText)
    {
        setObjectName(QStringLiteral("bar"));
        resize(20, 20);
        const OxaColorSetMap sets = ColorSets::storeOf(
                { OxaColorSet(QStringLiteral("panel"), panel) });
        m_sheet = OxaThemeUtils::parseCSS(this, styleText, sets).expandedStyleSheet;
    }

    QString sheet() const { return m_sheet; }

    /// Sets the sheet and returns whether all of the label has the panel's colour.
    bool showsThePanel()
    {
        setStyleSheet(m_sheet);
        return Pixels::countNear(Pixels::render(*this), panel) == width() * height();
    }

    /// Qt reads a sheet when it is set and once more when the widget is polished.
    void expectQtToRejectTheSheet() const
    {
        QString warning;
        QDebug(&warning) << "Could not parse stylesheet of object"
                         << static_cast<const QObject *>(this);
        for (int i = 0; i < 2; ++i)
            QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(warning.trimmed()));
    }

private:
    QString m_sheet;
};

/// Gives \a label the sheet of \a styleText, and returns the sheet.
QString applyTo(QLabel &label, const QString &styleText)
{
    const OxaColorSetMap sets = ColorSets::storeOf({ OxaColorSet(QStringLiteral("panel"), panel) });
    const QString sheet = OxaThemeUtils::parseCSS(&label, styleText, sets).expandedStyleSheet;
    label.setStyleSheet(sheet);
    label.ensurePolished();
    return sheet;
}

void expectAnUnknownReference()
{
    QTest::ignoreMessage(QtWarningMsg,
                         "OxaThemeUtils: format is invalid! expected: $(colorSetName.state) "
                         "found: \"nope.normal\"");
}

} // namespace

namespace outer {

/// A class whose name cannot be a selector.
class InnerLabel : public QLabel
{
    Q_OBJECT
};

} // namespace outer

/// What a user sees of a style text that could not be expanded completely. Rules are lost, never a
/// widget. Which rules, and whether Qt warns, depends on the position of the rest.
class tst_StyleSheetShapes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsAWholeSheet();
    void dropsTheSheetForAReferenceThatStays_data();
    void dropsTheSheetForAReferenceThatStays();
    void dropsTheSheetForADirectiveInsideARule();
    void keepsTheRulesBeforeAReferenceThatStays();
    void losesTheRulesAfterADirectiveThatStaysSilently_data();
    void losesTheRulesAfterADirectiveThatStaysSilently();
    void keepsTheRulesBeforeADirectiveThatStaysSilently_data();
    void keepsTheRulesBeforeADirectiveThatStaysSilently();
    void losesDeclarationsWithoutARuleAndWhatFollows_data();
    void losesDeclarationsWithoutARuleAndWhatFollows();
    void losesDeclarationsWithoutARuleSilentlyUnderAClass();
    void keepsDeclarationsInARule();
    void matchesNothingByANameThatNoSelectorCanBear_data();
    void matchesNothingByANameThatNoSelectorCanBear();
    void matchesNothingByAClassInANamespace();
};

void tst_StyleSheetShapes::showsAWholeSheet()
{
    StyledLabel label(QStringLiteral("$backgroundColors: panel; #bar{color:$(panel);}"));
    QVERIFY(label.showsThePanel());
    QCOMPARE(label.palette().color(QPalette::WindowText), panel);
}

void tst_StyleSheetShapes::dropsTheSheetForAReferenceThatStays_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("in a rule before the others")
            << "#bar{color:$(nope.normal);} #bar{background-color:$(panel);}";
    QTest::newRow("in a rule before a directive's")
            << "#bar{color:$(nope.normal);} $backgroundColors: panel;";
    QTest::newRow("in the same rule") << "#bar{background-color:$(panel);color:$(nope.normal);}";
    QTest::newRow("in declarations without a selector")
            << "background-color:$(panel);color:$(nope.normal);";
}

void tst_StyleSheetShapes::dropsTheSheetForAReferenceThatStays()
{
    QFETCH(const QString, text);
    expectAnUnknownReference();
    StyledLabel label(text);
    QVERIFY(label.sheet().contains(QLatin1String("$(nope.normal)")));
    label.expectQtToRejectTheSheet();
    QVERIFY(!label.showsThePanel());
}

void tst_StyleSheetShapes::dropsTheSheetForADirectiveInsideARule()
{
    StyledLabel label(QStringLiteral("#bar{$textColors: nope;} $backgroundColors: panel;"));
    label.expectQtToRejectTheSheet();
    QVERIFY(!label.showsThePanel());
}

void tst_StyleSheetShapes::keepsTheRulesBeforeAReferenceThatStays()
{
    expectAnUnknownReference();
    StyledLabel label(QStringLiteral("$backgroundColors: panel; #bar{color:$(nope.normal);}"));
    label.expectQtToRejectTheSheet();
    QVERIFY(label.showsThePanel());
}

void tst_StyleSheetShapes::losesTheRulesAfterADirectiveThatStaysSilently_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("before the only rule") << "$textColors: nope; $backgroundColors: panel;";
    QTest::newRow("before two rules")
            << "$textColors: nope; #bar{margin:0px;} #bar{background-color:$(panel);}";
    QTest::newRow("between rules")
            << "#bar{margin:0px;} $textColors: nope; #bar{background-color:$(panel);}";
    QTest::newRow("a literal border colour") << "$borderColors: red; $backgroundColors: panel;";
    QTest::newRow("a second directive of a kind")
            << "$textColors: red; $textColors: red; $backgroundColors: panel;";
}

void tst_StyleSheetShapes::losesTheRulesAfterADirectiveThatStaysSilently()
{
    QFETCH(const QString, text);
    StyledLabel label(text);
    QVERIFY(label.sheet().contains(QLatin1String("Colors:")));
    QVERIFY(label.sheet().contains(QLatin1String("#bar{background-color:#ff112233;}")));
    QVERIFY(!label.showsThePanel());
}

void tst_StyleSheetShapes::keepsTheRulesBeforeADirectiveThatStaysSilently_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("at the end") << "$backgroundColors: panel; $textColors: nope;";
    QTest::newRow("at the end, without a semicolon")
            << "$backgroundColors: panel; $textColors: nope";
    QTest::newRow("two at the end")
            << "$backgroundColors: panel; $borderColors: red; $textColors: nope;";
    QTest::newRow("before another rule")
            << "$backgroundColors: panel; $textColors: nope; #bar{padding:1px;}";
}

void tst_StyleSheetShapes::keepsTheRulesBeforeADirectiveThatStaysSilently()
{
    QFETCH(const QString, text);
    StyledLabel label(text);
    QVERIFY(label.sheet().contains(QLatin1String("$textColors:")));
    QVERIFY(label.showsThePanel());
}

void tst_StyleSheetShapes::losesDeclarationsWithoutARuleAndWhatFollows_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("keepsThePanel");
    QTest::newRow("behind the rules") << "$backgroundColors: panel; color: red;" << true;
    QTest::newRow("between rules")
            << "$backgroundColors: panel; color: red; #bar{margin:4px;}" << true;
    QTest::newRow("before the rules") << "color: red; $backgroundColors: panel;" << false;
}

void tst_StyleSheetShapes::losesDeclarationsWithoutARuleAndWhatFollows()
{
    QFETCH(const QString, text);
    QFETCH(const bool, keepsThePanel);
    StyledLabel label(text);
    label.expectQtToRejectTheSheet();
    QCOMPARE(label.showsThePanel(), keepsThePanel);
    QVERIFY(label.palette().color(QPalette::WindowText) != QColor(Qt::red));
}

void tst_StyleSheetShapes::losesDeclarationsWithoutARuleSilentlyUnderAClass()
{
    QLabel label;
    applyTo(label, QStringLiteral("$backgroundColors: panel; color: red;"));
    QCOMPARE(label.palette().color(QPalette::Window), panel);
    QVERIFY(label.palette().color(QPalette::WindowText) != QColor(Qt::red));
}

void tst_StyleSheetShapes::keepsDeclarationsInARule()
{
    StyledLabel label(QStringLiteral("$backgroundColors: panel; #bar { color: red; }"));
    QVERIFY(label.showsThePanel());
    QCOMPARE(label.palette().color(QPalette::WindowText), QColor(Qt::red));
}

void tst_StyleSheetShapes::matchesNothingByANameThatNoSelectorCanBear_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("matches");
    QTest::newRow("letters and digits") << "panel2" << true;
    QTest::newRow("a digit first") << "2panel" << true;
    QTest::newRow("hyphen and underscore") << "the-panel_2" << true;
    QTest::newRow("a space") << "the panel" << false;
    QTest::newRow("a dot") << "the.panel" << false;
}

void tst_StyleSheetShapes::matchesNothingByANameThatNoSelectorCanBear()
{
    QFETCH(const QString, name);
    QFETCH(const bool, matches);
    QLabel label;
    label.setObjectName(name);
    applyTo(label, QStringLiteral("$backgroundColors: panel;"));
    QCOMPARE(label.palette().color(QPalette::Window) == panel, matches);
}

void tst_StyleSheetShapes::matchesNothingByAClassInANamespace()
{
    outer::InnerLabel label;
    const QString sheet = applyTo(label, QStringLiteral("$backgroundColors: panel;"));
    QVERIFY(sheet.contains(QLatin1String("outer::InnerLabel{background-color:")));
    QVERIFY(label.palette().color(QPalette::Window) != panel);
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_StyleSheetShapes)
#include "tst_stylesheetshapes.moc"
