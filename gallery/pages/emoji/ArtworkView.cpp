// SPDX-License-Identifier: Apache-2.0
#include "ArtworkView.h"

#include "ArtworkDelegate.h"
#include "GalleryApplication.h"
#include "TextSettings.h"
#include "widgets/ScrollArea.h"

ArtworkView::ArtworkView(QAbstractItemModel *model, QWidget *parent)
    : QListView(parent), m_delegate(new ArtworkDelegate(this))
{
    // Qt asked the style about the scroll bars before there were rules for them. It forgets the
    // answers when a widget that is polished gets a sheet.
    ensurePolished();
    setCSS(QStringLiteral("$backgroundColors: gallery-card-background;"
                          "$borderColors: gallery-field-border;"
                          "$borderRadius: 6;"
                          "ArtworkView { padding: 4px; }"
                          // Under the pointer, too, one sees where the focus is.
                          "ArtworkView:focus { border-color: $(gallery-field-border.focused); }")
           + ScrollArea::scrollBarStyleText());
    setAccessibleName(tr("Artwork"));
    setModel(model);
    setItemDelegate(m_delegate);
    setMouseTracking(true);
    setFlow(LeftToRight);
    setWrapping(true);
    setResizeMode(Adjust);
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_themeBlock.followTheme();

    connect(GalleryApplication::get()->textSettings(), &TextSettings::sizesChanged, this,
            &ArtworkView::refresh);
}

void ArtworkView::onThemeChanged() { refresh(); }

void ArtworkView::refresh()
{
    m_delegate->refresh(getThemeType());
    scheduleDelayedItemsLayout();
    viewport()->update();
}
