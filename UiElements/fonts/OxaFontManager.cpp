// SPDX-License-Identifier: Apache-2.0
#include "OxaFontManager.h"

#include <UiElements/app/ApplicationObject_p.h>
#include <UiElements/app/OxaApplication.h>
#include <UiElements/fonts/OxaScaledFonts.h>

OxaFontManager::OxaFontManager(QObject *parent) : QObject(parent) { }

OxaFontManager *OxaFontManager::get()
{
    const OxaApplication *app = ApplicationObject::findOrWarn();
    return app ? app->getOxaFontManager() : nullptr;
}

OxaScaledFonts *OxaFontManager::getFont(FontManagerEnum::FontType type)
{
    QPointer<OxaScaledFonts> &fonts = m_fonts[static_cast<int>(type)];
    if (!fonts)
        fonts = new OxaScaledFonts(this);
    return fonts;
}

void OxaFontManager::setScalingFactor(FontManagerEnum::FontType type,
                                      FontManagerEnum::FontScalingFactor factor)
{
    getFont(type)->setScalingFactor(factor);
}
