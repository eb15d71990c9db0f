// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/app/OxaObject.h>
#include <UiElements/keyboard/OxaKeySequenceLookup.h>

/// A second, small switchboard beside OxaAppSignals, for what concerns all windows at once.
/// OxaApplication makes the only instance of the process.
class UIELEMENTS_EXPORT OxaGlobalSignalListener : public OxaObject
{
    Q_OBJECT

public:
    /// Makes a listener.
    explicit OxaGlobalSignalListener(QObject *parent = nullptr);

    /// Returns the application's listener. Without an OxaApplication it logs a warning and returns
    /// null.
    static OxaGlobalSignalListener *get();

Q_SIGNALS:
    /// The user pressed the keys of \a shortcutType.
    void shortcutActivated(OxaKeySequenceLookup::Shortcut shortcutType);

    /// The developer tools should appear in the theme called \a theme.
    void setDevToolsThemeMode(const QString &theme);
};
