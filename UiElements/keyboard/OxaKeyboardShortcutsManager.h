// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/app/OxaObject.h>
#include <UiElements/keyboard/OxaKeyboardShortcutsGroup.h>

#include <QPointer>

#include <unordered_map>
#include <vector>

class OxaShortcut;

/// A place for a client's own shortcut service. The library neither makes nor fills one.
class UIELEMENTS_EXPORT OxaKeyboardShortcutsManager : public OxaObject
{
    Q_OBJECT

public:
    /// Makes an empty manager.
    explicit OxaKeyboardShortcutsManager(QObject *parent = nullptr);
    ~OxaKeyboardShortcutsManager() override;

private:
    std::vector<OxaKeyboardShortcutsGroup::ShortcutGroup> m_groups;
    std::unordered_map<int, QPointer<OxaShortcut>> m_shortcuts { 16 };
};
