// SPDX-License-Identifier: Apache-2.0
#include "ColorDocuments.h"

#include "WarningCollector.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonObject>

namespace {

constexpr char furniturePrefix[] = "gallery-";

QString tr(const char *text) { return QCoreApplication::translate("ColorDocuments", text); }

QString problemWith(const QString &path, const QString &reason)
{
    return tr("cannot use %1: %2").arg(path, reason);
}

QString reasonForEmpty(const QString &path, const QJsonObject &document,
                       const WarningCollector &warnings)
{
    if (!QFileInfo::exists(path))
        return tr("there is no such file");
    if (document.isEmpty())
        return tr("it holds no JSON object");
    if (warnings.texts().isEmpty())
        return tr("it defines nothing");
    return warnings.texts().join(QStringLiteral("; "));
}

/// Reads the document at \a path with \a parse. If that yields nothing, \a problem says why.
template <typename Parse>
auto readDocument(const QString &path, QString &problem, Parse parse)
{
    const QJsonObject document = OxaThemeUtils::readJsonObject(path);
    const WarningCollector warnings;
    auto result = parse(document);
    if (result.empty() && problem.isEmpty())
        problem = problemWith(path, reasonForEmpty(path, document, warnings));
    return result;
}

void addMissingFurniture(OxaColorSetMap &sets, const OxaColorSetMap &others)
{
    for (const auto &[name, set] : others) {
        if (name.rfind(furniturePrefix, 0) == 0)
            sets.emplace(name, set);
    }
}

} // namespace

DocumentPaths DocumentPaths::ofUser(const QString &colors, const QString &sets,
                                    const QString &invertedSets)
{
    DocumentPaths paths;
    paths.colors = colors;
    paths.light = sets;
    paths.dark = invertedSets;
    paths.highContrast = sets;
    return paths;
}

std::optional<ColorDocuments> ColorDocuments::read(const DocumentPaths &paths, QString &problem)
{
    problem.clear();
    const auto palette = readDocument(paths.colors, problem, [](const QJsonObject &document) {
        return OxaThemeUtils::parseOxaColorsFromJson(document);
    });
    if (palette.empty())
        return std::nullopt;

    const auto readSets = [&palette, &problem](const QString &path) {
        return readDocument(path, problem, [&palette](const QJsonObject &document) {
            return OxaThemeUtils::parseOxaColorSetsFromJson(document, palette);
        });
    };
    ColorDocuments documents { readSets(paths.light), readSets(paths.dark),
                               readSets(paths.highContrast) };
    if (!problem.isEmpty())
        return std::nullopt;
    return documents;
}

void ColorDocuments::addFurniture(const ColorDocuments &other)
{
    addMissingFurniture(light, other.light);
    addMissingFurniture(dark, other.dark);
    addMissingFurniture(highContrast, other.highContrast);
}
