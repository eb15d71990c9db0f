// SPDX-License-Identifier: Apache-2.0
#include "ScrollArea.h"

#include <UiElements/widgets/OxaWidget.h>

#include <QScrollBar>

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
    const auto takeFocus = [this, bar = verticalScrollBar()] {
        setFocusPolicy(bar->maximum() > 0 ? Qt::TabFocus : Qt::NoFocus);
    };
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, takeFocus);
    takeFocus();
}

void ScrollArea::setContents(QWidget *contents)
{
    setWidget(contents);
    // QScrollArea turns on autoFillBackground.
    contents->setAutoFillBackground(false);
}

void ScrollArea::onThemeChanged() { }
