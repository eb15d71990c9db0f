// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeUtils.h>

#include <QString>

#include <array>
#include <optional>

/// What directives and colour references begin with.
namespace StyleTag {

constexpr QStringView reference = u"$(";
constexpr QStringView borders = u"$borders:";
constexpr QStringView borderRadius = u"$borderRadius:";
constexpr QStringView borderWidth = u"$borderWidth:";

/// The tags of directives in the order in which they are removed from a text. Those of colours come
/// first, one for each OxaThemeUtils::ColorSetType.
constexpr std::array<QStringView, 6> directives = {
    u"$backgroundColors:", u"$borderColors:", u"$textColors:", borders, borderRadius, borderWidth,
};

/// Returns the tag of the colour directive of \a type.
constexpr QStringView of(OxaThemeUtils::ColorSetType type)
{
    return directives[static_cast<std::size_t>(type)];
}

} // namespace StyleTag

/// The position of a directive in a text: a tag, a value and the first ";" after the tag.
struct StyleDirective
{
    int position = 0;      ///< Where the tag begins.
    int length = 0;        ///< From the first character of the tag through the ";".
    int valuePosition = 0; ///< Where the tag ends.

    /// Finds the first \a tag in \a text at \a from or later. Without a ";" after it, a tag is no
    /// directive.
    static std::optional<StyleDirective> find(const QString &text, QStringView tag, int from = 0);

    /// Returns the value in \a text, trimmed.
    QString valueIn(const QString &text) const;
};

/// Returns the first position of \a word in \a text, at \a from or later, or -1. Faster than
/// QString::indexOf() for a word that begins with a rare character, such as "$".
int positionOf(QStringView word, const QString &text, int from = 0);
