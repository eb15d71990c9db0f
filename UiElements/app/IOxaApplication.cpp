// SPDX-License-Identifier: Apache-2.0
#include "IOxaApplication.h"

IOxaApplication::IOxaApplication(int &argc, char **argv) : QApplication(argc, argv)
{
    qRegisterMetaType<OxaColorSet>("OxaColorSet");
}

IOxaApplication::~IOxaApplication() = default;

OxaQmlEngine *IOxaApplication::getQmlEngine() const { return nullptr; }

const OxaColorSetMap &IOxaApplication::getColorSets() const { return m_colorSets; }

void IOxaApplication::setColorSets(const OxaColorSetMap &colorSets)
{
    m_colorSets = colorSets;
    Q_EMIT colorSetsChanged();
}

const OxaColorSetMap &IOxaApplication::getInvertedColorSets() const { return m_invertedColorSets; }

void IOxaApplication::setInvertedColorSets(const OxaColorSetMap &colorSets)
{
    m_invertedColorSets = colorSets;
    Q_EMIT colorSetsChanged();
}

const OxaColorTokenMap &IOxaApplication::getColorTokens() const { return m_colorTokens; }

void IOxaApplication::setColorTokens(const OxaColorTokenMap &colorTokens)
{
    m_colorTokens = colorTokens;
}

bool IOxaApplication::getIsDarkTheme() const { return m_isDarkTheme; }

bool IOxaApplication::getIsHighContrastTheme() const { return m_isHighContrastTheme; }

void IOxaApplication::storeIsDarkTheme(bool isDarkTheme) { m_isDarkTheme = isDarkTheme; }

void IOxaApplication::storeIsHighContrastTheme(bool isHighContrastTheme)
{
    m_isHighContrastTheme = isHighContrastTheme;
}
