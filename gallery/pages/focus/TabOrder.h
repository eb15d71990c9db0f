// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <vector>

class QWidget;

/// The tab order of a window.
namespace TabOrder {

/// Returns the widgets that Tab stops at in \a window, in order.
std::vector<QWidget *> of(QWidget *window);

/// Returns what the user sees of \a widget, as text: its kind and what it is called.
QString describe(const QWidget &widget);

} // namespace TabOrder
