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

/// Makes the tab order inside \a parent that of its layouts, from the first item to the last:
/// widgets are not made in the order in which one sees them.
void followLayouts(QWidget *parent);

/// Returns what the user sees of \a widget, as text: its kind and what it is called.
QString describe(const QWidget &widget);

} // namespace TabOrder
