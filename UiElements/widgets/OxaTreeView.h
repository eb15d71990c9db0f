// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QTreeView>

/// A tree of a model's rows that takes part in theming.
class UIELEMENTS_EXPORT OxaTreeView : public QTreeView
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QTreeView)
    UIELEMENTS_FONT_BLOCK

public:
    /// Makes a view without a model.
    explicit OxaTreeView(QWidget *parent = nullptr);

protected Q_SLOTS:
    /// Runs at each change of the theme type, for subclasses to look up what they paint with.
    virtual void onThemeChanged();
};
