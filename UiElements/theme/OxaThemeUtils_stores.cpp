// SPDX-License-Identifier: Apache-2.0
#include "OxaThemeUtils.h"

#include <UiElements/app/ApplicationObject_p.h>
#include <UiElements/app/IOxaApplication.h>

#include <QDebug>

namespace {

constexpr char unknownColorSetWarning[] = "ColorSet name does not exist! ";

IOxaApplication *application() { return ApplicationObject::find<IOxaApplication>(); }

bool isDarkTheme()
{
    const IOxaApplication *app = application();
    return app && app->getIsDarkTheme();
}

bool showsInvertedStore(OxaThemeUtils::AppThemeType themeType)
{
    using OxaThemeUtils::AppThemeType;

    if (OxaThemeUtils::isHighContrastEnabled())
        return false;
    switch (themeType) {
    case AppThemeType::Light:
        return isDarkTheme();
    case AppThemeType::Dark:
        return !isDarkTheme();
    case AppThemeType::Inverted:
        return true;
    case AppThemeType::Global:
        break;
    }
    return false;
}

} // namespace

const OxaColorSetMap &OxaThemeUtils::getAppOxaColorSets()
{
    static const OxaColorSetMap none;
    const IOxaApplication *app = application();
    return app ? app->getColorSets() : none;
}

const OxaColorSetMap &OxaThemeUtils::getAppInvertedOxaColorSets()
{
    static const OxaColorSetMap none;
    const IOxaApplication *app = application();
    return app ? app->getInvertedColorSets() : none;
}

const OxaColorTokenMap &OxaThemeUtils::getAppOxaColorTokens()
{
    static const OxaColorTokenMap none;
    const IOxaApplication *app = application();
    return app ? app->getColorTokens() : none;
}

void OxaThemeUtils::setAppOxaColorSets(const OxaColorSetMap &colorSets)
{
    if (IOxaApplication *app = application())
        app->setColorSets(colorSets);
}

void OxaThemeUtils::setAppInvertedOxaColorSets(const OxaColorSetMap &colorSets)
{
    if (IOxaApplication *app = application())
        app->setInvertedColorSets(colorSets);
}

void OxaThemeUtils::setAppOxaColorTokens(const OxaColorTokenMap &colorTokens)
{
    if (IOxaApplication *app = application())
        app->setColorTokens(colorTokens);
}

const OxaColorSetMap &OxaThemeUtils::getOxaColorSetsByThemeType(AppThemeType themeType)
{
    return showsInvertedStore(themeType) ? getAppInvertedOxaColorSets() : getAppOxaColorSets();
}

OxaColorSet OxaThemeUtils::getColorSet(const std::string &name, AppThemeType themeType)
{
    if (name.empty())
        return {};

    const OxaColorSetMap &sets = getOxaColorSetsByThemeType(themeType);
    const auto found = sets.find(name);
    if (found == sets.cend()) {
        QMessageLogger().warning() << unknownColorSetWarning << QString::fromStdString(name);
        return {};
    }
    return found->second;
}

OxaColorSet OxaThemeUtils::transparentColourSet()
{
    return { QStringLiteral("transparent"), Qt::transparent };
}

bool OxaThemeUtils::isHighContrastEnabled()
{
    const IOxaApplication *app = application();
    return app && app->getIsHighContrastTheme();
}
