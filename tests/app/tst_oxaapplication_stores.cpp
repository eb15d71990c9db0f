// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <QSignalSpy>

namespace {

TestApplication *application() { return static_cast<TestApplication *>(qApp); }

OxaColorSetMap storeWith(const char *color)
{
    return ColorSets::storeOf({ ColorSets::make(QStringLiteral("x"), { color }) });
}

} // namespace

/// The colour stores of the application object.
class tst_OxaApplicationStores : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emitsASignalForAReplacedStore();
    void emitsASignalForAStoreReplacedByItself();
    void replacesTheTokensWithoutASignal();

    void looksColorSetsUpByThemeWord_data();
    void looksColorSetsUpByThemeWord();
    void looksColorSetsUpForQml();
    void warnsOfAnUnknownColorSet();
};

void tst_OxaApplicationStores::emitsASignalForAReplacedStore()
{
    const StoreGuard stores(storeWith("#112233"), storeWith("#445566"));
    const QSignalSpy changed(application(), &IOxaApplication::colorSetsChanged);
    application()->setColorSets(storeWith("#778899"));
    QCOMPARE(changed.size(), 1);
    QVERIFY(application()->getColorSets() == storeWith("#778899"));
    QVERIFY(application()->getInvertedColorSets() == storeWith("#445566"));

    application()->setInvertedColorSets(storeWith("#aabbcc"));
    QCOMPARE(changed.size(), 2);
    QVERIFY(application()->getColorSets() == storeWith("#778899"));
    QVERIFY(application()->getInvertedColorSets() == storeWith("#aabbcc"));
}

void tst_OxaApplicationStores::emitsASignalForAStoreReplacedByItself()
{
    const StoreGuard stores(storeWith("#112233"), storeWith("#445566"));
    const QSignalSpy changed(application(), &IOxaApplication::colorSetsChanged);
    application()->setColorSets(application()->getColorSets());
    application()->setInvertedColorSets(application()->getInvertedColorSets());
    QCOMPARE(changed.size(), 2);
    QVERIFY(application()->getColorSets() == storeWith("#112233"));
    QVERIFY(application()->getInvertedColorSets() == storeWith("#445566"));
}

void tst_OxaApplicationStores::replacesTheTokensWithoutASignal()
{
    const QSignalSpy changed(application(), &IOxaApplication::colorSetsChanged);
    application()->setColorTokens({ { 7, "seven" } });
    QCOMPARE(application()->getColorTokens().at(7), std::string("seven"));
    application()->setColorTokens({});
    QVERIFY(application()->getColorTokens().empty());
    QCOMPARE(changed.size(), 0);
}

void tst_OxaApplicationStores::looksColorSetsUpByThemeWord_data()
{
    QTest::addColumn<QString>("themeType");
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<QString>("color");
    QTest::newRow("an empty word is global") << "" << false << "#112233";
    QTest::newRow("another word is global") << "other" << true << "#112233";
    QTest::newRow("another case is global") << "Dark" << false << "#112233";
    QTest::newRow("dark in a light theme") << "dark" << false << "#445566";
    QTest::newRow("dark in a dark theme") << "dark" << true << "#112233";
    QTest::newRow("light in a dark theme") << "light" << true << "#445566";
    QTest::newRow("inverted") << "inverted" << false << "#445566";
}

void tst_OxaApplicationStores::looksColorSetsUpByThemeWord()
{
    QFETCH(const QString, themeType);
    QFETCH(const bool, isDark);
    QFETCH(const QString, color);
    StoreGuard stores(storeWith("#112233"), storeWith("#445566"));
    stores.setFlags(isDark, false);
    QCOMPARE(application()->getColorSet(QStringLiteral("x"), themeType),
             OxaColorSet(QStringLiteral("x"), QColor(color)));
}

void tst_OxaApplicationStores::looksColorSetsUpForQml()
{
    const StoreGuard stores(storeWith("#112233"), storeWith("#445566"));
    OxaColorSet set;
    QVERIFY(QMetaObject::invokeMethod(application(), "getColorSet", Q_RETURN_ARG(OxaColorSet, set),
                                      Q_ARG(QString, QStringLiteral("x"))));
    QCOMPARE(set.normal, QColor(0x11, 0x22, 0x33));
    QVERIFY(QMetaObject::invokeMethod(application(), "getColorSet", Q_RETURN_ARG(OxaColorSet, set),
                                      Q_ARG(QString, QStringLiteral("x")),
                                      Q_ARG(QString, QStringLiteral("inverted"))));
    QCOMPARE(set.normal, QColor(0x44, 0x55, 0x66));
}

void tst_OxaApplicationStores::warnsOfAnUnknownColorSet()
{
    const StoreGuard stores(storeWith("#112233"));
    QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"nope\"");
    QCOMPARE(application()->getColorSet(QStringLiteral("nope")), OxaColorSet());
    QCOMPARE(application()->getColorSet(QString()), OxaColorSet());
}

UIELEMENTS_TEST_MAIN(tst_OxaApplicationStores)
#include "tst_oxaapplication_stores.moc"
