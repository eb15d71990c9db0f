// SPDX-License-Identifier: Apache-2.0
#include "ClientApplication.h"

#include <UiElements/theme/OxaThemeUtils.h>

ClientApplication::ClientApplication(int &argc, char **argv) : OxaApplication(argc, argv)
{
    const OxaColorPalette palette = OxaThemeUtils::parseOxaColorsFromJson(
            QStringLiteral(":/documents/palette.json"));
    m_light = OxaThemeUtils::parseOxaColorSetsFromJson(QStringLiteral(":/documents/light.json"),
                                                       palette);
    m_dark = OxaThemeUtils::parseOxaColorSetsFromJson(QStringLiteral(":/documents/dark.json"),
                                                      palette);
    setDark(false);
}

void ClientApplication::setDark(bool dark)
{
    setProperty("isDarkTheme", dark);
    OxaThemeUtils::setAppOxaColorSets(dark ? m_dark : m_light);
    OxaThemeUtils::setAppInvertedOxaColorSets(dark ? m_light : m_dark);

    // No widget follows the stores by itself.
    OxaThemeUtils::refreshThemedWidgets();
}
