// SPDX-License-Identifier: Apache-2.0
#include "WidgetTriggers.h"

#include <UiElements/widgets/OxaMenu.h>
#include <UiElements/widgets/OxaPushButton.h>
#include <UiElements/widgets/OxaTabBar.h>

namespace {

void addTabs(OxaTabBar &bar)
{
    bar.addTab(QStringLiteral("a"));
    bar.addTab(QStringLiteral("b"));
}

void clickSecond(OxaTabBar &bar)
{
    press(*bar.getTab(1));
    release(*bar.getTab(1));
}

void pressSpaceOnSecond(OxaTabBar &bar)
{
    sendKey(*bar.getTab(1), QEvent::KeyPress, Qt::Key_Space);
    sendKey(*bar.getTab(1), QEvent::KeyRelease, Qt::Key_Space);
}

} // namespace

void addMenuTriggers(SignalTriggers &rows)
{
    addThemeRows<OxaMenu>(rows);
    for (const char *signal : { "currentChanged(int)", "tabClicked(int,int)" }) {
        rows.push_back(row<OxaTabBar>(signal, "a click", &clickSecond, &addTabs));
        rows.push_back(row<OxaTabBar>(signal, "a key", &pressSpaceOnSecond, &addTabs));
    }
    rows.push_back(row<OxaTabBar>("tabClicked(int,int)", "a click on the current tab", &clickSecond,
                                  [](OxaTabBar &bar) {
                                      addTabs(bar);
                                      bar.setCurrentIndex(1);
                                  }));
    const SignalTriggers own = {
        row<OxaTabBar>(
                "currentChanged(int)", "setCurrentIndex()",
                [](OxaTabBar &bar) { bar.setCurrentIndex(1); }, &addTabs),
        row<OxaTabBar>(
                "currentChanged(int)", "selectFirstTab()",
                [](OxaTabBar &bar) { bar.selectFirstTab(); }, &addTabs),
        row<OxaTabBar>(
                "currentChanged(int)", "removeTab()", [](OxaTabBar &bar) { bar.removeTab(1); },
                &addTabs),
        row<OxaTabBar>(
                "currentChanged(int)", "removeTab() of the last one",
                [](OxaTabBar &bar) { bar.removeTab(0); },
                [](OxaTabBar &bar) { bar.addTab(QStringLiteral("a")); }),
        row<OxaTabBar>(
                "currentChanged(int)", "removeAllTabs()",
                [](OxaTabBar &bar) { bar.removeAllTabs(); }, &addTabs),
    };
    rows.insert(rows.end(), own.begin(), own.end());
}
