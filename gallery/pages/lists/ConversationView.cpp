// SPDX-License-Identifier: Apache-2.0
#include "ConversationView.h"

#include "GalleryApplication.h"
#include "RowDelegate.h"
#include "TextSettings.h"
#include "widgets/ScrollArea.h"

ConversationView::ConversationView(QAbstractItemModel *model, QWidget *parent)
    : QListView(parent), m_delegate(new RowDelegate(this))
{
    // Qt asked the style about the scroll bars before there were rules for them. It forgets the
    // answers when a widget that is polished gets a sheet.
    ensurePolished();
    setCSS(QStringLiteral("$backgroundColors: gallery-card-background;"
                          "$borderColors: gallery-field-border;"
                          "$borderRadius: 6;"
                          "ConversationView { padding: 1px; }"
                          // Under the pointer, too, one sees where the focus is.
                          "ConversationView:focus {"
                          " border-color: $(gallery-field-border.focused); }")
           + ScrollArea::scrollBarStyleText());
    setAccessibleName(tr("Conversations"));
    setModel(model);
    setItemDelegate(m_delegate);
    setMouseTracking(true);
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_themeBlock.followTheme();

    connect(GalleryApplication::get()->textSettings(), &TextSettings::sizesChanged, this,
            &ConversationView::refresh);
}

void ConversationView::onThemeChanged() { refresh(); }

void ConversationView::refresh()
{
    m_delegate->refresh(getThemeType());
    scheduleDelayedItemsLayout();
    viewport()->update();
}
