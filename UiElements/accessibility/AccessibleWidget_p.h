// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessibleWidget>

/// What assistive technology is told of any widget of the library: the role and the names that it
/// stores, or else those of its class.
class AccessibleWidget : public QAccessibleWidget
{
public:
    /// Tells of \a widget, which has \a role while it stores none.
    using QAccessibleWidget::QAccessibleWidget;

    /// Returns the property `accessibleRole`, if there is one and it is not NoRole.
    QAccessible::Role role() const override;

    /// Returns the tool tip as the name if there is no other. A description that only repeats the
    /// name is left out: it would be read twice.
    QString text(QAccessible::Text kind) const override;

    /// A widget that hands the focus on is neither focusable nor focused: the one that gets it is.
    QAccessible::State state() const override;

    QAccessibleInterface *focusChild() const override;
};
