// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessible>

class QWidget;

/// What the widgets of one class are to assistive technology, as far as Qt does not know it. A
/// class without a row of its own has that of its base class.
struct AccessibleClass
{
    using Text = QString (*)(const QWidget &widget);
    using ShownRole = QAccessible::Role (*)(const QWidget &widget);
    using Step = void (*)(QWidget &widget, bool isUp);

    const QMetaObject *metaObject = nullptr;

    /// The role where the widget stores none; NoRole for the one that Qt tells.
    QAccessible::Role role = QAccessible::NoRole;

    Text name = nullptr;   ///< The text of a widget without an accessible name.
    Text remark = nullptr; ///< What the description says at its end.

    /// The role by what the widget shows; NoRole for that above.
    ShownRole shownRole = nullptr;

    /// The role of the buttons in the widget's layout; NoRole where they are what they are anyway.
    QAccessible::Role memberRole = QAccessible::NoRole;

    /// Does what the key does that makes the value greater, or less.
    Step step = nullptr;

    /// Makes the interface on top of \a qts, the one that Qt has made; null for an
    /// AccessibleWidget.
    QAccessibleInterface *(*make)(QWidget *widget, QAccessibleInterface *qts) = nullptr;
};

/// The table of those classes, and the factory that reads it.
namespace AccessibleClasses {

/// Has Qt tell what the table says, of widgets that it has not been asked about before. There is no
/// more to it than a function pointer: nothing happens until Qt asks.
void install();

/// Takes back install(). Interfaces that were made stay.
void remove();

/// Returns the row of the class of \a object or of its nearest base class that has one, or null.
const AccessibleClass *rowOf(const QObject &object);

/// Returns the role that \a widget has for being in the layout of its parent, or NoRole.
QAccessible::Role memberRole(QWidget *widget);

} // namespace AccessibleClasses
