// SPDX-License-Identifier: Apache-2.0
#include "ThemePalette.h"

namespace {

struct RoleSource
{
    QPalette::ColorRole role;
    const char *colorSet;
};

constexpr RoleSource roleSources[] = {
    { QPalette::Window, "gallery-window-background" },
    { QPalette::WindowText, "gallery-body-text" },
    { QPalette::Base, "gallery-field-background" },
    { QPalette::AlternateBase, "gallery-code-background" },
    { QPalette::Text, "gallery-field-text" },
    { QPalette::PlaceholderText, "gallery-field-placeholder-text" },
    { QPalette::Button, "gallery-button-background" },
    { QPalette::ButtonText, "gallery-button-text" },
    { QPalette::Highlight, "gallery-selection-background" },
    { QPalette::HighlightedText, "gallery-selection-text" },
    { QPalette::Link, "button-hyperlink-text" },
    { QPalette::LinkVisited, "button-hyperlink-text" },
    { QPalette::ToolTipBase, "gallery-tooltip-background" },
    { QPalette::ToolTipText, "gallery-tooltip-text" },
};

} // namespace

QPalette themePalette(OxaThemeUtils::AppThemeType themeType)
{
    // Light and shadow come from the ground, as in any palette of Qt's.
    QPalette palette(OxaThemeUtils::getColorSet("gallery-window-background", themeType).normal);
    for (const RoleSource &source : roleSources) {
        const OxaColorSet set = OxaThemeUtils::getColorSet(source.colorSet, themeType);
        palette.setColor(source.role, set.normal);
        palette.setColor(QPalette::Disabled, source.role, set.disabled);
    }
    return palette;
}
