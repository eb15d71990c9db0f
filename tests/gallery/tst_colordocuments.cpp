// SPDX-License-Identifier: Apache-2.0
#include "GalleryTest.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <looks/ColorDocuments.h>
#include <looks/LibraryColorSets.h>

#include <algorithm>

namespace {

ColorDocuments ownDocuments()
{
    QString problem;
    return *ColorDocuments::read(DocumentPaths(), problem);
}

QStringList namesOf(const OxaColorSetMap &sets)
{
    QStringList names;
    for (const auto &entry : sets)
        names += QString::fromStdString(entry.first);
    names.sort();
    return names;
}

QStringList missingFrom(const OxaColorSetMap &sets, const QStringList &names)
{
    QStringList missing;
    for (const QString &name : names) {
        if (sets.count(name.toStdString()) == 0)
            missing += name;
    }
    return missing;
}

/// Counts the palette's colours that are an alias, or that are not.
int countColors(bool aliases)
{
    const QJsonObject document = OxaThemeUtils::readJsonObject(DocumentPaths().colors);
    int count = 0;
    for (const auto &group : document.value(QLatin1String("colors")).toArray()) {
        const QJsonArray variations = group.toObject().value(QLatin1String("variations")).toArray();
        count += int(std::count_if(variations.begin(), variations.end(), [aliases](const auto &v) {
            return v.toObject().contains(QLatin1String("alias")) == aliases;
        }));
    }
    return count;
}

} // namespace

/// The colour documents: the gallery's own, and a user's.
class tst_ColorDocuments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsItsOwn();
    void namesTheSameSetsInEachAppearance();
    void definesWhatTheLibraryAsksFor();
    void hasAPaletteOfColorsAndAliases();
    void reportsWhyADocumentIsUnusable_data();
    void reportsWhyADocumentIsUnusable();
    void showsAUsersLightSetsInHighContrast();
    void addsOnlyTheGallerysSetsThatAreMissing();

private:
    QString write(const QString &name, const QByteArray &text) const;

    QTemporaryDir m_folder;
};

QString tst_ColorDocuments::write(const QString &name, const QByteArray &text) const
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("Cannot write %s", qUtf8Printable(file.fileName()));
    return file.fileName();
}

void tst_ColorDocuments::readsItsOwn()
{
    QString problem;
    QVERIFY(ColorDocuments::read(DocumentPaths(), problem));
    QCOMPARE(problem, QString());
}

void tst_ColorDocuments::namesTheSameSetsInEachAppearance()
{
    const ColorDocuments documents = ownDocuments();
    QVERIFY(documents.light.size() >= 100);
    QCOMPARE(namesOf(documents.dark), namesOf(documents.light));
    QCOMPARE(namesOf(documents.highContrast), namesOf(documents.light));
}

void tst_ColorDocuments::definesWhatTheLibraryAsksFor()
{
    QCOMPARE(libraryColorSetNames().size(), 44);
    const ColorDocuments documents = ownDocuments();
    for (const OxaColorSetMap &sets : { documents.light, documents.dark, documents.highContrast })
        QCOMPARE(missingFrom(sets, libraryColorSetNames()), QStringList());
}

void tst_ColorDocuments::hasAPaletteOfColorsAndAliases()
{
    QVERIFY(countColors(false) >= 60);
    QVERIFY(countColors(true) >= 1);
}

void tst_ColorDocuments::reportsWhyADocumentIsUnusable_data()
{
    QTest::addColumn<QByteArray>("palette");
    QTest::addColumn<QByteArray>("sets");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    const QByteArray palette = R"({"colors":[{"variations":[
        {"name":"a","rgba":{"r":1,"g":2,"b":3,"a":1}}]}]})";
    const QByteArray sets = R"({"tokens":{"s":{"normal":"a"}}})";
    QTest::newRow("a palette that is not JSON") << QByteArray("colours") << sets << "palette.json"
                                                << "it holds no JSON object";
    QTest::newRow("a palette without colours")
            << QByteArray(R"({"colours":[]})") << sets << "palette.json"
            << "it defines nothing";
    QTest::newRow("a palette with a wrong colour")
            << QByteArray(palette).replace("\"r\":1", "\"r\":256") << sets << "palette.json"
            << R"(Invalid color for:  "a")";
    QTest::newRow("sets without tokens") << palette << QByteArray(R"({"sets":{}})") << "sets.json"
                                         << "Could not find the 'tokens' object in the json file";
    QTest::newRow("a set of an unknown colour")
            << palette << QByteArray(sets).replace("\"a\"", "\"b\"") << "sets.json"
            << R"(Unable to parse ColorSet: "s")";
}

void tst_ColorDocuments::reportsWhyADocumentIsUnusable()
{
    QFETCH(const QByteArray, palette);
    QFETCH(const QByteArray, sets);
    QFETCH(const QString, file);
    QFETCH(const QString, reason);
    const QString palettePath = write(QStringLiteral("palette.json"), palette);
    const QString setsPath = write(QStringLiteral("sets.json"), sets);
    QString problem;
    QVERIFY(!ColorDocuments::read(DocumentPaths::ofUser(palettePath, setsPath, setsPath), problem));
    QCOMPARE(problem, QStringLiteral("cannot use %1: %2").arg(m_folder.filePath(file), reason));
}

void tst_ColorDocuments::showsAUsersLightSetsInHighContrast()
{
    const DocumentPaths paths = DocumentPaths::ofUser(QStringLiteral("palette"),
                                                      QStringLiteral("sets"),
                                                      QStringLiteral("inverted"));
    QCOMPARE(paths.light, QStringLiteral("sets"));
    QCOMPARE(paths.dark, QStringLiteral("inverted"));
    QCOMPARE(paths.highContrast, QStringLiteral("sets"));
}

void tst_ColorDocuments::addsOnlyTheGallerysSetsThatAreMissing()
{
    const OxaColorSet own(QStringLiteral("gallery-divider"), Qt::red);
    ColorDocuments documents;
    documents.light.emplace(own.name.toStdString(), own);
    documents.addFurniture(ownDocuments());
    QCOMPARE(documents.light.at("gallery-divider"), own);
    QCOMPARE(documents.light.count("gallery-accent"), std::size_t(1));
    QCOMPARE(documents.light.count("text-primary"), std::size_t(0));
    QCOMPARE(documents.dark.count("gallery-divider"), std::size_t(1));
}

GALLERY_TEST_MAIN(tst_ColorDocuments)
#include "tst_colordocuments.moc"
