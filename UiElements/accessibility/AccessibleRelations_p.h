// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessible>

class QLabel;
class QWidget;

/// Which widgets belong together: labels and error messages to their fields, popups to their
/// buttons.
///
/// A field may consist of parts, one of which has its focus: what belongs to the field belongs to
/// that part as well. An error message is a label with the field as its buddy, as a caption is,
/// that stores the role AlertMessage.
namespace AccessibleRelations {

using Relations = QVector<QPair<QAccessibleInterface *, QAccessible::Relation>>;

/// Returns the property `accessibleRole` of \a widget, NoRole without one.
QAccessible::Role storedRole(const QWidget &widget);

/// True for the roles of things that are clicked.
bool isClickable(QAccessible::Role role);

/// Returns the error messages for \a widget that are visible.
QVector<QLabel *> errorsOf(const QWidget &widget);

/// True for the button of a popup.
bool hasPopup(const QWidget &widget);

/// Returns the relations of \a widget that \a match, of which Qt knows \a known. A field is the
/// controller of its error messages, which would be captions otherwise.
Relations of(const QWidget &widget, const Relations &known, QAccessible::Relation match);

} // namespace AccessibleRelations
