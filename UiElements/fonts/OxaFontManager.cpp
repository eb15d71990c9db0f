// SPDX-License-Identifier: Apache-2.0
#include "OxaFontManager.h"

#include <UiElements/app/OxaApplication.h>
#include <UiElements/fonts/OxaScaledFonts.h>

#include <QDebug>

namespace {

constexpr char noApplicationWarning[] = "Unable to find OxaApplication";

} // namespace

OxaFontManager::OxaFontManager(QObject *parent) : QObject(parent) { }

OxaFontManager *OxaFontManager::get()
{
    const auto *app = qobject_cast<OxaApplication *>(QCoreApplication::instance());
    if (!app) {
        QMessageLogger().warning() << noApplicationWarning;
        return nullptr;
    }
    return app->getOxaFontManager();
}

OxaScaledFonts *OxaFontManager::getFont(FontManagerEnum::FontType type)
{
    OxaScaledFonts *&fonts = m_fonts[static_cast<int>(type)];
    if (!fonts)
        fonts = new OxaScaledFonts(this);
    return fonts;
}

void OxaFontManager::setScalingFactor(FontManagerEnum::FontType type,
                                      FontManagerEnum::FontScalingFactor factor)
{
    getFont(type)->setScalingFactor(factor);
}
