// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/TestMain.h"

#include <UiElements/app/OxaApplication.h>

/// The application object of tests, with the outer application's hooks answered by doing nothing.
class TestApplication : public OxaApplication
{
    Q_OBJECT

public:
    using OxaApplication::OxaApplication;

    void onQmlEngineCreated(OxaQmlEngine *engine) override;
    void restart() override;
    void registerMainWindowShortcuts(OxaMainWindow *window) override;

    /// Fills what the outer application says of itself.
    void setPublishingInfo(const AppPublishing::OxaPublishingInfo &info);
};

/// Runs a test class under a TestApplication. TestMain.h has the like for other applications.
#define UIELEMENTS_TEST_MAIN(TestClass) UIELEMENTS_TEST_MAIN_WITH(TestApplication, TestClass)
