// SPDX-License-Identifier: Apache-2.0
#include "OxaApplication.h"

#include <UiElements/accessibility/AccessibleClasses_p.h>
#include <UiElements/app/OxaGlobalSignalListener.h>
#include <UiElements/fonts/OxaFont.h>
#include <UiElements/fonts/OxaFontManager.h>
#include <UiElements/movies/OxaMovieProviderSource.h>
#include <UiElements/theme/OxaThemeUtils.h>

#include <QDebug>

namespace {

constexpr char invalidScaleWarning[] =
        "OxaApplication::setFontScaleFactor - Invalid fontScaleFactor ";

constexpr float minimumFontScaleFactor = 0.5F;
constexpr float maximumFontScaleFactor = 1.5F;

} // namespace

OxaApplication::OxaApplication(int &argc, char **argv)
    : IOxaApplication(argc, argv),
      m_appSignals(new OxaAppSignals(this)),
      m_fontManager(new OxaFontManager(this)),
      m_globalSignalListener(new OxaGlobalSignalListener(this))
{
    qRegisterMetaType<OxaAppSignals::Shortcut>("OxaAppSignals::Shortcut");
    AccessibleClasses::install();

    OxaFont font(OxaFont::Token::Default, false);
    font.setFamily(QStringLiteral("Segoe UI"));
    setFont(font);
}

OxaApplication::~OxaApplication() = default;

IOxaMovieProviderSource *OxaApplication::getMovieProviderSource()
{
    if (!m_movieProviderSource)
        m_movieProviderSource = new OxaMovieProviderSource(this);
    return m_movieProviderSource;
}

bool OxaApplication::animationsDisabled() const { return false; }

OxaAppSignals *OxaApplication::getAppSignals() const { return m_appSignals; }

OxaGlobalSignalListener *OxaApplication::getGlobalSignalListener() const
{
    return m_globalSignalListener;
}

OxaFontManager *OxaApplication::getOxaFontManager() const { return m_fontManager; }

OxaColorSet OxaApplication::getColorSet(const QString &colorSetName, const QString &themeType)
{
    return OxaThemeUtils::getColorSet(colorSetName.toStdString(),
                                      OxaThemeUtils::stringToThemeType(themeType));
}

QKeySequence OxaApplication::getKeySequence(OxaAppSignals::Shortcut shortcutId)
{
    return m_appSignals ? m_appSignals->getKeySequence(shortcutId) : QKeySequence();
}

QString OxaApplication::getThemeName() const { return m_themeName; }

QString OxaApplication::getLogoSvgPath() const { return m_logoSvgPath; }

void OxaApplication::setLogoSvgPath(const QString &path)
{
    m_logoSvgPath = path;
    Q_EMIT logoSvgPathChanged(m_logoSvgPath);
}

QString OxaApplication::getLogoPngPath() const { return m_logoPngPath; }

void OxaApplication::setLogoPngPath(const QString &path)
{
    m_logoPngPath = path;
    Q_EMIT logoPngPathChanged(m_logoPngPath);
}

float OxaApplication::getFontScaleFactor() const { return m_fontScaleFactor; }

void OxaApplication::setFontScaleFactor(float factor)
{
    // Tests for "out of range", and not for "in range", so that a NaN passes and is stored. OxaFont
    // does not scale by it.
    if (factor < minimumFontScaleFactor || factor > maximumFontScaleFactor) {
        QMessageLogger().warning() << invalidScaleWarning << factor;
        return;
    }
    m_fontScaleFactor = factor;
    Q_EMIT fontScaleFactorChanged(factor);
}

std::optional<AppPublishing::OxaPublishingInfo> OxaApplication::getPublishingInfo() const
{
    return m_publishingInfo;
}

bool OxaApplication::isInFocus()
{
    return QGuiApplication::applicationState() == Qt::ApplicationActive;
}

void OxaApplication::leaveAccessibilityToQt() { AccessibleClasses::remove(); }

void OxaApplication::setIsDarkTheme(bool isDarkTheme)
{
    if (isDarkTheme == getIsDarkTheme())
        return;
    storeIsDarkTheme(isDarkTheme);
    Q_EMIT isDarkThemeChanged(isDarkTheme);
}

void OxaApplication::setIsHighContrastTheme(bool isHighContrastTheme)
{
    if (isHighContrastTheme == getIsHighContrastTheme())
        return;
    storeIsHighContrastTheme(isHighContrastTheme);
    Q_EMIT isHighContrastThemeChanged(isHighContrastTheme);
}

void OxaApplication::setThemeName(const QString &themeName)
{
    if (themeName == m_themeName)
        return;
    m_themeName = themeName;
    Q_EMIT themeChanged(themeName);
}
