// SPDX-License-Identifier: Apache-2.0
#include "ThemeSwitcher.h"

#include "ThemePalette.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <QApplication>
#include <QMetaEnum>
#include <QWidget>

ThemeSwitcher::ThemeSwitcher(const ColorDocuments &documents, QObject *parent)
    : QObject(parent), m_documents(documents)
{
    setAppearance(Appearance::Light);
}

void ThemeSwitcher::setAppearance(Appearance appearance)
{
    m_appearance = appearance;
    // The documents' high contrast is light on black.
    qApp->setProperty("isDarkTheme", appearance != Appearance::Light);
    qApp->setProperty("isHighContrastTheme", appearance == Appearance::HighContrast);
    qApp->setProperty("theme", QVariant::fromValue(appearance).toString());
    fillStores();
    QApplication::setPalette(themePalette(OxaThemeUtils::stringToThemeType(m_themeType)));
    OxaThemeUtils::refreshThemedWidgets();
    Q_EMIT switched();
}

void ThemeSwitcher::setThemeType(const QString &themeType)
{
    m_themeType = themeType;
    QApplication::setPalette(themePalette(OxaThemeUtils::stringToThemeType(m_themeType)));
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->property("themeType").isValid())
            window->setProperty("themeType", themeType);
    }
    Q_EMIT switched();
}

void ThemeSwitcher::fillStores()
{
    switch (m_appearance) {
    case Appearance::Light:
        OxaThemeUtils::setAppOxaColorSets(m_documents.light);
        OxaThemeUtils::setAppInvertedOxaColorSets(m_documents.dark);
        break;
    case Appearance::Dark:
        OxaThemeUtils::setAppOxaColorSets(m_documents.dark);
        OxaThemeUtils::setAppInvertedOxaColorSets(m_documents.light);
        break;
    case Appearance::HighContrast:
        OxaThemeUtils::setAppOxaColorSets(m_documents.highContrast);
        OxaThemeUtils::setAppInvertedOxaColorSets(m_documents.light);
        break;
    }
}
