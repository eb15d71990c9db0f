// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeUtils.h>

class StyleDraft;

/// The colour half of the style language, as functions on drafts.
namespace StyleText {

/// Returns at most how much the two functions below write into \a draft.
int roomFor(const StyleDraft &draft, const QString &selector);

/// Replaces each "$(name.state)" in \a draft by the colour's name, alpha first.
void substituteColorReferences(StyleDraft &draft, const OxaColorSetMap &colorSets);

/// Replaces the first colour directive of \a type in \a draft by its rules for \a selector and
/// returns the set that it named. What can't be expanded stays.
OxaColorSet expandColorDirective(StyleDraft &draft, OxaThemeUtils::ColorSetType type,
                                 const QString &selector, const OxaColorSetMap &colorSets);

} // namespace StyleText
