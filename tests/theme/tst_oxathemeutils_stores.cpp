// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <QSignalSpy>

using OxaThemeUtils::AppThemeType;

Q_DECLARE_METATYPE(OxaThemeUtils::AppThemeType)

namespace {

OxaColorSetMap storeWith(std::initializer_list<const char *> names, const char *color)
{
    OxaColorSetMap store;
    for (const char *name : names)
        store.emplace(name, ColorSets::make(QLatin1String(name), { color }));
    return store;
}

OxaColorSetMap ordinaryStore() { return storeWith({ "both", "ordinary" }, "#112233"); }
OxaColorSetMap invertedStore() { return storeWith({ "both", "inverted" }, "#445566"); }

IOxaApplication *application() { return static_cast<IOxaApplication *>(qApp); }

void addThemeTypes()
{
    QTest::addColumn<AppThemeType>("type");
    QTest::addColumn<int>("value");
    QTest::newRow("global") << AppThemeType::Global << 0;
    QTest::newRow("light") << AppThemeType::Light << 1;
    QTest::newRow("dark") << AppThemeType::Dark << 2;
    QTest::newRow("inverted") << AppThemeType::Inverted << 3;
}

} // namespace

/// The application's stores, and lookups of sets in them.
class tst_OxaThemeUtilsStores : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithEmptyStores();

    void handsOutTheStoresThemselves();
    void replacesAStoreBeforeItEmitsASignal_data();
    void replacesAStoreBeforeItEmitsASignal();
    void emitsASignalForAStoreReplacedByItself_data() { addStores(); }
    void emitsASignalForAStoreReplacedByItself();
    void replacesTheTokensWithoutASignal();

    void choosesTheStoreByTypeAndFlags_data();
    void choosesTheStoreByTypeAndFlags();
    void readsTheFlagsAtEachCall();

    void looksASetUpInTheStoreOfTheType();
    void doesNotFallBackToTheOtherStore();
    void warnsOfAnUnknownName();
    void doesNotWarnOfAnEmptyName();
    void findsNamesInUtf8();

    void writesLinkColorsWithoutAlpha();
    void writesLinkColorsOfTheStoreOfTheType();
    void writesBlackLinksWithoutTheLinkSet();

    void namesThemeTypes_data() { addThemeTypes(); }
    void namesThemeTypes();
    void namesEveryOtherThemeTypeGlobal();
    void readsEveryOtherWordAsGlobal_data();
    void readsEveryOtherWordAsGlobal();
    void numbersTheColorSetTypes();
    void returnsWhetherHighContrastIsOn();
    void makesAValidTransparentSet();

private:
    static void addStores();
};

void tst_OxaThemeUtilsStores::startsWithEmptyStores()
{
    QVERIFY(OxaThemeUtils::getAppOxaColorSets().empty());
    QVERIFY(OxaThemeUtils::getAppInvertedOxaColorSets().empty());
    QVERIFY(OxaThemeUtils::getAppOxaColorTokens().empty());
    QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"text-primary\"");
    QVERIFY(!OxaThemeUtils::getColorSet("text-primary", AppThemeType::Global).isValid());
}

void tst_OxaThemeUtilsStores::handsOutTheStoresThemselves()
{
    QCOMPARE(&OxaThemeUtils::getAppOxaColorSets(), &application()->getColorSets());
    QCOMPARE(&OxaThemeUtils::getAppInvertedOxaColorSets(), &application()->getInvertedColorSets());
    QCOMPARE(&OxaThemeUtils::getAppOxaColorTokens(), &application()->getColorTokens());
}

using StoreSetter = void (*)(const OxaColorSetMap &);
using StoreGetter = const OxaColorSetMap &(*)();
Q_DECLARE_METATYPE(StoreSetter)
Q_DECLARE_METATYPE(StoreGetter)

void tst_OxaThemeUtilsStores::addStores()
{
    QTest::addColumn<StoreSetter>("set");
    QTest::addColumn<StoreGetter>("get");
    QTest::newRow("ordinary") << &OxaThemeUtils::setAppOxaColorSets
                              << &OxaThemeUtils::getAppOxaColorSets;
    QTest::newRow("inverted") << &OxaThemeUtils::setAppInvertedOxaColorSets
                              << &OxaThemeUtils::getAppInvertedOxaColorSets;
}

void tst_OxaThemeUtilsStores::replacesAStoreBeforeItEmitsASignal_data() { addStores(); }

void tst_OxaThemeUtilsStores::replacesAStoreBeforeItEmitsASignal()
{
    QFETCH(const StoreSetter, set);
    QFETCH(const StoreGetter, get);
    const StoreGuard stores(ordinaryStore(), invertedStore());
    const OxaColorSetMap wanted = storeWith({ "new" }, "#778899");
    QObject context;
    QVector<OxaColorSetMap> seen;
    connect(application(), &IOxaApplication::colorSetsChanged, &context,
            [get, &seen] { seen += get(); });

    set(wanted);
    QCOMPARE(seen.size(), 1);
    QVERIFY(seen.first() == wanted);
    const bool isOrdinary = get == &OxaThemeUtils::getAppOxaColorSets;
    QVERIFY(isOrdinary ? OxaThemeUtils::getAppInvertedOxaColorSets() == invertedStore()
                       : OxaThemeUtils::getAppOxaColorSets() == ordinaryStore());
}

