// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QSplitter>

/// A splitter that takes part in theming.
class UIELEMENTS_EXPORT OxaSplitter : public QSplitter
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QSplitter)
    UIELEMENTS_FONT_BLOCK

public:
    /// Makes a splitter whose widgets stand side by side.
    explicit OxaSplitter(QWidget *parent = nullptr);

    /// Makes a splitter whose widgets stand along \a orientation.
    explicit OxaSplitter(Qt::Orientation orientation, QWidget *parent = nullptr);

protected Q_SLOTS:
    /// Runs at each change of the theme type, for subclasses to look up what they paint with.
    virtual void onThemeChanged();
};
