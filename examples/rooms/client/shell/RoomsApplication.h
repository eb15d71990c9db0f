// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Settings.h"

#include <UiElements/app/OxaApplication.h>

#include <QPointer>

/// The application object of the client: it holds what the user has chosen, and makes all windows
/// show it.
class RoomsApplication : public OxaApplication
{
    Q_OBJECT

public:
    /// Reads the colours. Shows nothing before apply() is called.
    RoomsApplication(int &argc, char **argv);

    /// Deletes the QML engine, which the library would only do in a later turn of the event loop.
    ~RoomsApplication() override;

    /// The application object.
    static RoomsApplication *get();

    const Settings &settings() const { return m_settings; }

    /// Shows \a settings at once in all windows, and stores them unless \a isTemporary.
    void apply(const Settings &settings, bool isTemporary = false);

    // What the library may ask of its client.
    bool animationsDisabled() const override { return m_settings.animationsDisabled; }
    void onQmlEngineCreated(OxaQmlEngine *engine) override;
    void registerMainWindowShortcuts(OxaMainWindow *window) override;
    void restart() override { }

    IOxaMovieProviderSource *getMovieProviderSource() override { return m_movies; }

Q_SIGNALS:
    /// The settings changed, and all that widgets take from the library is shown.
    void settingsChanged();

private:
    void showColors();
    void showFonts();

    Settings m_settings;
    OxaColorSetMap m_light;
    OxaColorSetMap m_dark;
    OxaColorSetMap m_highContrast;
    bool m_isSystemDark = false;
    Qt::LayoutDirection m_systemDirection = Qt::LeftToRight;
    IOxaMovieProviderSource *const m_movies;
    QPointer<OxaQmlEngine> m_engine;
};
