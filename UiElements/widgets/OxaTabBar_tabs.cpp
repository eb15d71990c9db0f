// SPDX-License-Identifier: Apache-2.0
#include "OxaTabBar.h"

#include "OxaPushButton.h"

#include <type_traits>

namespace {

constexpr char dataProperty[] = "tab_property";

/// Returns what \a getter returns of \a tab; an empty value without a tab.
template <typename Class, typename Result>
std::decay_t<Result> ask(const OxaPushButton *tab, Result (Class::*getter)() const)
{
    return tab ? (tab->*getter)() : std::decay_t<Result>();
}

/// Calls \a setter of \a tab with \a value; does nothing without a tab.
template <typename Class, typename Argument, typename Value>
void tell(OxaPushButton *tab, void (Class::*setter)(Argument), const Value &value)
{
    if (tab)
        (tab->*setter)(value);
}

} // namespace

bool OxaTabBar::isTabHidden(int index) const
{
    const OxaPushButton *tab = getTab(index);
    return !tab || tab->isHidden();
}

bool OxaTabBar::isTabVisible(int index) const { return ask(getTab(index), &QWidget::isVisible); }

void OxaTabBar::setTabVisible(int index, bool visible)
{
    tell(getTab(index), &QWidget::setVisible, visible);
}

bool OxaTabBar::isTabEnabled(int index) const { return ask(getTab(index), &QWidget::isEnabled); }

void OxaTabBar::setTabEnabled(int index, bool enabled)
{
    tell(getTab(index), &QWidget::setEnabled, enabled);
}

QString OxaTabBar::tabText(int index) const { return ask(getTab(index), &QAbstractButton::text); }

void OxaTabBar::setTabText(int index, const QString &text)
{
    tell(getTab(index), &QAbstractButton::setText, text);
}

QString OxaTabBar::tabToolTip(int index) const { return ask(getTab(index), &QWidget::toolTip); }

void OxaTabBar::setTabToolTip(int index, const QString &toolTip)
{
    tell(getTab(index), &QWidget::setToolTip, toolTip);
}

QString OxaTabBar::accessibleTabName(int index) const
{
    return ask(getTab(index), &QWidget::accessibleName);
}

void OxaTabBar::setAccessibleTabName(int index, const QString &name)
{
    tell(getTab(index), &QWidget::setAccessibleName, name);
}

QString OxaTabBar::tabStyleSheet(int index) const
{
    return ask(getTab(index), &QWidget::styleSheet);
}

void OxaTabBar::setTabStyleSheet(int index, const QString &styleSheet)
{
    tell(getTab(index), &OxaPushButton::setStyleSheet, styleSheet);
}

void OxaTabBar::setTabCSS(int index, const OxaCSSData &cssData)
{
    setTabProperty(index, "css", OxaThemeUtils::convertToOxaCSS(cssData).toUtf8());
}

int OxaTabBar::tabElidePadding(int index) const
{
    return ask(getTab(index), &OxaPushButton::getElidePadding);
}

void OxaTabBar::setTabElidePadding(int index, int padding)
{
    tell(getTab(index), &OxaPushButton::setElidePadding, padding);
}

QVariant OxaTabBar::tabProperty(int index, const char *name) const
{
    const OxaPushButton *tab = getTab(index);
    return tab ? tab->property(name) : QVariant();
}

void OxaTabBar::setTabProperty(int index, const char *name, const QVariant &value)
{
    if (OxaPushButton *tab = getTab(index))
        tab->setProperty(name, value);
}

QVariant OxaTabBar::tabData(int index) const { return tabProperty(index, dataProperty); }

void OxaTabBar::setTabData(int index, const QVariant &value)
{
    setTabProperty(index, dataProperty, value);
}

int OxaTabBar::findTabIndexByData(const QVariant &value) const
{
    for (int i = 0; i < count(); ++i) {
        if (tabData(i) == value)
            return i;
    }
    return -1;
}

QRect OxaTabBar::tabGeometry(int index) const { return ask(getTab(index), &QWidget::geometry); }
