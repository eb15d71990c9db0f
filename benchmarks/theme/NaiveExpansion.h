// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeUtils.h>

/// The style language by regular expressions and replacement, as one writes it at first: an
/// expression for each construct, made where it is used, and templates whose marks are replaced.
///
/// The peer of parseCSS(). It knows what full style texts hold, and no odd cases.
namespace NaiveExpansion {

OxaThemeUtils::CSSParserResult parseCSS(const QString &selector, const QString &styleText,
                                        const OxaColorSetMap &colorSets);

} // namespace NaiveExpansion
