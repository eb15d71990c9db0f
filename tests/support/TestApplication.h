// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/TestMain.h"

#include <UiElements/app/OxaApplication.h>

/// The application object of tests. The hooks for outer applications do nothing.
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
};

/// Runs a test class under a TestApplication. TestMain.h has macros for other applications.
#define UIELEMENTS_TEST_MAIN(TestClass) UIELEMENTS_TEST_MAIN_WITH(TestApplication, TestClass)
