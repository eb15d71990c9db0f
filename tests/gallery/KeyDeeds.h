// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

class QWidget;

/// What keys do to controls, by their classes.
namespace KeyDeeds {

/// Returns whether \a widget is a field that texts are typed into.
bool isField(const QWidget &widget);

/// Returns whether Tab goes from part to part in \a widget, such as from link to link.
bool hasParts(const QWidget &widget);

/// Types the keys that change \a widget, and those that change it back, by \a type. Returns whether
/// something has changed, or there is nothing that could.
bool work(QWidget &widget, const std::function<void(const char *)> &type);

} // namespace KeyDeeds
