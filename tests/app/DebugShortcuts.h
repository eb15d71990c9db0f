// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/app/OxaAppSignals.h>

// The function that registers the shortcuts for developers is private. An explicit instantiation
// may name a private member, which makes it callable in tests.
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
