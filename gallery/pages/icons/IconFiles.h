// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <vector>

/// An SVG file that the gallery shows.
struct IconFile
{
    QString name;   ///< The file's name, without its suffix.
    QString path;   ///< The file's path.
    QString origin; ///< The gallery, or a package.
};

/// The SVG files that the gallery knows.
namespace IconFiles {

/// Returns the gallery's own icons, which are resources, where the library looks for icons by name.
std::vector<IconFile> ofGallery();

/// Returns the gallery's files that do not take the colour of a state as expected.
std::vector<IconFile> exceptions();

/// Returns all SVG files of the packages in \a artworkFolder, package by package. A package is a
/// folder with a "package.json"; its name may have a scope, which is a folder too.
std::vector<IconFile> ofPackages(const QString &artworkFolder);

} // namespace IconFiles
