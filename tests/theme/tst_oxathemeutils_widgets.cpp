// SPDX-License-Identifier: Apache-2.0
#include "StyleTexts.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <QLabel>
#include <QLoggingCategory>

namespace {

const QString textOfX = QStringLiteral("$textColors: x;");

OxaColorSetMap storeWith(const char *color)
{
    return ColorSets::storeOf({ ColorSets::make(QStringLiteral("x"), { color }) });
}

QString sheetOf(QWidget &widget, const OxaColorSetMap &colorSets = storeWith("#112233"))
{
    return OxaThemeUtils::parseCSS(&widget, textOfX, colorSets).expandedStyleSheet;
}

QString sheetWith(const char *selector, const char *color)
{
    return QStringLiteral("%1{border:none;}%1{color:%2;}")
            .arg(QLatin1String(selector), QLatin1String(color));
}

/// Counts messages that name the widget "bar".
int namingMessages = 0;

void countNamingMessages(QtMsgType, const QMessageLogContext &context, const QString &text)
{
    if (qstrcmp(context.category, "uielements.theme") == 0 && text.contains(QLatin1String("bar")))
        ++namingMessages;
}

/// Returns how many messages of the theme's category name "bar" while \a call runs.
template <typename Call>
int countMessages(const char *rules, Call call)
{
    QLoggingCategory::setFilterRules(QString::fromLatin1(rules));
    namingMessages = 0;
    const QtMessageHandler before = qInstallMessageHandler(countNamingMessages);
    call();
    qInstallMessageHandler(before);
    QLoggingCategory::setFilterRules(QString());
    return namingMessages;
}

} // namespace

/// Expanding a style text for a widget.
class tst_OxaThemeUtilsWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void selectsByTheClassName();
    void selectsByTheObjectName();
    void givesTheSameSheetEachTime();
    void leavesTheWidgetsOwnSheetAlone();

    void takesTheGivenStoreForAGlobalWidget();
    void takesTheApplicationsStoreForAnotherThemeType_data();
    void takesTheApplicationsStoreForAnotherThemeType();
    void takesTheApplicationsStoreByTheWindowsThemeType();
    void needsNoGivenStoreForAnotherThemeType();

    void notesTheRadiusForTheFocusFrame();
    void keepsAnEarlierRadiusWhenATextHasNone();
    void notesNoRadiusAsLongAsThereIsNone();
    void notesSquareCornersForTheFocusFrame();
    void resetsSquareCornersWithAnyText_data();
    void resetsSquareCornersWithAnyText();

    void leavesTheOutlineToGlobalFocusBorders_data();
    void leavesTheOutlineToGlobalFocusBorders();

    void namesTheWidgetThatLacksColorsWhereAsked_data();
    void namesTheWidgetThatLacksColorsWhereAsked();
    void namesTheWidgetThatAsksForAnUnknownSetWhereAsked();
};

void tst_OxaThemeUtilsWidgets::selectsByTheClassName()
{
    QLabel label;
    QCOMPARE(sheetOf(label), sheetWith("QLabel", "#ff112233"));
}

void tst_OxaThemeUtilsWidgets::selectsByTheObjectName()
{
    QLabel label;
    label.setObjectName(QStringLiteral("bar"));
    QCOMPARE(sheetOf(label), sheetWith("#bar", "#ff112233"));
}

void tst_OxaThemeUtilsWidgets::givesTheSameSheetEachTime()
{
    QLabel label;
    const QString first = sheetOf(label);
    QCOMPARE(sheetOf(label), first);
}

void tst_OxaThemeUtilsWidgets::leavesTheWidgetsOwnSheetAlone()
{
    QLabel label;
    sheetOf(label);
    QCOMPARE(label.styleSheet(), QString());
}

