// SPDX-License-Identifier: Apache-2.0
#include "PageStack.h"

#include "Page.h"
#include "PageRegistry.h"
#include "TabOrder.h"

PageStack::PageStack(QWidget *parent) : OxaStackedWidget(parent) { }

void PageStack::showPage(const QString &name)
{
    if (!findPageEntry(name) || m_history.value(m_place) == name)
        return;
    ++m_place;
    m_history = m_history.mid(0, m_place) + QStringList(name);
    bringUp(name);
}

void PageStack::showNeighbour(int step)
{
    const QStringList names = pageNames();
    showPage(names.value(names.indexOf(m_history.value(m_place)) + step));
}

void PageStack::goInHistory(int step)
{
    const QString name = m_history.value(m_place + step);
    if (name.isEmpty())
        return;
    m_place += step;
    bringUp(name);
}

void PageStack::bringUp(const QString &name)
{
    Page *&page = m_pages[name];
    if (!page) {
        page = findPageEntry(name)->make(this);
        addWidget(page);
        TabOrder::followLayouts(page);
    }
    setCurrentWidget(page);
    Q_EMIT pageShown(name);
}
