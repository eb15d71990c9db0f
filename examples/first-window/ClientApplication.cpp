// SPDX-License-Identifier: Apache-2.0
#include "ClientApplication.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <QVariant>
#include <QWidget>

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

    // No widget follows the stores. Writing its theme type, even the same one, has a widget take
    // its colours anew.
    const QWidgetList widgets = allWidgets();
    for (QWidget *widget : widgets) {
        const QVariant themeType = widget->property("themeType");
        if (themeType.isValid())
            widget->setProperty("themeType", themeType);
    }
}
