// SPDX-License-Identifier: Apache-2.0
#include "IOxaApplication.h"

#include <UiElements/qml/OxaQmlEngine.h>

#include <QDebug>

IOxaApplication::IOxaApplication(int &argc, char **argv) : QApplication(argc, argv)
{
    qRegisterMetaType<OxaColorSet>("OxaColorSet");
}

IOxaApplication::~IOxaApplication()
{
    if (m_qmlEngine)
        m_qmlEngine->deleteLater();
}

OxaQmlEngine *IOxaApplication::getQmlEngine() const
{
    if (m_qmlEngine)
        return m_qmlEngine;
    QMessageLogger().debug() << "[UILifecycle][Startup] Creating OxaQmlEngine.";
    // Stored before the hook runs, because that may ask for it.
    m_qmlEngine = OxaQmlEngine::create();
    const_cast<IOxaApplication *>(this)->onQmlEngineCreated(m_qmlEngine);
    QMessageLogger().debug() << "[UILifecycle][Startup] Finished creating OxaQmlEngine.";
    return m_qmlEngine;
}

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
