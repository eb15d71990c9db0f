// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/TestMain.h"

#include <UiElements/app/OxaApplication.h>

#include <functional>

/// The application object of tests. The hooks for outer applications do nothing, except where a
/// test gives one.
class TestApplication : public OxaApplication
{
    Q_OBJECT

public:
    using OxaApplication::OxaApplication;

    void onQmlEngineCreated(OxaQmlEngine *engine) override;
    void restart() override;
    void registerMainWindowShortcuts(OxaMainWindow *window) override;

    /// Sets the publishing information.
    void setPublishingInfo(const AppPublishing::OxaPublishingInfo &info);

    /// Gets each new QML engine.
    std::function<void(OxaQmlEngine *)> qmlEngineHook;

    /// Gets each new main window.
    std::function<void(OxaMainWindow *)> mainWindowHook;

    IOxaMovieProviderSource *getMovieProviderSource() override;

    /// Sets the source of movies, or null for the one that an OxaApplication makes.
    void setMovieProviderSource(IOxaMovieProviderSource *source) { m_movieSource = source; }

private:
    IOxaMovieProviderSource *m_movieSource = nullptr;
};

/// Runs a test class under a TestApplication. TestMain.h has macros for other applications.
#define UIELEMENTS_TEST_MAIN(TestClass) UIELEMENTS_TEST_MAIN_WITH(TestApplication, TestClass)
