// SPDX-License-Identifier: Apache-2.0
#include "CodeEdit.h"

#include "looks/Metrics.h"

CodeEdit::CodeEdit(QWidget *parent) : QPlainTextEdit(parent)
{
    m_themeBlock.followTheme();
    setFontToken(OxaFont::Token::CodeBlocks);
    setTabChangesFocus(true);
    setLayoutDirection(Qt::LeftToRight);
    setCSS(QStringLiteral("$backgroundColors: gallery-code-background;"
                          "$borderColors: gallery-field-border;"
                          "$borderRadius: 6;"
                          "$textColors: gallery-code-text;"
                          "CodeEdit { padding: 4px; }"
                          // Shows the focus under the pointer as well.
                          "CodeEdit:focus { padding: 3px;"
                          " border: 2px solid $(gallery-focus-border); }"));
}

void CodeEdit::setMinimumLines(int lines)
{
    const int frame = 2 * (Metrics::small + int(document()->documentMargin()));
    setMinimumHeight(lines * fontMetrics().lineSpacing() + frame);
}

void CodeEdit::onThemeChanged() { }
