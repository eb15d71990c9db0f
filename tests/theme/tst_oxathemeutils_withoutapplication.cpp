// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <QApplication>
#include <QTest>

using OxaThemeUtils::AppThemeType;

/// The stores under an application object that is not the library's, or without one.
class tst_OxaThemeUtilsWithoutApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handsOutEmptyStores();
    void ignoresNewStores();
    void assumesNoDarkTheme();
    void assumesNoHighContrast();
    void warnsOfAnyName();
    void doesNotWarnOfAnEmptyName();
    void expandsStyleTextsWithAGivenStore();
};

void tst_OxaThemeUtilsWithoutApplication::handsOutEmptyStores()
{
    QVERIFY(OxaThemeUtils::getAppOxaColorSets().empty());
    QVERIFY(OxaThemeUtils::getAppInvertedOxaColorSets().empty());
    QVERIFY(OxaThemeUtils::getAppOxaColorTokens().empty());
}

void tst_OxaThemeUtilsWithoutApplication::ignoresNewStores()
{
    const OxaColorSetMap sets = ColorSets::storeOf(
            { ColorSets::make(QStringLiteral("panel"), { "#112233" }) });
    OxaThemeUtils::setAppOxaColorSets(sets);
    OxaThemeUtils::setAppInvertedOxaColorSets(sets);
    OxaThemeUtils::setAppOxaColorTokens({ { 1, "one" } });
    handsOutEmptyStores();
}

void tst_OxaThemeUtilsWithoutApplication::assumesNoDarkTheme()
{
    const OxaColorSetMap *ordinary = &OxaThemeUtils::getAppOxaColorSets();
    const OxaColorSetMap *inverted = &OxaThemeUtils::getAppInvertedOxaColorSets();
    QVERIFY(ordinary != inverted);
    QCOMPARE(&OxaThemeUtils::getOxaColorSetsByThemeType(AppThemeType::Global), ordinary);
    QCOMPARE(&OxaThemeUtils::getOxaColorSetsByThemeType(AppThemeType::Light), ordinary);
    QCOMPARE(&OxaThemeUtils::getOxaColorSetsByThemeType(AppThemeType::Dark), inverted);
    QCOMPARE(&OxaThemeUtils::getOxaColorSetsByThemeType(AppThemeType::Inverted), inverted);
}

void tst_OxaThemeUtilsWithoutApplication::assumesNoHighContrast()
{
    QVERIFY(!OxaThemeUtils::isHighContrastEnabled());
}

void tst_OxaThemeUtilsWithoutApplication::warnsOfAnyName()
{
    QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"panel\"");
    QCOMPARE(OxaThemeUtils::getColorSet("panel", AppThemeType::Dark), OxaColorSet());
}

void tst_OxaThemeUtilsWithoutApplication::doesNotWarnOfAnEmptyName()
{
    QCOMPARE(OxaThemeUtils::getColorSet("", AppThemeType::Dark), OxaColorSet());
}

void tst_OxaThemeUtilsWithoutApplication::expandsStyleTextsWithAGivenStore()
{
    const OxaColorSetMap sets = ColorSets::storeOf(
            { ColorSets::make(QStringLiteral("edge"),
                              { "#112233", "#112233", "#112233", "#112233", "#445566" }) });
    const auto result = OxaThemeUtils::parseCSS(QStringLiteral("#bar"),
                                                QStringLiteral("$borderColors: edge;"), sets);
    QCOMPARE(result.expandedStyleSheet,
             QLatin1String("#bar{border-style:solid; border-width:1px;}"
                           "#bar{border-color:#ff112233;}#bar:focus{border-color:#ff445566;}"
                           "#bar{outline:none;}"));
}

/// Runs the test without any application object, and under a plain QApplication.
int main(int argc, char **argv)
{
    tst_OxaThemeUtilsWithoutApplication test;
    const int failures = QTest::qExec(&test, argc, argv);
    const QApplication application(argc, argv);
    return failures + QTest::qExec(&test, argc, argv);
}

#include "tst_oxathemeutils_withoutapplication.moc"