void tst_OxaThemeUtilsWidgets::takesTheGivenStoreForAGlobalWidget()
{
    const StoreGuard stores(storeWith("#445566"), storeWith("#778899"));
    QLabel label;
    QCOMPARE(sheetOf(label), sheetWith("QLabel", "#ff112233"));
    label.setProperty("themeType", QStringLiteral("global"));
    QCOMPARE(sheetOf(label), sheetWith("QLabel", "#ff112233"));
}

void tst_OxaThemeUtilsWidgets::takesTheApplicationsStoreForAnotherThemeType_data()
{
    QTest::addColumn<QString>("themeType");
    QTest::addColumn<bool>("isHighContrast");
    QTest::addColumn<QString>("color");
    QTest::newRow("light") << "light" << false << "#ff445566";
    QTest::newRow("dark") << "dark" << false << "#ff778899";
    QTest::newRow("inverted") << "inverted" << false << "#ff778899";
    QTest::newRow("inverted in high contrast") << "inverted" << true << "#ff445566";
}

void tst_OxaThemeUtilsWidgets::takesTheApplicationsStoreForAnotherThemeType()
{
    QFETCH(const QString, themeType);
    QFETCH(const bool, isHighContrast);
    QFETCH(const QString, color);
    StoreGuard stores(storeWith("#445566"), storeWith("#778899"));
    stores.setFlags(false, isHighContrast);
    QLabel label;
    label.setProperty("themeType", themeType);
    QCOMPARE(sheetOf(label), sheetWith("QLabel", qUtf8Printable(color)));
}

void tst_OxaThemeUtilsWidgets::takesTheApplicationsStoreByTheWindowsThemeType()
{
    const StoreGuard stores(storeWith("#445566"), storeWith("#778899"));
    QWidget window;
    QLabel label(&window);
    window.setProperty("themeType", QStringLiteral("dark"));
    QCOMPARE(sheetOf(label), sheetWith("QLabel", "#ff778899"));
}

void tst_OxaThemeUtilsWidgets::needsNoGivenStoreForAnotherThemeType()
{
    const StoreGuard stores(storeWith("#445566"), storeWith("#778899"));
    QLabel label;
    QCOMPARE(sheetOf(label, {}), textOfX);
    label.setProperty("themeType", QStringLiteral("dark"));
    QCOMPARE(sheetOf(label, {}), sheetWith("QLabel", "#ff778899"));
}

void tst_OxaThemeUtilsWidgets::notesTheRadiusForTheFocusFrame()
{
    QLabel label;
    OxaThemeUtils::parseCSS(&label, QStringLiteral("$borderRadius: 300;"), StyleTexts::store());
    QCOMPARE(label.property("focusBorderRadius"), QVariant(int(44)));
}

void tst_OxaThemeUtilsWidgets::keepsAnEarlierRadiusWhenATextHasNone()
{
    QLabel label;
    OxaThemeUtils::parseCSS(&label, QStringLiteral("$borderRadius: 4;"), StyleTexts::store());
    OxaThemeUtils::parseCSS(&label, QStringLiteral("$borderRadius: 0;"), StyleTexts::store());
    OxaThemeUtils::parseCSS(&label, textOfX, StyleTexts::store());
    OxaThemeUtils::parseCSS(&label, QString(), StyleTexts::store());
    QCOMPARE(label.property("focusBorderRadius"), QVariant(int(4)));
}

void tst_OxaThemeUtilsWidgets::notesNoRadiusAsLongAsThereIsNone()
{
    QLabel label;
    OxaThemeUtils::parseCSS(&label, QStringLiteral("$borderRadius: 0;"), StyleTexts::store());
    QVERIFY(!label.property("focusBorderRadius").isValid());
}

void tst_OxaThemeUtilsWidgets::notesSquareCornersForTheFocusFrame()
{
    QLabel label;
    OxaThemeUtils::parseCSS(&label,
                            QStringLiteral("$borders: all; QLabel{border-top-left-radius: 4px;}"),
                            StyleTexts::store());
    QCOMPARE(label.property("rectangularCornerMask"), QVariant(int(14)));
}

