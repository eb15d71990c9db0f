// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QMainWindow>

/// A main window that takes part in theming, and on which the application registers its shortcuts.
///
/// It is the top of the theme: its children follow its theme type, but it does not follow the type
/// of the parent that it is made with. Its style text is not expanded again for a new object name.
/// It has no font token. Dock widgets and tool bars move without animation.
class UIELEMENTS_EXPORT OxaMainWindow : public QMainWindow
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QMainWindow)

public:
    /// Makes an empty main window, and calls OxaApplication::registerMainWindowShortcuts() with it.
    /// Without an OxaApplication a warning is logged instead, and no shortcut works.
    explicit OxaMainWindow(QWidget *parent = nullptr, Qt::WindowFlags flags = {});

protected Q_SLOTS:
    /// For subclasses, which connect themeTypeChanged() to it themselves: nothing calls it here.
    virtual void onThemeChanged();
};
