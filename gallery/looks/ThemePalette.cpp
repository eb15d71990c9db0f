// SPDX-License-Identifier: Apache-2.0
#include "ThemePalette.h"

#include <UiElements/theme/OxaPaletteUtils.h>

QPalette themePalette(OxaThemeUtils::AppThemeType themeType)
{
    static const std::vector<OxaPaletteUtils::RoleSource> roleSources = {
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
    return OxaPaletteUtils::makePalette(roleSources, themeType);
}
