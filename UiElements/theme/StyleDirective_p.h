// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeUtils.h>

#include <QString>

#include <array>
#include <optional>

/// The tags with which directives begin.
namespace StyleTag {

constexpr QStringView borders = u"$borders:";
constexpr QStringView borderRadius = u"$borderRadius:";
constexpr QStringView borderWidth = u"$borderWidth:";

/// All tags in the order in which their directives are removed from a text. Those of colours come
/// first, one for each OxaThemeUtils::ColorSetType.
constexpr std::array<QStringView, 6> all = {
    u"$backgroundColors:", u"$borderColors:", u"$textColors:", borders, borderRadius, borderWidth,
};

/// Returns the tag of the colour directive of \a type.
constexpr QStringView of(OxaThemeUtils::ColorSetType type)
{
    return all[static_cast<std::size_t>(type)];
}

} // namespace StyleTag

/// A directive of a style text: a tag, a value and the first ";" after the tag.
struct StyleDirective
{
    int position = 0; ///< Where the tag begins.
    int length = 0;   ///< From the first character of the tag through the ";".
    QString value;    ///< What stands between the tag and the ";", trimmed.

    /// Finds the first \a tag in \a text. Without a ";" after it, it is no directive.
    static std::optional<StyleDirective> find(const QString &text, QStringView tag);

    /// Finds the same directive and removes it from \a text.
    static std::optional<StyleDirective> take(QString &text, QStringView tag);
};
