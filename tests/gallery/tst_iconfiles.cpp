// SPDX-License-Identifier: Apache-2.0
#include "GalleryTest.h"

#include <QDir>
#include <QTemporaryDir>

#include <pages/icons/IconFiles.h>

namespace {

/// Returns the files as lines "origin: name".
QStringList linesOf(const std::vector<IconFile> &files)
{
    QStringList lines;
    for (const IconFile &file : files)
        lines += QStringLiteral("%1: %2").arg(file.origin, file.name);
    return lines;
}

QStringList svgNamesIn(const QString &folder)
{
    QStringList names;
    const auto files = QDir(folder).entryInfoList({ QStringLiteral("*.svg") });
    for (const QFileInfo &file : files)
        names += file.completeBaseName();
    names.sort();
    return names;
}

QStringList namesOf(const std::vector<IconFile> &files)
{
    QStringList names;
    for (const IconFile &file : files)
        names += file.name;
    return names;
}

} // namespace

/// IconFiles: which SVG files the gallery knows.
class tst_IconFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsEveryIconOfTheGallery();
    void knowsEveryException();
    void findsPackagesWithAndWithoutAScope();
    void leavesOutWhatIsNoPackageAndNoSvgFile();
    void findsNothingWithoutAFolder_data();
    void findsNothingWithoutAFolder();

private:
    void write(const QTemporaryDir &folder, const QStringList &paths) const;
};

void tst_IconFiles::knowsEveryIconOfTheGallery()
{
    const auto files = IconFiles::ofGallery();
    QCOMPARE(namesOf(files), svgNamesIn(QStringLiteral(GALLERY_ICONS)));
    QVERIFY(files.size() >= 40);
    QCOMPARE(files.front().path, QStringLiteral(":/Resources/arrow-down_8.svg"));
}

void tst_IconFiles::knowsEveryException()
{
    QCOMPARE(namesOf(IconFiles::exceptions()),
             svgNamesIn(QStringLiteral(GALLERY_ICONS "/exceptions")));
}

void tst_IconFiles::findsPackagesWithAndWithoutAScope()
{
    const QTemporaryDir folder;
    write(folder,
          { QStringLiteral("@scope/pack/package.json"), QStringLiteral("@scope/pack/svg/b.svg"),
            QStringLiteral("@scope/pack/svg/a.svg"), QStringLiteral("plain/package.json"),
            QStringLiteral("plain/c.svg") });
    const auto files = IconFiles::ofPackages(folder.path());
    QCOMPARE(linesOf(files),
             QStringList({ QStringLiteral("@scope/pack: a"), QStringLiteral("@scope/pack: b"),
                           QStringLiteral("plain: c") }));
    QCOMPARE(files.front().path, folder.filePath(QStringLiteral("@scope/pack/svg/a.svg")));
}

void tst_IconFiles::leavesOutWhatIsNoPackageAndNoSvgFile()
{
    const QTemporaryDir folder;
    write(folder,
          { QStringLiteral("loose.svg"), QStringLiteral("half/a.svg"),
            QStringLiteral("pack/package.json"), QStringLiteral("pack/readme.md") });
    QCOMPARE(linesOf(IconFiles::ofPackages(folder.path())), QStringList());
}

void tst_IconFiles::findsNothingWithoutAFolder_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("no name") << QString();
    QTest::newRow("a folder that is not there") << QStringLiteral("/nowhere/at/all");
}

void tst_IconFiles::findsNothingWithoutAFolder()
{
    QFETCH(const QString, folder);
    QVERIFY(IconFiles::ofPackages(folder).empty());
}

void tst_IconFiles::write(const QTemporaryDir &folder, const QStringList &paths) const
{
    for (const QString &path : paths) {
        QFile file(folder.filePath(path));
        QVERIFY(QDir().mkpath(QFileInfo(file).path()));
        QVERIFY(file.open(QFile::WriteOnly));
    }
}

GALLERY_TEST_MAIN(tst_IconFiles)
#include "tst_iconfiles.moc"
