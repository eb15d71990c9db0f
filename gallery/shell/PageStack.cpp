// SPDX-License-Identifier: Apache-2.0
#include "PageStack.h"

#include "Page.h"
#include "PageRegistry.h"
#include "TabOrder.h"

PageStack::PageStack(QWidget *parent) : QStackedWidget(parent) { m_themeBlock.followTheme(); }

void PageStack::showPage(const QString &name)
{
    const PageEntry *entry = findPageEntry(name);
    if (!entry)
        return;
    Page *&page = m_pages[name];
    if (!page) {
        page = entry->make(this);
        addWidget(page);
        TabOrder::followLayouts(page);
    }
    setCurrentWidget(page);
}

void PageStack::onThemeChanged() { }
