// SPDX-License-Identifier: Apache-2.0
#include "ClientApplication.h"

#include <UiElements/theme/OxaPaletteUtils.h>
#include <UiElements/theme/OxaThemeUtils.h>

#include <QVariant>

namespace {

/// The palette of Qt's own widgets, such as the list's selection.
const std::vector<OxaPaletteUtils::RoleSource> paletteSources = {
    { QPalette::Window, "window-background" },
    { QPalette::WindowText, "text-primary" },
    { QPalette::Base, "panel" },
    { QPalette::Text, "text-primary" },
    { QPalette::Highlight, "selection" },
    { QPalette::HighlightedText, "selection-text" },
    { QPalette::Link, "button-hyperlink-text" },
};

} // namespace

ClientApplication::ClientApplication(int &argc, char **argv) : OxaApplication(argc, argv)
{
    const OxaColorPalette palette = OxaThemeUtils::parseOxaColorsFromJson(
            QStringLiteral(":/documents/palette.json"));
    m_light = OxaThemeUtils::parseOxaColorSetsFromJson(QStringLiteral(":/documents/light.json"),
                                                       palette);
    m_dark = OxaThemeUtils::parseOxaColorSetsFromJson(QStringLiteral(":/documents/dark.json"),
                                                      palette);
    m_highContrast =
            OxaThemeUtils::parseOxaColorSetsFromJson(QStringLiteral(
                                                             ":/documents/high-contrast.json"),
                                                     palette);
    showColors();
}

void ClientApplication::setDark(bool dark)
{
    m_isDark = dark;
    showColors();
}

void ClientApplication::setHighContrast(bool highContrast)
{
    m_isHighContrast = highContrast;
    showColors();
}

void ClientApplication::showColors()
{
    // The high contrast document is light on black.
    const bool isDark = m_isDark || m_isHighContrast;
    setProperty("isDarkTheme", isDark);
    setProperty("isHighContrastTheme", m_isHighContrast);
    const OxaColorSetMap &shown = m_isDark ? m_dark : m_light;
    OxaThemeUtils::setAppOxaColorSets(m_isHighContrast ? m_highContrast : shown);
    OxaThemeUtils::setAppInvertedOxaColorSets(isDark ? m_light : m_dark);

    // Widgets do not notice new stores: Qt's take the palette, ours are refreshed.
    setPalette(OxaPaletteUtils::makePalette(paletteSources));
    OxaThemeUtils::refreshThemedWidgets();
}
