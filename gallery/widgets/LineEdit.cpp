// SPDX-License-Identifier: Apache-2.0
#include "LineEdit.h"

LineEdit::LineEdit(QWidget *parent) : QLineEdit(parent)
{
    m_themeBlock.followTheme();
    setFontToken(OxaFont::Token::BodySecondary);
    // No text colours: with them Qt makes up a colour for the placeholder, too faint to read. The
    // palette has one that isn't.
    setCSS(QStringLiteral("$backgroundColors: gallery-field-background;"
                          "$borderColors: gallery-field-border;"
                          "$borderRadius: 6;"
                          "LineEdit { padding: 6px 8px; }"
                          // Under the pointer, too, one sees where the focus is.
                          "LineEdit:focus { padding: 5px 7px;"
                          " border: 2px solid $(gallery-focus-border); }"));
}

void LineEdit::onThemeChanged() { }
