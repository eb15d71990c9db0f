// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/app/OxaAppSignals.h>

// The hub shows nobody how to register the shortcuts for developers. An explicit instantiation may
// name a private member, and takes it out for tests.
template <auto Member>
struct PrivateMember
{
    friend void registerDebugShortcuts(OxaAppSignals &hub, QWidget *mainWindow)
    {
        (hub.*Member)(mainWindow);
    }
};
template struct PrivateMember<&OxaAppSignals::_registerDebugShortcuts>;

/// Calls OxaAppSignals::_registerDebugShortcuts().
void registerDebugShortcuts(OxaAppSignals &hub, QWidget *mainWindow);
