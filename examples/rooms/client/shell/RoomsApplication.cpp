// SPDX-License-Identifier: Apache-2.0
#include "RoomsApplication.h"

#include "QmlLooks.h"
#include "RoomsStyle.h"

#include <UiElements/fonts/OxaFont.h>
#include <UiElements/fonts/OxaFontManager.h>
#include <UiElements/keyboard/OxaShortcut.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/OxaQmlTypes.h>
#include <UiElements/theme/OxaPaletteUtils.h>
#include <UiElements/theme/OxaThemeUtils.h>
#include <UiElements/widgets/OxaMainWindow.h>

#include <QFontDatabase>
#include <QLocale>
#include <QToolTip>
#include <QWidget>

namespace {

/// The palette of Qt's own widgets: scroll bars, selections, tool tips.
const std::vector<OxaPaletteUtils::RoleSource> paletteSources = {
    { QPalette::Window, "panel" },
    { QPalette::WindowText, "text-primary" },
    { QPalette::Base, "field-background" },
    { QPalette::Text, "field-text" },
    { QPalette::PlaceholderText, "field-placeholder" },
    { QPalette::Button, "panel" },
    { QPalette::ButtonText, "text-primary" },
    { QPalette::Highlight, "selection" },
    { QPalette::HighlightedText, "selection-text" },
    { QPalette::Link, "button-hyperlink-text" },
    { QPalette::LinkVisited, "button-hyperlink-text" },
    { QPalette::ToolTipBase, "toast" },
    { QPalette::ToolTipText, "toast-text" },
};

OxaColorSetMap read(const char *name, const OxaColorPalette &palette)
{
    const QString path = QStringLiteral(":/documents/%1.json").arg(QLatin1String(name));
    return OxaThemeUtils::parseOxaColorSetsFromJson(path, palette);
}

} // namespace

RoomsApplication::RoomsApplication(int &argc, char **argv) : OxaApplication(argc, argv)
{
    const OxaColorPalette palette = OxaThemeUtils::parseOxaColorsFromJson(
            QStringLiteral(":/documents/palette.json"));
    m_light = read("light", palette);
    m_dark = read("dark", palette);
    m_highContrast = read("high-contrast", palette);
    if (QLocale().language() == QLocale::C) // Which has times with seconds.
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    m_isSystemDark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    m_systemDirection = QGuiApplication::layoutDirection();

    // What shows the focus by a border gets no frame.
    setProperty("useGlobalFocusBorders", true);
    setStyle(new RoomsStyle);
    // Qt warns of Hindi text unless the first font has glyph tables for any script, which Open Sans
    // has not. Emoji in colour come next: others have some of their parts.
    const QString noto = QStringLiteral("Noto Sans");
    QFont::insertSubstitutions(QStringLiteral("Segoe UI"),
                               { QFontDatabase().hasFamily(noto) ? noto
                                                                 : QStringLiteral("DejaVu Sans"),
                                 QStringLiteral("Noto Color Emoji") });
    setFont(OxaFont(OxaFont::Token::BodySecondary));
    setOrganizationName(QStringLiteral("Rooms"));
    setApplicationName(QStringLiteral("Rooms"));
    OxaQmlTypes::registerQmlTypes();
}

RoomsApplication::~RoomsApplication() { delete m_engine; }

RoomsApplication *RoomsApplication::get()
{
    return qobject_cast<RoomsApplication *>(QCoreApplication::instance());
}

void RoomsApplication::apply(const Settings &settings, bool isTemporary)
{
    m_settings = settings;
    const bool isForced = settings.direction != Settings::Direction::System;
    const bool isRightToLeft = settings.direction == Settings::Direction::RightToLeft;
    setLayoutDirection(!isForced ? m_systemDirection
                                 : (isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight));
    showFonts();
    showColors();
    if (!isTemporary)
        settings.save();
    Q_EMIT settingsChanged();
}

void RoomsApplication::onQmlEngineCreated(OxaQmlEngine *engine)
{
    m_engine = engine;
    new QmlLooks(engine);
    connect(engine, &OxaQmlEngine::qmlViewStatusChanged, this,
            [](OxaQmlEngine::QmlViewStatus status, const QString &view, const QString &message) {
                if (status == OxaQmlEngine::QmlViewStatus::Error)
                    qWarning("%s: %s", qUtf8Printable(view), qUtf8Printable(message));
            });
}

void RoomsApplication::registerMainWindowShortcuts(OxaMainWindow *window)
{
    OxaAppSignals *hub = OxaAppSignals::get();
    if (!hub->shortcutExists(OxaAppSignals::Shortcut::OpenGlobalSearch)) // A second window.
        hub->registerShortcuts(window, OxaShortcut::All);
}

IOxaMovieProviderSource *RoomsApplication::getMovieProviderSource()
{
    return m_movies ? m_movies : OxaApplication::getMovieProviderSource();
}

void RoomsApplication::showColors()
{
    const bool isHighContrast = m_settings.theme == Settings::Theme::HighContrast;
    // The high contrast document is light on black.
    const bool isDark = isHighContrast || m_settings.theme == Settings::Theme::Dark
            || (m_settings.theme == Settings::Theme::System && m_isSystemDark);
    const OxaColorSetMap &shown = isHighContrast ? m_highContrast : (isDark ? m_dark : m_light);
    if (shown == getColorSets())
        return;
    setProperty("isDarkTheme", isDark);
    setProperty("isHighContrastTheme", isHighContrast);
    setColorSets(shown);
    setInvertedColorSets(isDark ? m_light : m_dark);
    const QPalette palette = OxaPaletteUtils::makePalette(paletteSources);
    setPalette(palette);
    QToolTip::setPalette(palette);
    OxaThemeUtils::refreshThemedWidgets();
}

void RoomsApplication::showFonts()
{
    using FontScaling = FontManagerEnum::FontScalingFactor;
    const float factor = float(m_settings.fontScale) / 100;
    const bool isChanged = !qFuzzyCompare(factor, getFontScaleFactor());
    if (isChanged)
        setFontScaleFactor(factor);
    OxaFontManager::get()->setScalingFactor(FontManagerEnum::FontType::MessagingView,
                                            FontScaling(m_settings.messagingSize));
    if (!isChanged)
        return;
    // Widgets keep the fonts that they have: each is given its token again.
    const QWidgetList widgets = allWidgets();
    for (QWidget *widget : widgets) {
        const QVariant token = widget->property("fontToken");
        if (token.isValid())
            widget->setProperty("fontToken", token);
    }
}
