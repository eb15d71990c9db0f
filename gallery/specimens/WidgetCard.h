// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PropertyControls.h"

class Page;

/// What a page shows of a widget class: a card with the widget in each of its states, controls for
/// its properties, and a log of what it emits.
namespace WidgetCard {

/// Adds a card for the widgets that \a make makes to \a page, and returns its controls, to which
/// the caller adds those for the properties.
PropertyControls *add(Page &page, const QString &heading, const QString &explanation,
                      const std::function<QWidget *()> &make);

/// Returns \a own and other icons, or none, for a property that names an icon.
PropertyControls::Choices icons(const PropertyControls::Choice &own);

/// Returns colour sets for a property that names one.
PropertyControls::Choices colorSets();

/// Returns the path of the gallery's icon called \a name.
QString icon(const char *name);

/// Returns that icon in black, to be painted over, for screens of one and of two pixels.
QPixmap pixmap(const char *name, const QSize &size);

} // namespace WidgetCard
