// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class OxaPushButton;
class OxaStackedWidget;
class OxaTabBar;
class QLayout;

/// A tab bar, and below it the page of its current tab. Tabs come and go by buttons, and have a
/// context menu.
class TabbedPages : public OxaWidget
{
    Q_OBJECT

public:
    explicit TabbedPages(QWidget *parent = nullptr);

    OxaTabBar *bar() const { return m_bar; }

private:
    QLayout *makeButtons();
    void addTab();
    void removeTab(int index);
    void removeAllTabs();
    void restoreTabs();
    void openMenu(OxaPushButton *tab, const QPoint &position);
    void fitTabs();
    void updateButtons();

    OxaTabBar *const m_bar;
    OxaStackedWidget *const m_pages;
    OxaPushButton *const m_add;
    OxaPushButton *const m_remove;
    OxaPushButton *const m_removeAll;
    int m_added = 0;
};
