// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeUtils.h>

#include <optional>

/// The scanner and the colour half of the style language, as functions on texts.
namespace StyleText {

/// Where a directive stands in a text, from its tag through the ";" after it.
struct Directive
{
    int position = 0;
    int length = 0;
    QString value; ///< What stands between the tag and the ";", trimmed.
};

/// The tag of a colour directive, such as "$textColors:".
QLatin1String colorTag(OxaThemeUtils::ColorSetType type);

/// Finds the first \a tag in \a text. A tag with no ";" after it is no directive.
std::optional<Directive> findDirective(const QString &text, QLatin1String tag);

/// Removes the first directive of \a tag from \a text and returns where it stood and what it said.
std::optional<Directive> takeDirective(QString &text, QLatin1String tag);

/// Replaces each "$(name.state)" in \a text by the colour's name, alpha first.
void substituteColorReferences(QString &text, const OxaColorSetMap &colorSets);

/// Replaces the first colour directive of \a type in \a text by its rules for \a selector and
/// returns the set that it named. What can't be expanded stays in \a text.
OxaColorSet expandColorDirective(QString &text, OxaThemeUtils::ColorSetType type,
                                 const QString &selector, const OxaColorSetMap &colorSets);

} // namespace StyleText
