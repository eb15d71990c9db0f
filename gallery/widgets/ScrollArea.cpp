// SPDX-License-Identifier: Apache-2.0
#include "ScrollArea.h"

#include <UiElements/widgets/OxaWidget.h>

ScrollArea::ScrollArea(QWidget *parent) : QScrollArea(parent)
{
    m_themeBlock.followTheme();
    // Qt asked the style about the scroll bars before there were rules for them. It forgets the
    // answers when a widget that is polished gets a sheet.
    ensurePolished();
    setCSS(scrollBarStyleText());
    setViewport(new OxaWidget);
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
}

void ScrollArea::setContents(QWidget *contents)
{
    setWidget(contents);
    // The area makes its widget fill itself.
    contents->setAutoFillBackground(false);
}

QString ScrollArea::scrollBarStyleText()
{
    return QStringLiteral(
            "QScrollBar { background: transparent; border: none; }"
            "QScrollBar:vertical { width: 12px; }"
            "QScrollBar:horizontal { height: 12px; }"
            "QScrollBar::handle { background: $(gallery-scrollbar); border-radius: 3px; margin: "
            "3px; }"
            "QScrollBar::handle:hover { background: $(gallery-scrollbar.hovered); }"
            "QScrollBar::handle:pressed { background: $(gallery-scrollbar.pressed); }"
            "QScrollBar::handle:vertical { min-height: 32px; }"
            "QScrollBar::handle:horizontal { min-width: 32px; }"
            "QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }"
            "QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }");
}

void ScrollArea::onThemeChanged() { }
