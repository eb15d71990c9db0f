// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QPushButton>

/// A checkable button that looks different when it is checked.
///
/// The two looks are two style texts, not one with a `checked` state: in a style sheet the state of
/// the pointer beats the checked one, and a checked button is to stay recognisable under it.
class ToggleButton : public QPushButton
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QPushButton)
    UIELEMENTS_FONT_BLOCK

public:
    /// The style texts of a button's two states.
    struct Look
    {
        QString unchecked;
        QString checked;
    };

    ToggleButton(const QString &text, const Look &look, QWidget *parent = nullptr);

protected Q_SLOTS:
    virtual void onThemeChanged();

private:
    void applyLook();

    const Look m_look;
};
