// SPDX-License-Identifier: Apache-2.0
#include "OxaFontBlock.h"

#include <UiElements/fonts/OxaFontManager.h>
#include <UiElements/fonts/OxaScaledFonts.h>

#include <QPointer>
#include <QWidget>

OxaFontBlock::OxaFontBlock(QWidget *widget) : m_widget(widget)
{
    m_widget->setFont(OxaFont(m_token, false));
}

void OxaFontBlock::setToken(OxaFont::Token token, bool useFallbackFamilies)
{
    m_token = token;
    const QPointer<QWidget> widget = m_widget;
    m_widget->setFont(OxaFont(token, useFallbackFamilies));
    // Code that handles the change may delete the widget, and this block with it.
    if (widget)
        update();
}

void OxaFontBlock::setType(FontManagerEnum::FontType type)
{
    if (type == m_type)
        return;
    m_type = type;
    update();
}

void OxaFontBlock::update()
{
    QObject::disconnect(m_connection);
    if (m_type == FontManagerEnum::FontType::Default)
        return;
    OxaFontManager *manager = OxaFontManager::get();
    if (!manager)
        return;

    const OxaScaledFonts *scaled = manager->getFont(m_type);
    const auto takeFont = [this, scaled] { m_widget->setFont(scaled->getFont(m_token)); };
    m_connection = QObject::connect(scaled, &OxaScaledFonts::fontTokenChanged, m_widget, takeFont);
    takeFont();
}
