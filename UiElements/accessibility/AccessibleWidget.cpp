// SPDX-License-Identifier: Apache-2.0
#include "AccessibleWidget_p.h"

#include <QVariant>
#include <QWidget>

QAccessible::Role AccessibleWidget::role() const
{
    const auto stored = widget()->property("accessibleRole").value<QAccessible::Role>();
    return stored == QAccessible::NoRole ? QAccessibleWidget::role() : stored;
}

QString AccessibleWidget::text(QAccessible::Text kind) const
{
    QString text = QAccessibleWidget::text(kind);
    if (kind == QAccessible::Name && text.isEmpty())
        return widget()->toolTip();
    if (kind == QAccessible::Description && text == this->text(QAccessible::Name))
        return {};
    return text;
}

QAccessible::State AccessibleWidget::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    if (widget()->focusProxy())
        state.focusable = state.focused = false;
    return state;
}

QAccessibleInterface *AccessibleWidget::focusChild() const
{
    // Qt would return a widget itself whose focus proxy has the focus.
    QWidget *const proxy = widget()->focusProxy();
    return proxy && proxy->hasFocus() ? QAccessible::queryAccessibleInterface(proxy)->focusChild()
                                      : QAccessibleWidget::focusChild();
}
