// SPDX-License-Identifier: Apache-2.0
#include "ToggleButton.h"

ToggleButton::ToggleButton(const QString &text, const Look &look, QWidget *parent)
    : QPushButton(text, parent), m_look(look)
{
    m_themeBlock.followTheme();
    setCheckable(true);
    setCursor(Qt::PointingHandCursor);
    // A click leaves the focus where it is, so that the focus border is for the keyboard only.
    setFocusPolicy(Qt::TabFocus);
    applyLook();
    connect(this, &QPushButton::toggled, this, &ToggleButton::applyLook);
}

void ToggleButton::onThemeChanged() { }

void ToggleButton::applyLook() { setCSS(isChecked() ? m_look.checked : m_look.unchecked); }
