// SPDX-License-Identifier: Apache-2.0
#include "CodeEdit.h"

#include "Fields.h"
#include "looks/Metrics.h"

CodeEdit::CodeEdit(QWidget *parent) : QPlainTextEdit(parent)
{
    m_themeBlock.followTheme();
    setFontToken(OxaFont::Token::CodeBlocks);
    setTabChangesFocus(true);
    setLayoutDirection(Qt::LeftToRight);
    setCSS(QStringLiteral("$textColors: gallery-code-text;")
           + Fields::look("CodeEdit", { 4, 4 }, "gallery-code-background"));
}

void CodeEdit::setMinimumLines(int lines)
{
    const int frame = 2 * (Metrics::small + int(document()->documentMargin()));
    setMinimumHeight(lines * fontMetrics().lineSpacing() + frame);
}

void CodeEdit::onThemeChanged() { }
