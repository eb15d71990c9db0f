// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "GalleryOptions.h"
#include "looks/ColorDocuments.h"

#include <UiElements/app/OxaApplication.h>

#include <QPointer>

class TextSettings;
class ThemeSwitcher;

/// The gallery's application object: it loads the colour documents and does what the command line
/// asks for.
class GalleryApplication : public OxaApplication
{
    Q_OBJECT

public:
    GalleryApplication(int &argc, char **argv);
    ~GalleryApplication() override;

    /// Returns the application object of the process, which must be a GalleryApplication.
    static GalleryApplication *get();

    /// Loads the colour documents at \a paths. If that fails, \a problem says why and nothing
    /// changes.
    bool loadDocuments(const DocumentPaths &paths, QString &problem);

    /// Does what \a options ask for and returns the exit status of the process.
    int run(const GalleryOptions &options);

    /// Returns the theme switcher; null until documents are loaded.
    ThemeSwitcher *themeSwitcher() const { return m_themeSwitcher; }

    /// Returns the settings of direction and size of text.
    TextSettings *textSettings() const { return m_textSettings; }

    /// Returns the folder of downloaded pictures, which need not exist.
    QString artworkFolder() const { return m_artworkFolder; }

    /// Sets the folder of downloaded pictures, for pages that are made later.
    void setArtworkFolder(const QString &folder) { m_artworkFolder = folder; }

    /// Returns the StagedMovieSource of the page Movies, made at the first call.
    IOxaMovieProviderSource *getMovieProviderSource() override;

    void onQmlEngineCreated(OxaQmlEngine *engine) override;
    void restart() override;
    void registerMainWindowShortcuts(OxaMainWindow *window) override;

private:
    int showWindow(const QString &page);

    ThemeSwitcher *m_themeSwitcher = nullptr;
    TextSettings *const m_textSettings;
    IOxaMovieProviderSource *m_movieSource = nullptr;
    QPointer<OxaQmlEngine> m_engine;
    QString m_artworkFolder = GalleryOptions::defaultArtworkFolder();
};
