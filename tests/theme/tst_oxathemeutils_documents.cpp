// SPDX-License-Identifier: Apache-2.0
#include "Documents.h"
#include "support/TestMain.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <QTemporaryDir>

namespace {

const QByteArray paletteJson = QByteArrayLiteral(
        R"({"colors":[{"variations":[{"name":"red","rgba":{"r":255,"g":0,"b":0,"a":1}}]}]})");
const QByteArray colorSetsJson = QByteArrayLiteral(R"({"tokens":{"panel":{"normal":"red"}}})");

const char noTokens[] = "Could not find the 'tokens' object in the json file";

} // namespace

/// Colour documents and colour-set documents as files.
class tst_OxaThemeUtilsDocuments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_folder.isValid()); }

    void readsAnObjectFromAFile();
    void givesAnEmptyObjectForOtherFiles_data() { addUselessFiles(); }
    void givesAnEmptyObjectForOtherFiles();
    void givesAnEmptyObjectForAMissingFile();
    void givesAnEmptyObjectForAFolder();
    void givesAnEmptyObjectForNoPathSilently();

    void readsAPaletteFromAFile();
    void readsAnEmptyPaletteFromOtherFilesSilently_data() { addUselessFiles(); }
    void readsAnEmptyPaletteFromOtherFilesSilently();
    void readsAnEmptyPaletteFromAMissingFileSilently();

    void readsColorSetsFromAFile();
    void missesTheTokensInOtherFiles_data() { addUselessFiles(); }
    void missesTheTokensInOtherFiles();
    void missesTheTokensInAMissingFile();

private:
    static void addUselessFiles();
    QString fileOf(const QByteArray &content);
    QString missingFile() const { return m_folder.filePath(QStringLiteral("missing.json")); }

    QTemporaryDir m_folder;
};

void tst_OxaThemeUtilsDocuments::addUselessFiles()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("an empty file") << QByteArray();
    QTest::newRow("a text that isn't JSON") << QByteArrayLiteral("colors: none");
    QTest::newRow("truncated JSON") << paletteJson.chopped(1);
    QTest::newRow("an array instead of an object") << QByteArrayLiteral(R"([{"colors":[]}])");
    QTest::newRow("an empty object") << QByteArrayLiteral("{}");
}

QString tst_OxaThemeUtilsDocuments::fileOf(const QByteArray &content)
{
    const QString path = m_folder.filePath(QStringLiteral("document.json"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("Can't write %s", qUtf8Printable(path));
    return path;
}

void tst_OxaThemeUtilsDocuments::readsAnObjectFromAFile()
{
    const QJsonObject object = OxaThemeUtils::readJsonObject(fileOf(colorSetsJson));
    QCOMPARE(object, Documents::objectOf(QString::fromUtf8(colorSetsJson)));
}

void tst_OxaThemeUtilsDocuments::givesAnEmptyObjectForOtherFiles()
{
    QFETCH(const QByteArray, content);
    QVERIFY(OxaThemeUtils::readJsonObject(fileOf(content)).isEmpty());
}

void tst_OxaThemeUtilsDocuments::givesAnEmptyObjectForAMissingFile()
{
    QVERIFY(OxaThemeUtils::readJsonObject(missingFile()).isEmpty());
}

void tst_OxaThemeUtilsDocuments::givesAnEmptyObjectForAFolder()
{
    QVERIFY(OxaThemeUtils::readJsonObject(m_folder.path()).isEmpty());
}

void tst_OxaThemeUtilsDocuments::givesAnEmptyObjectForNoPathSilently()
{
    // An outer application without a document for a theme has no path.
    QVERIFY(OxaThemeUtils::readJsonObject(QString()).isEmpty());
    QVERIFY(OxaThemeUtils::parseOxaColorsFromJson(QString()).empty());
}

void tst_OxaThemeUtilsDocuments::readsAPaletteFromAFile()
{
    QCOMPARE(Documents::describe(OxaThemeUtils::parseOxaColorsFromJson(fileOf(paletteJson))),
             QLatin1String("red=#ffff0000"));
}

void tst_OxaThemeUtilsDocuments::readsAnEmptyPaletteFromOtherFilesSilently()
{
    QFETCH(const QByteArray, content);
    QVERIFY(OxaThemeUtils::parseOxaColorsFromJson(fileOf(content)).empty());
}

void tst_OxaThemeUtilsDocuments::readsAnEmptyPaletteFromAMissingFileSilently()
{
    QVERIFY(OxaThemeUtils::parseOxaColorsFromJson(missingFile()).empty());
}

void tst_OxaThemeUtilsDocuments::readsColorSetsFromAFile()
{
    const OxaColorPalette palette = { { "red", Qt::red } };
    const auto sets = OxaThemeUtils::parseOxaColorSetsFromJson(fileOf(colorSetsJson), palette);
    QCOMPARE(sets.size(), std::size_t(1));
    QCOMPARE(sets.at("panel"), OxaColorSet(QStringLiteral("panel"), Qt::red));
}

void tst_OxaThemeUtilsDocuments::missesTheTokensInOtherFiles()
{
    QFETCH(const QByteArray, content);
    QTest::ignoreMessage(QtWarningMsg, noTokens);
    QVERIFY(OxaThemeUtils::parseOxaColorSetsFromJson(fileOf(content), {}).empty());
}

void tst_OxaThemeUtilsDocuments::missesTheTokensInAMissingFile()
{
    QTest::ignoreMessage(QtWarningMsg, noTokens);
    QVERIFY(OxaThemeUtils::parseOxaColorSetsFromJson(missingFile(), {}).empty());
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_OxaThemeUtilsDocuments)
#include "tst_oxathemeutils_documents.moc"
