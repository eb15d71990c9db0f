// SPDX-License-Identifier: Apache-2.0
#include "Button.h"

Button::Button(const QString &text, QWidget *parent) : QPushButton(text, parent)
{
    m_themeBlock.followTheme();
    setFontToken(OxaFont::Token::TagLabelPrimary);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setCSS(QStringLiteral("$backgroundColors: gallery-button-background;"
                          "$borderColors: gallery-button-border;"
                          "$borderRadius: 6;"
                          "$textColors: gallery-button-text;"
                          "Button { padding: 6px 16px; }"));
}

void Button::onThemeChanged() { }
