// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "AccessibleWidget_p.h"

class QAbstractButton;

/// What assistive technology is told of a button, whose role depends on where it is: in a tab bar
/// it is a tab. It is asked for each time: Qt may make the interface before the button is added to
/// a bar, or made checkable.
class AccessibleButton : public AccessibleWidget
{
public:
    using AccessibleWidget::AccessibleWidget;

    /// Returns the stored role. PushButton, which all buttons store at first, counts as none.
    QAccessible::Role role() const override;

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

    QStringList actionNames() const override;

    /// Clicks, for whichever role, with all signals of a click, or shows the button's menu. Both
    /// happen later: assistive technology would wait until a menu or a slot's dialog is closed.
    void doAction(const QString &name) override;

    QStringList keyBindingsForAction(const QString &name) const override;

private:
    QAbstractButton *button() const;
    QString clickAction() const;
};
