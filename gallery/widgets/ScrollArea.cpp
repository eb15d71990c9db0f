// SPDX-License-Identifier: Apache-2.0
#include "ScrollArea.h"

#include <UiElements/widgets/OxaWidget.h>

ScrollArea::ScrollArea(QWidget *parent) : QScrollArea(parent)
{
    m_themeBlock.followTheme();
    setViewport(new OxaWidget);
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
}

void ScrollArea::showFocus()
{
    setCSS(QStringLiteral("ScrollArea { border: %1px solid transparent; }"
                          "ScrollArea:focus { border-color: $(gallery-focus-border); }")
                   .arg(focusBorder));
}

void ScrollArea::setContents(QWidget *contents)
{
    setWidget(contents);
    // QScrollArea turns on autoFillBackground.
    contents->setAutoFillBackground(false);
}

void ScrollArea::onThemeChanged() { }
