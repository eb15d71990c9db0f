// SPDX-License-Identifier: Apache-2.0
#include "ThemedWidgets.h"
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"

#include <UiElements/svg/VisualUtils.h>

#include <QSignalSpy>

using OxaThemeUtils::AppThemeType;

namespace {

const QString styleText = QStringLiteral("$backgroundColors: panel;");

/// The border rule comes first in an expanded sheet: it is inserted at the very start.
QString sheetOf(const QString &selector, const char *color)
{
    return QStringLiteral("%1{border:none;}%1{background-color:%2;}")
            .arg(selector, QLatin1String(color));
}

/// Adds a row for each class that follows its object name.
void addNamed() { addThemedClassesBut(ThemedClass::FollowsNoName); }

} // namespace

/// The common members and behaviour of themed widgets: a row for each class.
class tst_OxaThemeBlock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_stores = std::make_unique<StoreGuard>(storeWith("#ff112233"), storeWith("#ff445566"));
    }
    void cleanup();

    void startsGlobalWithoutStyleTextInTheDefaultFont_data()
    {
        addThemedClassesBut(ThemedClass::StartsStyled);
    }
    void startsGlobalWithoutStyleTextInTheDefaultFont();

    void expandsTheStyleTextAndEmitsASignal_data() { addThemedClasses(); }
    void expandsTheStyleTextAndEmitsASignal();
    void takesTheStructuredFormAsStyleText_data() { addThemedClasses(); }
    void takesTheStructuredFormAsStyleText();
    void takesStyleTextsAsUtf8ThroughTheProperty_data() { addThemedClasses(); }
    void takesStyleTextsAsUtf8ThroughTheProperty();
    void givesAnEmptyStyleTextNoSheet_data() { addThemedClasses(); }
    void givesAnEmptyStyleTextNoSheet();
    void causesNoStyleChangeWithoutAStyleText_data()
    {
        addThemedClassesBut(ThemedClass::StartsStyled);
    }
    void causesNoStyleChangeWithoutAStyleText();
    void paintsAStyledBackgroundFromItsFirstSheetOn_data();
    void paintsAStyledBackgroundFromItsFirstSheetOn();
    void followsItsObjectNameFromTheFirstStyleTextOn_data()
    {
        addThemedClassesBut(ThemedClass::FollowsNoName | ThemedClass::StartsStyled);
    }
    void followsItsObjectNameFromTheFirstStyleTextOn();
    void expandsAgainUnderANewObjectName_data() { addNamed(); }
    void expandsAgainUnderANewObjectName();
    void expandsOnceForOneNewNameAfterManyStyleTexts_data() { addNamed(); }
    void expandsOnceForOneNewNameAfterManyStyleTexts();
    void followsItsNameAgainFromAStyleTextAfterADisconnect_data()
    {
        addThemedClassesBut(ThemedClass::StyledBackground);
    }
    void followsItsNameAgainFromAStyleTextAfterADisconnect();

    void makesTheFirstStyleSheetTheStyleText_data()
    {
        addThemedClassesBut(ThemedClass::StartsStyled);
    }
    void makesTheFirstStyleSheetTheStyleText();
    void keepsTheStyleTextWhenAStyleSheetIsSet_data() { addThemedClasses(); }
    void keepsTheStyleTextWhenAStyleSheetIsSet();

    void emitsSignalsEvenForTheSameType_data() { addThemedClasses(); }
    void emitsSignalsEvenForTheSameType();
    void takesItsStoreByItsThemeType_data() { addThemedClassesBut(ThemedClass::WritesItsText); }
    void takesItsStoreByItsThemeType();
    void ignoresAReplacedStoreUntilItIsRefreshed_data() { addThemedClasses(); }
    void ignoresAReplacedStoreUntilItIsRefreshed();
    void ignoresAnotherThemeUntilItIsRefreshed_data() { addThemedClasses(); }
    void ignoresAnotherThemeUntilItIsRefreshed();

    void keepsItsFontOnTheToken_data();
    void keepsItsFontOnTheToken();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaThemeBlock::cleanup()
{
    m_stores.reset();
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "A test left a window behind.");
}

