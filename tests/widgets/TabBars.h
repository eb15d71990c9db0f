// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/SignalLog.h"

#include <UiElements/widgets/OxaPushButton.h>
#include <UiElements/widgets/OxaTabBar.h>

#include <QPushButton>

/// What tests of tab bars have in common.
namespace TabBars {

/// A bar with the tabs "a", "b" and so on.
class Bar : public OxaTabBar
{
public:
    using OxaTabBar::addTabItem;

    explicit Bar(int tabs = 0, QWidget *parent = nullptr) : OxaTabBar(parent)
    {
        for (int i = 0; i < tabs; ++i)
            addTab(QString(QLatin1Char(char('a' + i))));
    }
};

/// Describes the tabs by their texts: "*" after one that is checked, "!" after one that Tab
/// reaches, "^" after the bar's focus proxy.
inline QString describe(const OxaTabBar &bar)
{
    QStringList tabs;
    for (int i = 0; i < bar.count(); ++i) {
        const OxaPushButton *tab = bar.getTab(i);
        QString text = tab->text();
        if (tab->isChecked())
            text += QLatin1Char('*');
        if (tab->focusPolicy() & Qt::TabFocus)
            text += QLatin1Char('!');
        if (bar.focusProxy() == tab)
            text += QLatin1Char('^');
        tabs += text;
    }
    return tabs.join(QLatin1Char(' '));
}

/// Records what \a bar emits, with the numbers.
inline void record(SignalLog &log, const OxaTabBar &bar)
{
    QObject::connect(&bar, &OxaTabBar::currentChanged, &bar,
                     [&log](int index) { log.note(QStringLiteral("current %1").arg(index)); });
    QObject::connect(&bar, &OxaTabBar::tabClicked, &bar, [&log](int previous, int now) {
        log.note(QStringLiteral("clicked %1 %2").arg(previous).arg(now));
    });
}

} // namespace TabBars
