// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QStackedWidget>

/// A stack of pages, one of which shows, that takes part in theming.
class UIELEMENTS_EXPORT OxaStackedWidget : public QStackedWidget
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QStackedWidget)
    UIELEMENTS_FONT_BLOCK

public:
    /// Makes a stack without pages.
    explicit OxaStackedWidget(QWidget *parent = nullptr);

protected Q_SLOTS:
    /// Runs at each change of the theme type, for subclasses to look up what they paint with.
    virtual void onThemeChanged();
};
