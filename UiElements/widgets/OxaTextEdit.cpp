// SPDX-License-Identifier: Apache-2.0
#include "OxaTextEdit.h"

#include "ContextMenu_p.h"

#include <UiElements/svg/VisualUtils.h>
#include <UiElements/theme/FocusFrame_p.h>

#include <QContextMenuEvent>
#include <QMenu>
#include <QPainter>

OxaTextEdit::OxaTextEdit(QWidget *parent) : QTextEdit(parent)
{
    m_themeBlock.followTheme();
    setTabChangesFocus(true);
    VisualUtils::EventFilter::overrideShortcutOverride(this);
}

OxaTextEdit::OxaTextEdit(const QString &text, QWidget *parent) : OxaTextEdit(parent)
{
    // Not by QTextEdit's constructor: Qt would take this for one of its own from then on.
    setHtml(text);
}

void OxaTextEdit::onThemeChanged() { }

void OxaTextEdit::paintEvent(QPaintEvent *e)
{
    // For any focus, by keyboard or by mouse: whoever writes has to see where.
    if (hasFocus()) {
        QPainter painter(viewport());
        FocusFrame::draw(&painter, FocusFrame::optionFor(viewport(), QRect(QPoint(), size())),
                         this);
    }
    QTextEdit::paintEvent(e);
}

void OxaTextEdit::contextMenuEvent(QContextMenuEvent *event)
{
    ContextMenu::popUp(createStandardContextMenu(), this, event->globalPos());
}
