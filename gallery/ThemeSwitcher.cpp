// SPDX-License-Identifier: Apache-2.0
#include "ThemeSwitcher.h"

#include "ThemePalette.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <QApplication>
#include <QMetaEnum>
#include <QPointer>
#include <QVector>
#include <QWidget>

namespace {

constexpr char themeTypeProperty[] = "themeType";

bool isThemed(const QWidget *widget) { return widget->property(themeTypeProperty).isValid(); }

/// Writing a theme type applies it also when it is the same, and so a widget takes new colours.
/// Some make others anew then.
void reapplyThemeTypes()
{
    const QWidgetList allWidgets = QApplication::allWidgets();
    const QVector<QPointer<QWidget>> widgets(allWidgets.begin(), allWidgets.end());
    for (const QPointer<QWidget> &widget : widgets) {
        if (widget && isThemed(widget))
            widget->setProperty(themeTypeProperty, widget->property(themeTypeProperty));
    }
}

} // namespace

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
    reapplyThemeTypes();
    Q_EMIT switched();
}

void ThemeSwitcher::setThemeType(const QString &themeType)
{
    m_themeType = themeType;
    QApplication::setPalette(themePalette(OxaThemeUtils::stringToThemeType(m_themeType)));
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (isThemed(window))
            window->setProperty(themeTypeProperty, themeType);
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
