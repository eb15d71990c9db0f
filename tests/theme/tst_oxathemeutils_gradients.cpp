// SPDX-License-Identifier: Apache-2.0
#include "StyleTexts.h"
#include "support/TestMain.h"

namespace {

OxaColorSet one(const char *name, const char *color)
{
    return ColorSets::make(QLatin1String(name), { color });
}

/// The six sets of the gradients, each in a colour of its own.
OxaColorSetMap gradientStore()
{
    return ColorSets::storeOf({
            one("theme-gradient-primary-0-background", "#000010"),
            one("theme-gradient-primary-1-background", "#000011"),
            one("theme-gradient-secondary-0-background", "#000020"),
            one("theme-gradient-secondary-1-background", "#800021"),
            one("theme-gradient-dialog-secondary-0-background", "#000030"),
            one("theme-gradient-dialog-secondary-1-background", "#000031"),
    });
}

QString gradientSheet(const char *start, const char *end)
{
    return QStringLiteral("#bar{border:none;}#bar{background: "
                          "qlineargradient(x1:1 y1:1, x2:1 y2:0, stop:0 %1, stop:1 %2); }")
            .arg(QLatin1String(start), QLatin1String(end));
}

} // namespace

/// Gradient backgrounds: "$backgroundColors: gradient-…;".
class tst_OxaThemeUtilsGradients : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void expandsToTheNormalColorsOfTwoSets_data();
    void expandsToTheNormalColorsOfTwoSets();
    void hasNoRulesForStates();
    void staysWhenTheStoreLacksASet_data();
    void staysWhenTheStoreLacksASet();
    void staysWhenItIsNoGradient_data();
    void staysWhenItIsNoGradient();
    void isReplacedByASetOfItsName();
};

void tst_OxaThemeUtilsGradients::expandsToTheNormalColorsOfTwoSets_data()
{
    const QString primary = gradientSheet("#ff000011", "#ff000010");
    const QString secondary = gradientSheet("#ff800021", "#ff000020");
    const QString dialog = gradientSheet("#ff000031", "#ff000030");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("sheet");
    QTest::newRow("primary") << "gradient-primary" << primary;
    QTest::newRow("primary with white space around") << " gradient-primary\n" << primary;
    QTest::newRow("primary after another word") << "linear-gradient-primary" << primary;
    QTest::newRow("any other word") << "gradient-foo" << secondary;
    QTest::newRow("secondary") << "gradient-secondary" << secondary;
    QTest::newRow("no word") << "gradient-" << secondary;
    QTest::newRow("primary in another case") << "gradient-Primary" << secondary;
    QTest::newRow("primary and more") << "gradient-primary-" << secondary;
    QTest::newRow("a second marker before primary") << "gradient-gradient-primary" << secondary;
    QTest::newRow("a dialog") << "gradient-foo-dialog" << dialog;
    QTest::newRow("a dialog has no primary form") << "gradient-primary-dialog" << dialog;
    QTest::newRow("a dialog before the marker") << "my-dialog-gradient-primary" << dialog;
    QTest::newRow("a dialog only") << "gradient-dialog" << dialog;
}

void tst_OxaThemeUtilsGradients::expandsToTheNormalColorsOfTwoSets()
{
    QFETCH(const QString, value);
    QFETCH(const QString, sheet);
    const auto result = StyleTexts::parse(QStringLiteral("$backgroundColors:%1;").arg(value),
                                          gradientStore());
    QCOMPARE(result.expandedStyleSheet, sheet);
    QCOMPARE(result.backgroundColorSet, OxaThemeUtils::transparentColourSet());
    QCOMPARE(result.oxaCSS.backgroundColorSetName, QLatin1String("transparent"));
}

void tst_OxaThemeUtilsGradients::staysWhenTheStoreLacksASet_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("missing");
    QTest::newRow("primary's end") << "gradient-primary"
                                   << "theme-gradient-primary-0-background";
    QTest::newRow("primary's start") << "gradient-primary"
                                     << "theme-gradient-primary-1-background";
    QTest::newRow("secondary's end") << "gradient-foo"
                                     << "theme-gradient-secondary-0-background";
    QTest::newRow("a dialog's start") << "gradient-foo-dialog"
                                      << "theme-gradient-dialog-secondary-1-background";
}

void tst_OxaThemeUtilsGradients::staysWhenTheStoreLacksASet()
{
    QFETCH(const QString, value);
    QFETCH(const QString, missing);
    OxaColorSetMap sets = gradientStore();
    QCOMPARE(sets.erase(missing.toStdString()), std::size_t(1));
    const QString text = QStringLiteral("$backgroundColors: %1;").arg(value);
    const auto result = StyleTexts::parse(text, sets);
    QCOMPARE(result.expandedStyleSheet, text);
    QCOMPARE(result.backgroundColorSet, OxaColorSet());
    QCOMPARE(result.oxaCSS.backgroundColorSetName, QString());
}

void tst_OxaThemeUtilsGradients::hasNoRulesForStates()
{
    OxaColorSetMap sets = gradientStore();
    sets.at("theme-gradient-primary-0-background").hovered = Qt::red;
    QCOMPARE(StyleTexts::sheetOf(QStringLiteral("$backgroundColors: gradient-primary;"), sets),
             gradientSheet("#ff000011", "#ff000010"));
}

void tst_OxaThemeUtilsGradients::staysWhenItIsNoGradient_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a border's") << "$borderColors: gradient-primary;";
    QTest::newRow("a text's") << "$textColors: gradient-primary;";
    QTest::newRow("without its dash") << "$backgroundColors: gradient;";
    QTest::newRow("in another case") << "$backgroundColors: Gradient-primary;";
    QTest::newRow("a dialog only") << "$backgroundColors: my-dialog;";
}

void tst_OxaThemeUtilsGradients::staysWhenItIsNoGradient()
{
    QFETCH(const QString, text);
    const auto result = StyleTexts::parse(text, gradientStore());
    QCOMPARE(result.expandedStyleSheet, text);
    QVERIFY(!result.backgroundColorSet.isValid());
    QVERIFY(!result.borderColorSet.isValid());
    QVERIFY(!result.textColorSet.isValid());
}

void tst_OxaThemeUtilsGradients::isReplacedByASetOfItsName()
{
    OxaColorSetMap sets = gradientStore();
    sets.emplace("gradient-primary", one("gradient-primary", "#0000aa"));
    const auto result = StyleTexts::parse(QStringLiteral("$backgroundColors: gradient-primary;"),
                                          sets);
    QCOMPARE(result.expandedStyleSheet,
             QLatin1String("#bar{border:none;}#bar{background-color:#ff0000aa;}"));
    QCOMPARE(result.oxaCSS.backgroundColorSetName, QLatin1String("gradient-primary"));
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_OxaThemeUtilsGradients)
#include "tst_oxathemeutils_gradients.moc"
