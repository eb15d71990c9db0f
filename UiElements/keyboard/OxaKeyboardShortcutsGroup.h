// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QObject>

/// Numbers the sections of a list of shortcuts. They are not the bits of
/// OxaShortcut::ShortcutGroup.
class UIELEMENTS_EXPORT OxaKeyboardShortcutsGroup
{
    Q_GADGET

public:
    /// A section of the list.
    enum ShortcutGroup {
        None = 0,
        General = 1,
        Messaging = 2,
        Formatting = 3,
        MeetingsAndCalling = 4,
    };
    Q_ENUM(ShortcutGroup)
};
