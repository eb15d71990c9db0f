// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/theme/OxaThemeUtils.h>

#include <QPalette>

#include <string>
#include <vector>

/// Qt palettes from colour sets, for the Qt widgets of a client that have no style text.
namespace OxaPaletteUtils {

/// A colour role of Qt, and the colour set that it takes its colours from.
struct RoleSource
{
    QPalette::ColorRole role;
    std::string colorSetName;
};

/// Returns a palette whose roles have the colours of the sets for \a themeType: the disabled group
/// takes the set's disabled colour, the active and the inactive group its normal one. If two
/// sources have the same role, the last counts.
///
/// A source for QPalette::Window also determines the roles without a source: they are computed from
/// its normal colour, as in QPalette(const QColor &). Without it they are those of the
/// application's palette. A set that the store lacks leaves its role unchanged, and warns as
/// OxaThemeUtils::getColorSet() does.
///
/// Pass the result to QApplication::setPalette(), again at each change of the theme.
UIELEMENTS_EXPORT QPalette
makePalette(const std::vector<RoleSource> &sources,
            OxaThemeUtils::AppThemeType themeType = OxaThemeUtils::AppThemeType::Global);

} // namespace OxaPaletteUtils
