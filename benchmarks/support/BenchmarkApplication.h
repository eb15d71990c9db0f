// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/app/OxaApplication.h>

/// An outer application whose hooks do nothing.
class BenchmarkApplication final : public OxaApplication
{
public:
    using OxaApplication::OxaApplication;

    void onQmlEngineCreated(OxaQmlEngine *) override { }
    void restart() override { }
    void registerMainWindowShortcuts(OxaMainWindow *) override { }
};
