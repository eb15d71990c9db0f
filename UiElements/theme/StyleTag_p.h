// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeUtils.h>

#include <array>

/// The directives of the style language, those of colours first.
enum class StyleTag {
    BackgroundColors,
    BorderColors,
    TextColors,
    Borders,
    BorderRadius,
    BorderWidth,
};

/// All of them, in the order in which they are removed from a text.
constexpr std::array<StyleTag, 6> styleTags = {
    StyleTag::BackgroundColors, StyleTag::BorderColors, StyleTag::TextColors,
    StyleTag::Borders,          StyleTag::BorderRadius, StyleTag::BorderWidth,
};

/// What they look like in a style text: one row for each StyleTag, in its order.
constexpr std::array<QStringView, 6> styleTagTexts = {
    u"$backgroundColors:", u"$borderColors:", u"$textColors:",
    u"$borders:",          u"$borderRadius:", u"$borderWidth:",
};

/// Returns what \a tag looks like in a style text.
constexpr QStringView textOf(StyleTag tag) { return styleTagTexts[static_cast<std::size_t>(tag)]; }

/// Returns the tag of the colour directive of \a type.
constexpr StyleTag tagOf(OxaThemeUtils::ColorSetType type)
{
    return styleTags[static_cast<std::size_t>(type)];
}