void tst_OxaThemeBlock::startsGlobalWithoutStyleTextInTheDefaultFont()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    QCOMPARE(widget->property("css"), QVariant(QByteArray()));
    QCOMPARE(widget->property("themeType").toString(), QStringLiteral("global"));
    QCOMPARE(themed.themeType(*widget), AppThemeType::Global);
    QVERIFY(themed.cssData(*widget) == OxaCSSData());
    QCOMPARE(widget->styleSheet(), QString());
    if (!themed.is(ThemedClass::NoFont))
        QCOMPARE(widget->font().pixelSize(), 16);
}

void tst_OxaThemeBlock::expandsTheStyleTextAndEmitsASignal()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    const QSignalSpy cssChanged(widget.get(), SIGNAL(cssChanged()));
    const QSignalSpy themeTypeChanged(widget.get(), SIGNAL(themeTypeChanged()));
    QVERIFY(widget->setProperty("css", styleText.toUtf8()));
    QCOMPARE(widget->styleSheet(), sheetOf(themed.selector(), "#ff112233"));
    QCOMPARE(themed.cssData(*widget).backgroundColorSetName, QStringLiteral("panel"));
    QCOMPARE(cssChanged.size(), 1);
    QCOMPARE(themeTypeChanged.size(), 0);

    // Nothing is compared: the same text is expanded again.
    QVERIFY(widget->setProperty("css", styleText.toUtf8()));
    QCOMPARE(cssChanged.size(), 2);
}

void tst_OxaThemeBlock::takesTheStructuredFormAsStyleText()
{
    FETCH_THEMED_CLASS;
    OxaCSSData data;
    data.backgroundColorSetName = QStringLiteral("panel");
    data.borderRadius = 4;
    const auto widget = themed.make(nullptr);
    themed.setCSSData(*widget, data);
    QCOMPARE(widget->property("css").toByteArray(),
             QByteArray("$borderRadius:4; $backgroundColors: panel;"));
    QCOMPARE(themed.cssData(*widget).borderRadius, quint8(4));
    QCOMPARE(widget->property("focusBorderRadius").toInt(), 4);
}

void tst_OxaThemeBlock::takesStyleTextsAsUtf8ThroughTheProperty()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    const QByteArray utf8 = QByteArrayLiteral("/* \xc3\xa9 */");
    QVERIFY(widget->setProperty("css", utf8));
    QCOMPARE(widget->property("css").toByteArray(), utf8);
    QCOMPARE(widget->styleSheet(), QString::fromUtf8(utf8));
}

void tst_OxaThemeBlock::givesAnEmptyStyleTextNoSheet()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    widget->setProperty("css", styleText.toUtf8());
    widget->setProperty("css", QByteArray());
    QCOMPARE(widget->styleSheet(), QString());
    QVERIFY(themed.cssData(*widget) == OxaCSSData());
}

void tst_OxaThemeBlock::causesNoStyleChangeWithoutAStyleText()
{
    FETCH_THEMED_CLASS;
    // Under a parent with a sheet, removing an empty sheet costs as much as setting one.
    QWidget parent;
    parent.setStyleSheet(QStringLiteral("QWidget { color: red; }"));
    const auto widget = themed.make(&parent);
    widget->ensurePolished();
    int styleChanges = 0;
    const VisualUtils::EventFilter filter(widget.get(), { QEvent::StyleChange },
                                          [&styleChanges](QEvent *) {
                                              ++styleChanges;
                                              return false;
                                          });
    widget->setProperty("css", QByteArray());
    widget->setProperty("themeType", QStringLiteral("dark"));
    QCOMPARE(styleChanges, 0);
    widget->setProperty("css", styleText.toUtf8());
    QVERIFY(styleChanges > 0);
}

