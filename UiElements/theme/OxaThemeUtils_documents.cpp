// SPDX-License-Identifier: Apache-2.0
#include "OxaThemeUtils.h"

#include <QDebug>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <optional>
#include <utility>
#include <vector>

namespace {

constexpr char invalidColorWarning[] = "Invalid color for: ";
constexpr char missingAliasWarning[] = "Unable to parse colors.json! The color: ";
constexpr char missingAliasWarningEnd[] = "doesn't exist!";
constexpr char noTokensWarning[] = "Could not find the 'tokens' object in the json file";
constexpr char invalidColorSetWarning[] = "Unable to parse ColorSet:";

/// Pairs of a colour's name and the name of the colour that it stands for, in file order.
using Aliases = std::vector<std::pair<QString, QString>>;

/// Reads an "rgba" object. Channels are whole numbers, alpha is a fraction and is truncated; a
/// channel that is missing or out of range makes the colour invalid.
QColor colorFromRgba(const QJsonObject &rgba)
{
    const double alpha = std::trunc(rgba[QLatin1String("a")].toDouble(-1.0) * 255.0);
    if (!(alpha >= 0.0 && alpha <= 255.0))
        return {};
    return { rgba[QLatin1String("r")].toInt(-1), rgba[QLatin1String("g")].toInt(-1),
             rgba[QLatin1String("b")].toInt(-1), static_cast<int>(alpha) };
}

/// Reads one entry of "variations" into \a palette or \a aliases; false stops the whole document.
bool readVariation(const QJsonObject &variation, OxaColorPalette &palette, Aliases &aliases)
{
    const QString name = variation[QLatin1String("name")].toString();
    if (name.isEmpty())
        return false;

    const QString alias = variation[QLatin1String("alias")].toString();
    if (!alias.isEmpty()) {
        aliases.emplace_back(name, alias);
        return true;
    }

    const QColor color = colorFromRgba(variation[QLatin1String("rgba")].toObject());
    if (!color.isValid()) {
        QMessageLogger().warning() << invalidColorWarning << name;
        return false;
    }
    palette.emplace(name.toStdString(), color);
    return true;
}

/// Adds \a aliases to \a palette in order, so that an alias may name an earlier one.
bool resolveAliases(const Aliases &aliases, OxaColorPalette &palette)
{
    for (const auto &[name, alias] : aliases) {
        const auto found = palette.find(alias.toStdString());
        if (found == palette.cend()) {
            QMessageLogger().warning() << missingAliasWarning << alias << missingAliasWarningEnd;
            return false;
        }
        palette.emplace(name.toStdString(), found->second);
    }
    return true;
}

/// Reads the colour of one state of \a token, or \a fallback if it is missing or unusable.
QColor stateColor(const QJsonObject &token, QLatin1String state, const OxaColorPalette &palette,
                  const QColor &fallback)
{
    const QJsonValue value = token[state];
    if (value.isUndefined())
        return fallback;
    if (palette.empty()) {
        const QColor color = colorFromRgba(value.toObject());
        return color.isValid() ? color : fallback;
    }
    const auto found = palette.find(value.toString().toStdString());
    return found == palette.cend() ? fallback : found->second;
}

std::optional<OxaColorSet> readColorSet(const QString &name, const QJsonObject &token,
                                        const OxaColorPalette &palette)
{
    OxaColorSet set;
    set.name = name;
    set.normal = stateColor(token, QLatin1String("normal"), palette, {});
    set.hovered = stateColor(token, QLatin1String("hovered"), palette, set.normal);
    set.pressed = stateColor(token, QLatin1String("pressed"), palette, set.normal);
    set.disabled = stateColor(token, QLatin1String("disabled"), palette, set.normal);
    set.focused = stateColor(token, QLatin1String("focused"), palette, set.normal);
    set.checked = stateColor(token, QLatin1String("checked"), palette, set.normal);
    return set.isValid() ? std::optional(set) : std::nullopt;
}

} // namespace

QJsonObject OxaThemeUtils::readJsonObject(const QString &path)
{
    QFile file(path);
    // Qt itself would warn about a file without a name.
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

OxaColorPalette OxaThemeUtils::parseOxaColorsFromJson(const QJsonObject &document)
{
    const QJsonArray groups = document[QLatin1String("colors")].toArray();
    OxaColorPalette palette;
    palette.reserve(static_cast<std::size_t>(groups.size()));
    Aliases aliases;
    for (const QJsonValue &group : groups) {
        const QJsonArray variations = group[QLatin1String("variations")].toArray();
        for (const QJsonValue &variation : variations) {
            if (!readVariation(variation.toObject(), palette, aliases))
                return {};
        }
    }
    if (!resolveAliases(aliases, palette))
        return {};
    return palette;
}

OxaColorPalette OxaThemeUtils::parseOxaColorsFromJson(const QString &path)
{
    return parseOxaColorsFromJson(readJsonObject(path));
}

OxaColorSetMap OxaThemeUtils::parseOxaColorSetsFromJson(const QJsonObject &document,
                                                        const OxaColorPalette &palette)
{
    const QJsonObject tokens = document[QLatin1String("tokens")].toObject();
    if (tokens.isEmpty()) {
        QMessageLogger().warning() << noTokensWarning;
        return {};
    }

    OxaColorSetMap sets;
    sets.reserve(static_cast<std::size_t>(tokens.size()));
    const QStringList names = tokens.keys();
    for (const QString &name : names) {
        const auto set = readColorSet(name, tokens[name].toObject(), palette);
        if (!set) {
            QMessageLogger().warning() << invalidColorSetWarning << name;
            return {};
        }
        sets.emplace(name.toStdString(), *set);
    }
    return sets;
}

OxaColorSetMap OxaThemeUtils::parseOxaColorSetsFromJson(const QString &path,
                                                        const OxaColorPalette &palette)
{
    return parseOxaColorSetsFromJson(readJsonObject(path), palette);
}
