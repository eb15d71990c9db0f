// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QWidget;

/// Logs which widget lacks colours. The warnings about missing colours don't say: they come from
/// functions that don't know the widget. The category "uielements.theme" is off by default.
namespace MissingColors {

/// Logs that the set called \a name does not exist for \a widget.
void tell(const QString &name, const QWidget *widget);

/// Logs what is left of \a widget's style text in its \a sheet because it can't be expanded.
void tellOfLeftovers(const QString &sheet, const QWidget *widget);

} // namespace MissingColors