void tst_OxaThemeBlock::paintsAStyledBackgroundFromItsFirstSheetOn_data()
{
    addThemedClasses(
            [](const ThemedClass &themed) { return themed.is(ThemedClass::StyledBackground); });
}

void tst_OxaThemeBlock::paintsAStyledBackgroundFromItsFirstSheetOn()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    const bool startsWithSheet = !widget->styleSheet().isEmpty();
    widget->setProperty("css", QByteArray());
    QCOMPARE(widget->testAttribute(Qt::WA_StyledBackground), startsWithSheet);
    widget->setProperty("css", styleText.toUtf8());
    QVERIFY(widget->testAttribute(Qt::WA_StyledBackground));
    // A parent's sheet may still need it.
    widget->setProperty("css", QByteArray());
    QVERIFY(widget->testAttribute(Qt::WA_StyledBackground));
}

void tst_OxaThemeBlock::followsItsObjectNameFromTheFirstStyleTextOn()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    const QSignalSpy cssChanged(widget.get(), SIGNAL(cssChanged()));
    widget->setObjectName(QStringLiteral("before"));
    // A widget that paints its background follows its name from the start.
    const int expansions = themed.is(ThemedClass::StyledBackground) ? 1 : 0;
    QCOMPARE(cssChanged.size(), expansions);
    widget->setProperty("css", QByteArray());
    widget->setObjectName(QStringLiteral("after"));
    QCOMPARE(cssChanged.size(), expansions + 2);
}

void tst_OxaThemeBlock::expandsAgainUnderANewObjectName()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    widget->setProperty("css", styleText.toUtf8());
    widget->setObjectName(QStringLiteral("w"));
    QCOMPARE(widget->styleSheet(), sheetOf(QStringLiteral("#w"), "#ff112233"));
}

void tst_OxaThemeBlock::expandsOnceForOneNewNameAfterManyStyleTexts()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    for (int i = 0; i < 3; ++i)
        widget->setProperty("css", styleText.toUtf8());
    const QSignalSpy cssChanged(widget.get(), SIGNAL(cssChanged()));
    widget->setObjectName(QStringLiteral("w"));
    QCOMPARE(cssChanged.size(), 1);
}

void tst_OxaThemeBlock::followsItsNameAgainFromAStyleTextAfterADisconnect()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    widget->setProperty("css", styleText.toUtf8());
    // A client may disconnect all signals of a widget.
    widget->disconnect();
    widget->setProperty("css", styleText.toUtf8());
    widget->setObjectName(QStringLiteral("w"));
    QCOMPARE(widget->styleSheet(), sheetOf(QStringLiteral("#w"), "#ff112233"));
}

void tst_OxaThemeBlock::makesTheFirstStyleSheetTheStyleText()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    const QSignalSpy cssChanged(widget.get(), SIGNAL(cssChanged()));
    const QString text = QStringLiteral("$textColors: panel;");
    QVERIFY(widget->setProperty("styleSheet", text));
    QCOMPARE(widget->styleSheet(), text);
    QCOMPARE(widget->property("css").toByteArray(), text.toUtf8());
    QCOMPARE(cssChanged.size(), 0);

    QVERIFY(QMetaObject::invokeMethod(widget.get(), "refreshCSS"));
    QCOMPARE(themed.cssData(*widget).textColorSetName, QStringLiteral("panel"));
    QVERIFY(!widget->styleSheet().contains(QLatin1Char('$')));
}

void tst_OxaThemeBlock::keepsTheStyleTextWhenAStyleSheetIsSet()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    widget->setProperty("css", styleText.toUtf8());
    const QString expanded = widget->styleSheet();
    QVERIFY(widget->setProperty("styleSheet", QStringLiteral("* { color: red; }")));
    QCOMPARE(widget->styleSheet(), QStringLiteral("* { color: red; }"));
    QCOMPARE(widget->property("css").toByteArray(), styleText.toUtf8());
    QVERIFY(QMetaObject::invokeMethod(widget.get(), "refreshCSS"));
    QCOMPARE(widget->styleSheet(), expanded);
}

