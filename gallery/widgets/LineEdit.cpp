// SPDX-License-Identifier: Apache-2.0
#include "LineEdit.h"

LineEdit::LineEdit(QWidget *parent) : QLineEdit(parent)
{
    m_themeBlock.followTheme();
    setFontToken(OxaFont::Token::BodySecondary);
    // No text colours: with them Qt derives a placeholder colour that is too faint to read. The
    // palette has a better one.
    setCSS(QStringLiteral("$backgroundColors: gallery-field-background;"
                          "$borderColors: gallery-field-border;"
                          "$borderRadius: 6;"
                          "LineEdit { padding: 6px 8px; }"
                          // Shows the focus under the pointer as well.
                          "LineEdit:focus { padding: 5px 7px;"
                          " border: 2px solid $(gallery-focus-border); }"));
}

void LineEdit::onThemeChanged() { }
