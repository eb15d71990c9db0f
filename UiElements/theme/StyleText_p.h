// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeUtils.h>

class StyleDraft;

/// The colour half of the style language, as functions on drafts.
namespace StyleText {

/// The tag of a colour directive, such as "$textColors:".
QStringView colorTag(OxaThemeUtils::ColorSetType type);

/// Returns at most how much the two functions below write into a draft of \a styleText.
int roomFor(const QString &styleText, const QString &selector);

/// Replaces each "$(name.state)" in \a draft by the colour's name, alpha first.
void substituteColorReferences(StyleDraft &draft, const OxaColorSetMap &colorSets);

/// Replaces the first colour directive of \a type in \a draft by its rules for \a selector and
/// returns the set that it named. What can't be expanded stays.
OxaColorSet expandColorDirective(StyleDraft &draft, OxaThemeUtils::ColorSetType type,
                                 const QString &selector, const OxaColorSetMap &colorSets);

} // namespace StyleText
