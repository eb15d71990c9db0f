// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QPushButton>

/// A push button for an action.
class Button : public QPushButton
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QPushButton)
    UIELEMENTS_FONT_BLOCK

public:
    explicit Button(const QString &text, QWidget *parent = nullptr);

protected Q_SLOTS:
    virtual void onThemeChanged();
};
