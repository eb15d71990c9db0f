// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QLineEdit>

/// A field for one line of text.
class LineEdit : public QLineEdit
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QLineEdit)
    UIELEMENTS_FONT_BLOCK

public:
    explicit LineEdit(QWidget *parent = nullptr);

protected Q_SLOTS:
    virtual void onThemeChanged();
};
