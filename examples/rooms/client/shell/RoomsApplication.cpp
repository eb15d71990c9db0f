// SPDX-License-Identifier: Apache-2.0
#include "RoomsApplication.h"

#include "Looks.h"
#include "QmlLooks.h"
#include "chats/SlowMovies.h"
#include "protocol/Literal.h"

#include <UiElements/fonts/OxaFont.h>
#include <UiElements/fonts/OxaFontManager.h>
#include <UiElements/keyboard/OxaShortcut.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/OxaQmlTypes.h>
#include <UiElements/theme/OxaPaletteUtils.h>
#include <UiElements/theme/OxaThemeUtils.h>
#include <UiElements/widgets/OxaMainWindow.h>

#include <QCheckBox>
#include <QFontDatabase>
#include <QLocale>
#include <QProxyStyle>
#include <QSlider>
#include <QStyleOption>
#include <QToolTip>

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

/// Fusion without animations while the user wants none, and with focus frames in the client's
/// colour around what has no border of its own to show the focus with.
class RoomsStyle : public QProxyStyle
{
public:
    RoomsStyle() : QProxyStyle(u"Fusion"_s) { }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element != PE_FrameFocusRect) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        } else if (qobject_cast<const QCheckBox *>(widget)
                   || qobject_cast<const QSlider *>(widget)) {
            Looks::paintFocus(painter, option->rect, 4);
        }
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override
    {
        const RoomsApplication *application = RoomsApplication::get();
        if (hint == SH_Widget_Animation_Duration && application
            && application->animationsDisabled())
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
};

OxaColorSetMap read(const char *name, const OxaColorPalette &palette)
{
    const QString path = u":/documents/%1.json"_s.arg(QLatin1String(name));
    return OxaThemeUtils::parseOxaColorSetsFromJson(path, palette);
}

} // namespace

RoomsApplication::RoomsApplication(int &argc, char **argv)
    : OxaApplication(argc, argv), m_movies(new SlowMovies(this))
{
    const OxaColorPalette palette = OxaThemeUtils::parseOxaColorsFromJson(
            u":/documents/palette.json"_s);
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
    const QString noto = u"Noto Sans"_s;
    QFont::insertSubstitutions(u"Segoe UI"_s,
                               { QFontDatabase().hasFamily(noto) ? noto : u"DejaVu Sans"_s,
                                 u"Noto Color Emoji"_s });
    setFont(OxaFont(OxaFont::Token::BodySecondary));
    setOrganizationName(u"Rooms"_s);
    setApplicationName(u"Rooms"_s);
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
    const Qt::LayoutDirection directions[] = { m_systemDirection, Qt::LeftToRight,
                                               Qt::RightToLeft };
    setLayoutDirection(directions[int(settings.direction)]);
    showFonts();
    showColors();
    if (!isTemporary)
        settings.save();
    Q_EMIT settingsChanged();
}

void RoomsApplication::onQmlEngineCreated(OxaQmlEngine *engine)
{
    m_engine = engine;
    provideLooks(engine);
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
