// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/app/OxaAppSignals.h>

#include <initializer_list>

/// A key with its modifiers, or a standard key, which the platform chooses.
class ShortcutKey
{
public:
    // Implicit, to keep the rows of the table short.
    constexpr ShortcutKey(int combination) : m_combination(combination) { }
    constexpr ShortcutKey(QKeySequence::StandardKey standardKey) : m_standardKey(standardKey) { }

    QKeySequence sequence() const
    {
        return m_combination ? QKeySequence(m_combination) : QKeySequence(m_standardKey);
    }

private:
    int m_combination = 0;
    QKeySequence::StandardKey m_standardKey = QKeySequence::UnknownKey;
};

/// One shortcut: its key, the signal that it emits, and how a list shows it.
struct ShortcutRow
{
    OxaShortcut::ShortcutGroup registeredWith; ///< The bit that registers it.
    OxaAppSignals::Shortcut id;
    ShortcutKey key;
    void (OxaAppSignals::*signal)();
    const char *description = nullptr; ///< Null for a shortcut that no list shows.
    OxaShortcut::ShortcutGroup group = registeredWith;
};

/// The shortcuts of registerShortcuts(), in the order in which they are made.
extern const std::initializer_list<ShortcutRow> shortcutRows;

/// The shortcut for developers, which no group contains.
extern const ShortcutRow debugShortcutRow;
