// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PropertyControls.h"
#include "Specimens.h"

class Page;

/// Cards for widget classes: the widget in each of its states, controls for its properties, and a
/// log of its signals.
namespace WidgetCard {

/// Adds a card for the widgets that \a make makes to \a page, and returns its controls, to which
/// the caller adds those for the properties.
PropertyControls *add(Page &page, const QString &heading, const QString &explanation,
                      const std::function<QWidget *()> &make,
                      Specimens::States states = Specimens::States::All);

/// Adds a card for \a widget alone, which \a stage shows with what belongs to it, and returns its
/// controls.
PropertyControls *addOne(Page &page, const QString &heading, const QString &explanation,
                         QWidget *widget, QWidget *stage);

/// Returns \a own and other icons, or none, for a property that names an icon.
PropertyControls::Choices icons(const PropertyControls::Choice &own);

/// Returns colour sets for a property that names one.
PropertyControls::Choices colorSets();

/// Returns the path of the gallery's icon called \a name.
QString icon(const char *name);

/// Returns that icon in black, to be coloured, for device pixel ratios 1 and 2.
QPixmap pixmap(const char *name, const QSize &size);

} // namespace WidgetCard