void tst_OxaThemeUtilsWidgets::resetsSquareCornersWithAnyText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a text without sides") << "$textColors: x;";
    QTest::newRow("a plain text") << "QLabel{color: red;}";
    QTest::newRow("an empty text") << "";
}

void tst_OxaThemeUtilsWidgets::resetsSquareCornersWithAnyText()
{
    QFETCH(const QString, text);
    QLabel label;
    label.setProperty("rectangularCornerMask", 14);
    OxaThemeUtils::parseCSS(&label, text, StyleTexts::store());
    QCOMPARE(label.property("rectangularCornerMask"), QVariant(int(0)));
}

void tst_OxaThemeUtilsWidgets::leavesTheOutlineToGlobalFocusBorders_data()
{
    QTest::addColumn<QVariant>("useGlobalFocusBorders");
    QTest::addColumn<bool>("hasOutlineRule");
    QTest::newRow("not set") << QVariant() << true;
    QTest::newRow("false") << QVariant(false) << true;
    QTest::newRow("true") << QVariant(true) << false;
}

void tst_OxaThemeUtilsWidgets::leavesTheOutlineToGlobalFocusBorders()
{
    QFETCH(const QVariant, useGlobalFocusBorders);
    QFETCH(const bool, hasOutlineRule);
    const ApplicationPropertyGuard property("useGlobalFocusBorders", useGlobalFocusBorders);
    const QString sheet = StyleTexts::sheetOf(QStringLiteral("$borderColors: states;"));
    QVERIFY(sheet.contains(QLatin1String("#bar:focus{border-color:#ff000005;}")));
    QCOMPARE(sheet.endsWith(QLatin1String("#bar:disabled{border-color:#ff000004;}"
                                          "#bar{outline:none;}")),
             hasOutlineRule);
    QCOMPARE(sheet.contains(QLatin1String("outline")), hasOutlineRule);
}

void tst_OxaThemeUtilsWidgets::namesTheWidgetThatLacksColorsWhereAsked_data()
{
    QTest::addColumn<QString>("styleText");
    QTest::addColumn<int>("messages");
    QTest::newRow("known") << textOfX << 0;
    QTest::newRow("a directive") << QStringLiteral("$backgroundColors: nope; $textColors: x;") << 1;
    QTest::newRow("each directive") << QStringLiteral("$textColors: no; $borderColors: nope;") << 2;
    QTest::newRow("a reference") << QStringLiteral("#bar { color: $(nope.hovered); }") << 1;
}

void tst_OxaThemeUtilsWidgets::namesTheWidgetThatLacksColorsWhereAsked()
{
    QFETCH(const QString, styleText);
    QFETCH(const int, messages);
    QLabel label;
    label.setObjectName(QStringLiteral("bar"));
    const auto parse = [&] { OxaThemeUtils::parseCSS(&label, styleText, storeWith("#112233")); };
    QCOMPARE(countMessages("", parse), 0);
    QCOMPARE(countMessages("uielements.theme=true", parse), messages);
}

void tst_OxaThemeUtilsWidgets::namesTheWidgetThatAsksForAnUnknownSetWhereAsked()
{
    const StoreGuard stores(storeWith("#112233"));
    QWidget widget;
    widget.setObjectName(QStringLiteral("bar"));
    const auto ask = [&] { OxaThemeUtils::getColorSet("nope", &widget); };
    QCOMPARE(countMessages("", ask), 0);
    QLoggingCategory::setFilterRules(QStringLiteral("uielements.theme=true"));
    QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"nope\"");
    QTest::ignoreMessage(QtInfoMsg, "No colours called \"nope\" for QWidget \"bar\"");
    ask();
    QLoggingCategory::setFilterRules(QString());
    QVERIFY(OxaThemeUtils::getColorSet("x", &widget).isValid());
    QVERIFY(!OxaThemeUtils::getColorSet({}, &widget).isValid());
}

UIELEMENTS_TEST_MAIN(tst_OxaThemeUtilsWidgets)
#include "tst_oxathemeutils_widgets.moc"
