// SPDX-License-Identifier: Apache-2.0
#include "support/Guards.h"

namespace {

IOxaApplication *application()
{
    auto *application = qobject_cast<IOxaApplication *>(QCoreApplication::instance());
    if (!application)
        qFatal("Stores need an OxaApplication: use UIELEMENTS_TEST_MAIN.");
    return application;
}

} // namespace

StoreGuard::StoreGuard(const OxaColorSetMap &ordinary, const OxaColorSetMap &inverted)
    : m_application(application()),
      m_ordinary(m_application->getColorSets()),
      m_inverted(m_application->getInvertedColorSets()),
      m_isDarkTheme(m_application->property("isDarkTheme")),
      m_isHighContrastTheme(m_application->property("isHighContrastTheme"))
{
    m_application->setColorSets(ordinary);
    m_application->setInvertedColorSets(inverted);
}

StoreGuard::~StoreGuard()
{
    m_application->setColorSets(m_ordinary);
    m_application->setInvertedColorSets(m_inverted);
    m_application->setProperty("isDarkTheme", m_isDarkTheme);
    m_application->setProperty("isHighContrastTheme", m_isHighContrastTheme);
}

void StoreGuard::setFlags(bool isDarkTheme, bool isHighContrastTheme)
{
    m_application->setProperty("isDarkTheme", isDarkTheme);
    m_application->setProperty("isHighContrastTheme", isHighContrastTheme);
}
