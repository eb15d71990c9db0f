// SPDX-License-Identifier: Apache-2.0
#include "OxaPaletteUtils.h"

#include <algorithm>

namespace {

using Colors = std::vector<std::pair<QPalette::ColorRole, OxaColorSet>>;

Colors colorsOf(const std::vector<OxaPaletteUtils::RoleSource> &sources,
                OxaThemeUtils::AppThemeType themeType)
{
    Colors colors;
    for (const auto &source : sources) {
        const OxaColorSet set = OxaThemeUtils::getColorSet(source.colorSetName, themeType);
        if (set.isValid())
            colors.emplace_back(source.role, set);
    }
    return colors;
}

/// Returns the roles without a source: Qt computes them from the window's colour.
QPalette startingPalette(const Colors &colors)
{
    const auto window = std::find_if(colors.crbegin(), colors.crend(), [](const auto &color) {
        return color.first == QPalette::Window;
    });
    return window == colors.crend() ? QPalette() : QPalette(window->second.normal);
}

} // namespace

QPalette OxaPaletteUtils::makePalette(const std::vector<RoleSource> &sources,
                                      OxaThemeUtils::AppThemeType themeType)
{
    const Colors colors = colorsOf(sources, themeType);
    QPalette palette = startingPalette(colors);
    for (const auto &[role, set] : colors) {
        palette.setColor(QPalette::Active, role, set.normal);
        palette.setColor(QPalette::Inactive, role, set.normal);
        palette.setColor(QPalette::Disabled, role, set.disabled);
    }
    return palette;
}
