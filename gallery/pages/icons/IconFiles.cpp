// SPDX-License-Identifier: Apache-2.0
#include "IconFiles.h"

#include <UiElements/svg/OxaSvgRenderer.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>

#include <algorithm>

namespace {

QString tr(const char *text) { return QCoreApplication::translate("IconFiles", text); }

/// Returns the SVG files in \a folder and below it, by name.
std::vector<IconFile> filesIn(const QString &folder, const QString &origin)
{
    std::vector<IconFile> files;
    QDirIterator entry(folder, { QStringLiteral("*.svg") }, QDir::Files,
                       QDirIterator::Subdirectories);
    while (entry.hasNext()) {
        const QString path = entry.next();
        files.push_back({ entry.fileInfo().completeBaseName(), path, origin });
    }
    std::sort(files.begin(), files.end(),
              [](const IconFile &a, const IconFile &b) { return a.name < b.name; });
    return files;
}

QStringList foldersIn(const QDir &folder)
{
    return folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

bool isPackage(const QDir &folder) { return folder.exists(QStringLiteral("package.json")); }

/// Returns the names of the packages in \a folder, with their scopes.
QStringList packagesIn(const QDir &folder)
{
    QStringList packages;
    const QStringList names = foldersIn(folder);
    for (const QString &name : names) {
        const QDir inner(folder.filePath(name));
        if (isPackage(inner)) {
            packages += name;
            continue;
        }
        const QStringList innerNames = foldersIn(inner);
        for (const QString &innerName : innerNames) {
            if (isPackage(QDir(inner.filePath(innerName))))
                packages += name + QLatin1Char('/') + innerName;
        }
    }
    return packages;
}

} // namespace

std::vector<IconFile> IconFiles::ofGallery()
{
    return filesIn(QFileInfo(OxaSvgRenderer::resourcePath(QStringLiteral("check_12_w"))).path(),
                   tr("The gallery's icons"));
}

std::vector<IconFile> IconFiles::exceptions()
{
    return filesIn(QStringLiteral(":/exceptions"), tr("The gallery's exceptions"));
}

std::vector<IconFile> IconFiles::ofPackages(const QString &artworkFolder)
{
    std::vector<IconFile> files;
    if (artworkFolder.isEmpty())
        return files;
    const QDir folder(artworkFolder);
    const QStringList packages = packagesIn(folder);
    for (const QString &package : packages) {
        const std::vector<IconFile> inPackage = filesIn(folder.filePath(package), package);
        files.insert(files.end(), inPackage.begin(), inPackage.end());
    }
    return files;
}
