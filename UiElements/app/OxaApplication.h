// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/app/AppPublishing.h>
#include <UiElements/app/IOxaApplication.h>
#include <UiElements/app/OxaAppSignals.h>

#include <QPointer>

#include <optional>

class OxaFontManager;
class OxaGlobalSignalListener;
class OxaMainWindow;
class OxaMovieProviderSource;

/// The application object: the QApplication of the process, and the root of all that the library
/// shares. The outer application derives its application class from it and makes one before any
/// widget.
///
/// It owns the colour stores, the theme flags, the font scale, the two switchboards of signals and
/// the font manager. The theme's flags and name have no public setter: the outer application sets
/// them as Qt properties.
///
/// Widgets do not react to these signals. After a change of theme or stores, call
/// OxaThemeUtils::refreshThemedWidgets(). Don't set the widgets' theme types again instead: widgets
/// whose parent has a type of its own would take their window's.
class UIELEMENTS_EXPORT OxaApplication : public IOxaApplication
{
    Q_OBJECT
    Q_PROPERTY(bool isDarkTheme READ getIsDarkTheme WRITE setIsDarkTheme NOTIFY isDarkThemeChanged)
    Q_PROPERTY(bool isHighContrastTheme READ getIsHighContrastTheme WRITE setIsHighContrastTheme
                       NOTIFY isHighContrastThemeChanged)
    Q_PROPERTY(QString theme READ getThemeName WRITE setThemeName NOTIFY themeChanged)
    Q_PROPERTY(
            QString logoSvgPath READ getLogoSvgPath WRITE setLogoSvgPath NOTIFY logoSvgPathChanged)
    Q_PROPERTY(
            QString logoPngPath READ getLogoPngPath WRITE setLogoPngPath NOTIFY logoPngPathChanged)
    Q_PROPERTY(float fontScaleFactor READ getFontScaleFactor WRITE setFontScaleFactor NOTIFY
                       fontScaleFactorChanged)

public:
    /// Makes the application with its signal hub, its font manager and its global signal listener,
    /// in this order; registers the meta-type "OxaAppSignals::Shortcut"; has assistive technology
    /// told of the library's widgets, see leaveAccessibilityToQt(); and installs the application
    /// font: the default token in "Segoe UI". \a argc and \a argv must outlive the object.
    OxaApplication(int &argc, char **argv);
    ~OxaApplication() override;

    /// Returns a source that answers nothing, made at the first call as a child of this object. The
    /// outer application overrides this to have movies.
    IOxaMovieProviderSource *getMovieProviderSource() override;

    /// True when the user wants no animations. False here; the outer application overrides it.
    Q_INVOKABLE virtual bool animationsDisabled() const;

    /// Hook for the outer application to restart itself. The library never calls it.
    virtual void restart() = 0;

    /// Called from the constructor of each main window, so that the outer application can register
    /// its shortcuts on \a window, which is not yet more than an OxaMainWindow. Register for one
    /// window only, e.g. if OxaAppSignals::shortcutExists() says no: a second time logs a warning.
    virtual void registerMainWindowShortcuts(OxaMainWindow *window) = 0;

    /// Returns the signal hub, or null once it is deleted.
    OxaAppSignals *getAppSignals() const;

    /// Returns the global signal listener, or null once it is deleted.
    OxaGlobalSignalListener *getGlobalSignalListener() const;

    /// Returns the font manager, or null once it is deleted.
    OxaFontManager *getOxaFontManager() const;

    /// Returns the colour set called \a colorSetName for the theme type whose word is \a themeType.
    /// Any other word, also an empty one, means "global". Warnings as in
    /// OxaThemeUtils::getColorSet().
    Q_INVOKABLE OxaColorSet getColorSet(const QString &colorSetName,
                                        const QString &themeType = QString());

    /// Returns the key of a registered shortcut, as OxaAppSignals::getKeySequence() does.
    Q_INVOKABLE QKeySequence getKeySequence(OxaAppSignals::Shortcut shortcutId);

    /// Returns the name of the theme. Empty by default.
    QString getThemeName() const;

    /// Returns the resource path of the SVG logo. Empty by default.
    QString getLogoSvgPath() const;

    /// Stores \a path and emits logoSvgPathChanged(), also when it is the same.
    void setLogoSvgPath(const QString &path);

    /// Returns the resource path of the PNG logo. Empty by default.
    QString getLogoPngPath() const;

    /// Stores \a path and emits logoPngPathChanged(), also when it is the same.
    void setLogoPngPath(const QString &path);

    /// Returns the factor that font tokens are multiplied by. 1.0 by default.
    float getFontScaleFactor() const;

    /// Stores \a factor, 0.5 to 1.5, and emits fontScaleFactorChanged(), also when it is the same.
    /// A factor out of range logs a warning and changes nothing. A NaN does not count as out of
    /// range: it is stored, and fonts then have their unscaled size. Existing fonts keep their
    /// size, those of widgets too: to change what is on screen, set each widget's `fontToken`
    /// property to its own value again.
    void setFontScaleFactor(float factor);

    /// Returns what the outer application says about itself, if it says anything.
    std::optional<AppPublishing::OxaPublishingInfo> getPublishingInfo() const;

    /// True when a window of the application is active.
    static bool isInFocus();

    /// Has assistive technology told of the library's widgets what Qt makes of them, as in a
    /// process without this object: a tab is a check box then. Widgets that it has been told of
    /// before stay as they are, so call this before the first widget is made.
    ///
    /// Factories of the outer application, by QAccessible::installFactory(), need no such call:
    /// those that are installed later come first.
    static void leaveAccessibilityToQt();

Q_SIGNALS:
    /// The property `theme` changed to \a themeName.
    void themeChanged(const QString &themeName);

    /// The property `isDarkTheme` changed to \a isDarkTheme.
    void isDarkThemeChanged(bool isDarkTheme);

    /// The property `isHighContrastTheme` changed to \a isHighContrastTheme.
    void isHighContrastThemeChanged(bool isHighContrastTheme);

    /// The font scale factor was set to \a scale, possibly the same as before.
    void fontScaleFactorChanged(float scale);

    /// The SVG logo's path was set, possibly to the same one. The argument is the path: its
    /// misleading name is kept because it is part of the meta-object.
    void logoSvgPathChanged(const QString &isDarkTheme);

    /// The PNG logo's path was set; otherwise like logoSvgPathChanged().
    void logoPngPathChanged(const QString &isDarkTheme);

private:
    void setIsDarkTheme(bool isDarkTheme);
    void setIsHighContrastTheme(bool isHighContrastTheme);
    void setThemeName(const QString &themeName);

    QPointer<OxaAppSignals> m_appSignals;
    QString m_themeName;
    float m_fontScaleFactor = 1.0F;
    QString m_logoSvgPath;
    QString m_logoPngPath;

protected:
    // Among the private members, and not before them: the order of all is binary interface.
    /// Filled by the outer application; nothing in the library sets or reads it.
    std::optional<AppPublishing::OxaPublishingInfo> m_publishingInfo;

private:
    QPointer<OxaFontManager> m_fontManager;
    QPointer<OxaGlobalSignalListener> m_globalSignalListener;
    OxaMovieProviderSource *m_movieProviderSource = nullptr;
};