void tst_OxaThemeBlock::emitsSignalsEvenForTheSameType()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    const QSignalSpy cssChanged(widget.get(), SIGNAL(cssChanged()));
    const QSignalSpy themeTypeChanged(widget.get(), SIGNAL(themeTypeChanged()));
    for (int i = 0; i < 2; ++i)
        QVERIFY(widget->setProperty("themeType", QStringLiteral("dark")));
    QCOMPARE(themeTypeChanged.size(), 2);
    QCOMPARE(cssChanged.size(), 2);
}

void tst_OxaThemeBlock::takesItsStoreByItsThemeType()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    widget->setObjectName(QStringLiteral("w"));
    widget->setProperty("css", styleText.toUtf8());
    widget->setProperty("themeType", QStringLiteral("dark"));
    QCOMPARE(themed.themeType(*widget), AppThemeType::Dark);
    QCOMPARE(widget->styleSheet(), sheetOf(QStringLiteral("#w"), "#ff445566"));
    widget->setProperty("themeType", QStringLiteral("light"));
    QCOMPARE(widget->styleSheet(), sheetOf(QStringLiteral("#w"), "#ff112233"));
    widget->setProperty("themeType", QStringLiteral("no such type"));
    QCOMPARE(widget->property("themeType").toString(), QStringLiteral("no such type"));
    QCOMPARE(themed.themeType(*widget), AppThemeType::Global);
}

void tst_OxaThemeBlock::ignoresAReplacedStoreUntilItIsRefreshed()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    widget->setObjectName(QStringLiteral("w"));
    widget->setProperty("css", styleText.toUtf8());
    OxaThemeUtils::setAppOxaColorSets(storeWith("#ff778899"));
    QCOMPARE(widget->styleSheet(), sheetOf(QStringLiteral("#w"), "#ff112233"));
    QVERIFY(QMetaObject::invokeMethod(widget.get(), "refreshCSS"));
    QCOMPARE(widget->styleSheet(), sheetOf(QStringLiteral("#w"), "#ff778899"));
}

void tst_OxaThemeBlock::ignoresAnotherThemeUntilItIsRefreshed()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    widget->setObjectName(QStringLiteral("w"));
    widget->setProperty("themeType", QStringLiteral("dark"));
    widget->setProperty("css", styleText.toUtf8());
    m_stores->setFlags(true, false);
    const ApplicationPropertyGuard theme("theme", QStringLiteral("night"));
    QCOMPARE(widget->styleSheet(), sheetOf(QStringLiteral("#w"), "#ff445566"));
    QVERIFY(QMetaObject::invokeMethod(widget.get(), "refreshCSS"));
    QCOMPARE(widget->styleSheet(), sheetOf(QStringLiteral("#w"), "#ff112233"));
}

void tst_OxaThemeBlock::keepsItsFontOnTheToken_data()
{
    addThemedClassesBut(ThemedClass::NoFont | ThemedClass::StartsStyled);
}

void tst_OxaThemeBlock::keepsItsFontOnTheToken()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    QCOMPARE(widget->property("fontToken").value<OxaFont::Token>(), OxaFont::Token::Default);
    QCOMPARE(widget->property("fontType").value<FontManagerEnum::FontType>(),
             FontManagerEnum::FontType::Default);
    QVERIFY(widget->setProperty("fontToken", QVariant::fromValue(OxaFont::Token::Title)));
    QCOMPARE(widget->font().pixelSize(), 20);
    QCOMPARE(widget->font().weight(), int(QFont::DemiBold));
    QVERIFY(widget->setProperty("fontType",
                                QVariant::fromValue(FontManagerEnum::FontType::MessagingView)));
    QCOMPARE(widget->font().pixelSize(), 20);
}

UIELEMENTS_TEST_MAIN(tst_OxaThemeBlock)
#include "tst_oxathemeblock.moc"
