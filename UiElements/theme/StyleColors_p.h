// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeUtils.h>

/// The colours of a style text: references and colour directives.
namespace StyleColors {

/// Returns \a styleText with each "$(name.state)" replaced by the colour's name, alpha first. A
/// reference is on one line; one that names no colour stays, with a warning.
QString substituteReferences(const QString &styleText, const OxaColorSetMap &colorSets);

/// Replaces the first colour directive of \a type in \a sheet with its rules for \a selector, and
/// returns the set that it names. A directive that can't be expanded stays.
OxaColorSet expandDirective(QString &sheet, OxaThemeUtils::ColorSetType type,
                            const QString &selector, const OxaColorSetMap &colorSets);

} // namespace StyleColors
