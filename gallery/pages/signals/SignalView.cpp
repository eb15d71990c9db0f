// SPDX-License-Identifier: Apache-2.0
#include "SignalView.h"

#include "GalleryApplication.h"
#include "SignalDelegate.h"
#include "SignalModel.h"
#include "TextSettings.h"

SignalView::SignalView(SignalModel *model, QWidget *parent)
    : QListView(parent), m_delegate(new SignalDelegate(this))
{
    // Qt asked the style about the scroll bars before there were rules for them. It forgets the
    // answers when a widget that is polished gets a sheet.
    ensurePolished();
    setCSS(QStringLiteral("$backgroundColors: gallery-card-background;"
                          "$borderColors: gallery-field-border;"
                          "$borderRadius: 8;"
                          // Rows stay clear of the round corners.
                          "SignalView { padding: 3px; }"
                          // Under the pointer, too, one sees where the focus is.
                          "SignalView:focus { border-color: $(gallery-field-border.focused); }"));
    setAccessibleName(tr("Signals"));
    setModel(model);
    setItemDelegate(m_delegate);
    setMouseTracking(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_themeBlock.followTheme();

    connect(GalleryApplication::get()->textSettings(), &TextSettings::sizesChanged, this,
            &SignalView::refresh);
}

void SignalView::onThemeChanged() { refresh(); }

void SignalView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListView::currentChanged(current, previous);
    Q_EMIT chosen(current);
}

void SignalView::refresh()
{
    m_delegate->refresh(getThemeType());
    scheduleDelayedItemsLayout();
    viewport()->update();
}
