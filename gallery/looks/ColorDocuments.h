// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaColorSet.h>

#include <QString>

#include <optional>

/// Where the colour documents are. By default they are the gallery's own.
struct DocumentPaths
{
    QString colors = QStringLiteral(":/documents/palette.json");
    QString light = QStringLiteral(":/documents/light.json");
    QString dark = QStringLiteral(":/documents/dark.json");
    QString highContrast = QStringLiteral(":/documents/high-contrast.json");

    /// Returns the paths of a user's documents. High contrast uses the sets of the light
    /// appearance.
    static DocumentPaths ofUser(const QString &colors, const QString &sets,
                                const QString &invertedSets);
};

/// The colour sets of each appearance.
struct ColorDocuments
{
    OxaColorSetMap light;
    OxaColorSetMap dark;
    OxaColorSetMap highContrast;

    /// Reads the documents at \a paths. If one of them yields nothing, the result is empty and
    /// \a problem says which document and why.
    static std::optional<ColorDocuments> read(const DocumentPaths &paths, QString &problem);

    /// Adds the gallery's own sets, whose names begin with "gallery-", from \a other where they are
    /// missing here. Other names stay missing, so that users see what their documents lack.
    void addFurniture(const ColorDocuments &other);
};