void tst_OxaThemeUtilsStores::emitsASignalForAStoreReplacedByItself()
{
    QFETCH(const StoreSetter, set);
    QFETCH(const StoreGetter, get);
    const StoreGuard stores(ordinaryStore(), invertedStore());
    const OxaColorSetMap before = get();
    const QSignalSpy changed(application(), &IOxaApplication::colorSetsChanged);
    set(get());
    set(get());
    QCOMPARE(changed.size(), 2);
    QVERIFY(get() == before);
}

void tst_OxaThemeUtilsStores::replacesTheTokensWithoutASignal()
{
    const QSignalSpy changed(application(), &IOxaApplication::colorSetsChanged);
    const OxaColorTokenMap tokens = { { 1, "one" }, { 7, "seven" } };
    OxaThemeUtils::setAppOxaColorTokens(tokens);
    QVERIFY(OxaThemeUtils::getAppOxaColorTokens() == tokens);
    OxaThemeUtils::setAppOxaColorTokens({});
    QVERIFY(OxaThemeUtils::getAppOxaColorTokens().empty());
    QCOMPARE(changed.size(), 0);
}

void tst_OxaThemeUtilsStores::choosesTheStoreByTypeAndFlags_data()
{
    struct Choice
    {
        AppThemeType type;
        const char *name;
        const char *inDark;
        const char *notInDark;
    };
    const Choice choices[] = {
        { AppThemeType::Global, "global", "ordinary", "ordinary" },
        { AppThemeType::Light, "light", "inverted", "ordinary" },
        { AppThemeType::Dark, "dark", "ordinary", "inverted" },
        { AppThemeType::Inverted, "inverted", "inverted", "inverted" },
    };

    QTest::addColumn<AppThemeType>("type");
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<bool>("isHighContrast");
    QTest::addColumn<QString>("store");
    for (const auto &[type, name, inDark, notInDark] : choices) {
        QTest::addRow("%s in a dark theme", name) << type << true << false << inDark;
        QTest::addRow("%s in another theme", name) << type << false << false << notInDark;
        QTest::addRow("%s in dark high contrast", name) << type << true << true << "ordinary";
        QTest::addRow("%s in other high contrast", name) << type << false << true << "ordinary";
    }
}

void tst_OxaThemeUtilsStores::choosesTheStoreByTypeAndFlags()
{
    QFETCH(const AppThemeType, type);
    QFETCH(const bool, isDark);
    QFETCH(const bool, isHighContrast);
    QFETCH(const QString, store);
    StoreGuard stores(ordinaryStore(), invertedStore());
    stores.setFlags(isDark, isHighContrast);
    const OxaColorSetMap &chosen = OxaThemeUtils::getOxaColorSetsByThemeType(type);
    QCOMPARE(&chosen,
             store == QLatin1String("ordinary") ? &OxaThemeUtils::getAppOxaColorSets()
                                                : &OxaThemeUtils::getAppInvertedOxaColorSets());
    QCOMPARE(chosen.count(store.toStdString()), std::size_t(1));
}

void tst_OxaThemeUtilsStores::readsTheFlagsAtEachCall()
{
    StoreGuard stores(ordinaryStore(), invertedStore());
    QCOMPARE(OxaThemeUtils::getColorSet("both", AppThemeType::Light).normal, QColor(0x112233));
    stores.setFlags(true, false);
    QCOMPARE(OxaThemeUtils::getColorSet("both", AppThemeType::Light).normal, QColor(0x445566));
    stores.setFlags(true, true);
    QCOMPARE(OxaThemeUtils::getColorSet("both", AppThemeType::Light).normal, QColor(0x112233));
}

void tst_OxaThemeUtilsStores::looksASetUpInTheStoreOfTheType()
{
    const StoreGuard stores(ordinaryStore(), invertedStore());
    QCOMPARE(OxaThemeUtils::getColorSet("both", AppThemeType::Global), ordinaryStore().at("both"));
    QCOMPARE(OxaThemeUtils::getColorSet("both", AppThemeType::Inverted),
             invertedStore().at("both"));
}

void tst_OxaThemeUtilsStores::doesNotFallBackToTheOtherStore()
{
    const StoreGuard stores(ordinaryStore(), invertedStore());
    QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"inverted\"");
    QCOMPARE(OxaThemeUtils::getColorSet("inverted", AppThemeType::Global), OxaColorSet());
    QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"ordinary\"");
    QCOMPARE(OxaThemeUtils::getColorSet("ordinary", AppThemeType::Inverted), OxaColorSet());
}

void tst_OxaThemeUtilsStores::warnsOfAnUnknownName()
{
    const StoreGuard stores(ordinaryStore());
    QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"Both\"");
    QCOMPARE(OxaThemeUtils::getColorSet("Both", AppThemeType::Global), OxaColorSet());
}

