// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QPlainTextEdit>

/// A field for code. Tab leaves it, as it does any other field.
class CodeEdit : public QPlainTextEdit
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QPlainTextEdit)
    UIELEMENTS_FONT_BLOCK

public:
    explicit CodeEdit(QWidget *parent = nullptr);

    /// Makes the field at least \a lines lines high in its current font.
    void setMinimumLines(int lines);

protected Q_SLOTS:
    virtual void onThemeChanged();
};
