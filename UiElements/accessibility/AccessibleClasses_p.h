// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessible>

class QWidget;

/// What the widgets of one class are to assistive technology. A class without a row of its own has
/// that of its base class; without one there, what Qt tells of it is right as it is.
struct AccessibleClass
{
    const QMetaObject *metaObject;
    QAccessible::Role role; ///< Where the widget stores none.

    /// The role of the buttons in the widget's layout; NoRole where they are what they are anyway.
    QAccessible::Role memberRole;

    QAccessibleInterface *(*makeInterface)(QWidget *widget, QAccessible::Role role);
};

/// The table of those classes, and the factory that reads it.
namespace AccessibleClasses {

/// Has Qt tell what the table says, of widgets that it has not been asked about before. There is no
/// more to it than a function pointer: nothing happens until Qt asks.
void install();

/// Takes back install(). Interfaces that were made stay.
void remove();

/// Returns the role that \a widget has for being in the layout of its parent, or NoRole.
QAccessible::Role memberRole(QWidget *widget);

} // namespace AccessibleClasses
