// SPDX-License-Identifier: Apache-2.0
#include "ListView.h"

#include "ItemDelegate.h"
#include "looks/TextSettings.h"
#include "shell/GalleryApplication.h"

ListView::ListView(QAbstractItemModel *model, ItemDelegate *delegate, QWidget *parent)
    : OxaListView(parent), m_delegate(delegate)
{
    delegate->setParent(this);
    setCSS(frameStyleText());
    setModel(model);
    setItemDelegate(delegate);
    setMouseTracking(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    refresh();

    connect(GalleryApplication::get()->textSettings(), &TextSettings::sizesChanged, this,
            &ListView::refresh);
}

QString ListView::frameStyleText()
{
    return QStringLiteral("$backgroundColors: gallery-card-background;"
                          "$borderColors: gallery-field-border;"
                          "$borderRadius: 6;"
                          // Rows do not cover the round corners.
                          "QAbstractScrollArea { padding: 3px; }"
                          // Shows the focus under the pointer as well.
                          "QAbstractScrollArea:focus { padding: 2px;"
                          " border: 2px solid $(gallery-focus-border); }");
}

void ListView::onThemeChanged() { refresh(); }

void ListView::refresh()
{
    m_delegate->refresh(getThemeType());
    scheduleDelayedItemsLayout();
    viewport()->update();
}

void ListView::focusInEvent(QFocusEvent *event)
{
    ItemDelegate::ensureCurrent(*this);
    OxaListView::focusInEvent(event);
}

QModelIndex ListView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    // Qt would go to the first row in vain if that is a heading.
    return action == MoveHome ? ItemDelegate::firstEnabled(*model())
                              : OxaListView::moveCursor(action, modifiers);
}