void tst_OxaThemeUtilsStores::doesNotWarnOfAnEmptyName()
{
    const StoreGuard stores(ordinaryStore());
    QCOMPARE(OxaThemeUtils::getColorSet("", AppThemeType::Global), OxaColorSet());
}

void tst_OxaThemeUtilsStores::findsNamesInUtf8()
{
    const QString umlaut = QString::fromUtf8("fl\xc3\xa4"
                                             "che");
    const StoreGuard stores({ { "fl\xc3\xa4"
                                "che",
                                OxaColorSet(umlaut, Qt::red) } });
    QCOMPARE(OxaThemeUtils::getColorSet(umlaut.toStdString(), AppThemeType::Global).name, umlaut);
}

void tst_OxaThemeUtilsStores::writesLinkColorsWithoutAlpha()
{
    const StoreGuard stores(
            ColorSets::storeOf({ ColorSets::make(QStringLiteral("button-hyperlink-text"),
                                                 { "#80112233", "#90445566" }) }));
    QCOMPARE(OxaThemeUtils::getHyperlinkCSS(AppThemeType::Global),
             QLatin1String("<style type = \"text/css\">a:link{text-decoration: underline; "
                           "color:#112233;} a:visited{color:#112233;} a:hover{ color:#445566;}"
                           "</style>"));
}

void tst_OxaThemeUtilsStores::writesLinkColorsOfTheStoreOfTheType()
{
    const StoreGuard stores(storeWith({ "button-hyperlink-text" }, "#112233"),
                            storeWith({ "button-hyperlink-text" }, "#445566"));
    QVERIFY(OxaThemeUtils::getHyperlinkCSS(AppThemeType::Light)
                    .contains(QLatin1String("a:visited{color:#112233;}")));
    QVERIFY(OxaThemeUtils::getHyperlinkCSS(AppThemeType::Dark)
                    .contains(QLatin1String("a:visited{color:#445566;}")));
}

void tst_OxaThemeUtilsStores::writesBlackLinksWithoutTheLinkSet()
{
    const StoreGuard stores(ordinaryStore());
    QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"button-hyperlink-text\"");
    QCOMPARE(OxaThemeUtils::getHyperlinkCSS(AppThemeType::Global),
             QLatin1String("<style type = \"text/css\">a:link{text-decoration: underline; "
                           "color:#000000;} a:visited{color:#000000;} a:hover{ color:#000000;}"
                           "</style>"));
}

void tst_OxaThemeUtilsStores::namesThemeTypes()
{
    QFETCH(const AppThemeType, type);
    QFETCH(const int, value);
    const QString name = QLatin1String(QTest::currentDataTag());
    QCOMPARE(int(type), value);
    QCOMPARE(OxaThemeUtils::themeTypeToString(type), name);
    QCOMPARE(OxaThemeUtils::stringToThemeType(name), type);
}

void tst_OxaThemeUtilsStores::namesEveryOtherThemeTypeGlobal()
{
    for (const int value : { -1, 4, 255 })
        QCOMPARE(OxaThemeUtils::themeTypeToString(AppThemeType(value)), QStringLiteral("global"));
}

void tst_OxaThemeUtilsStores::readsEveryOtherWordAsGlobal_data()
{
    QTest::addColumn<QString>("word");
    QTest::newRow("nothing") << "";
    QTest::newRow("a capital letter") << "Dark";
    QTest::newRow("all capitals") << "LIGHT";
    QTest::newRow("a blank before it") << " inverted";
    QTest::newRow("a blank after it") << "dark ";
    QTest::newRow("a number") << "2";
}

void tst_OxaThemeUtilsStores::readsEveryOtherWordAsGlobal()
{
    QFETCH(const QString, word);
    QCOMPARE(OxaThemeUtils::stringToThemeType(word), AppThemeType::Global);
}

void tst_OxaThemeUtilsStores::numbersTheColorSetTypes()
{
    QCOMPARE(int(OxaThemeUtils::ColorSetType::Background), 0);
    QCOMPARE(int(OxaThemeUtils::ColorSetType::Border), 1);
    QCOMPARE(int(OxaThemeUtils::ColorSetType::Text), 2);
}

void tst_OxaThemeUtilsStores::returnsWhetherHighContrastIsOn()
{
    StoreGuard stores({});
    QVERIFY(!OxaThemeUtils::isHighContrastEnabled());
    stores.setFlags(false, true);
    QVERIFY(OxaThemeUtils::isHighContrastEnabled());
    stores.setFlags(true, false);
    QVERIFY(!OxaThemeUtils::isHighContrastEnabled());
}

void tst_OxaThemeUtilsStores::makesAValidTransparentSet()
{
    const OxaColorSet set = OxaThemeUtils::transparentColourSet();
    QCOMPARE(set, OxaColorSet(QStringLiteral("transparent"), Qt::transparent));
    QVERIFY(set.isValid());
}

UIELEMENTS_TEST_MAIN(tst_OxaThemeUtilsStores)
#include "tst_oxathemeutils_stores.moc"
