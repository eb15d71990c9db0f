// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QTimeEdit>

/// A field for a time that takes part in theming.
class UIELEMENTS_EXPORT OxaTimeEdit : public QTimeEdit
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QTimeEdit)
    UIELEMENTS_FONT_BLOCK

public:
    /// Makes a field that shows midnight.
    explicit OxaTimeEdit(QWidget *parent = nullptr);

    /// Makes a field that shows \a time.
    explicit OxaTimeEdit(const QTime &time, QWidget *parent = nullptr);

protected Q_SLOTS:
    /// Runs at each change of the theme type, for subclasses to look up what they paint with.
    virtual void onThemeChanged();
};
