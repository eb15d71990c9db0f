// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <vector>

class QWidget;

/// The tab order of a window.
namespace TabOrder {

/// Returns the widgets that Tab stops at in \a window, in order.
std::vector<QWidget *> of(QWidget *window);

/// Returns the first widget in \a pane that Tab stops at, or null.
QWidget *firstIn(const QWidget &pane);

/// Sets the tab order inside \a parent to that of its layouts, from the first item to the last:
/// widgets are not made in the order on screen.
void followLayouts(QWidget *parent);

/// Describes \a widget for the user, by its kind and name.
QString describe(const QWidget &widget);

} // namespace TabOrder
