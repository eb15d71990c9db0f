// SPDX-License-Identifier: Apache-2.0
#include "OxaKeyboardShortcutsManager.h"

#include <UiElements/keyboard/OxaShortcut.h>

OxaKeyboardShortcutsManager::OxaKeyboardShortcutsManager(QObject *parent) : OxaObject(parent) { }

OxaKeyboardShortcutsManager::~OxaKeyboardShortcutsManager() = default;
