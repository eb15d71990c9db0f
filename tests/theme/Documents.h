// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/ColorSets.h"

#include <QJsonDocument>
#include <QJsonObject>

/// JSON documents for tests, and short texts of what is read from them.
namespace Documents {

/// Returns the object in \a json; aborts if it is not valid.
inline QJsonObject objectOf(const QString &json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8(), &error);
    if (!document.isObject())
        qFatal("Not a JSON object: %s (%s)", qUtf8Printable(json),
               qUtf8Printable(error.errorString()));
    return document.object();
}

/// Returns the sorted texts that \a describeEntry gives for the entries of \a map.
template <typename Map, typename DescribeEntry>
QString describeMap(const Map &map, DescribeEntry describeEntry)
{
    QStringList entries;
    for (const auto &entry : map)
        entries += QString::fromStdString(entry.first) + QLatin1Char('=')
                + describeEntry(entry.second);
    entries.sort();
    return entries.join(QLatin1String(", "));
}

/// Returns the colours of \a palette by name: "blue=#ff0000ff, red=#ffff0000".
inline QString describe(const OxaColorPalette &palette)
{
    return describeMap(palette, [](const QColor &color) { return ColorSets::describe(color); });
}

/// Returns the sets of \a sets by key.
inline QString describe(const OxaColorSetMap &sets)
{
    return describeMap(sets, [](const OxaColorSet &set) { return ColorSets::describe(set); });
}

} // namespace Documents
