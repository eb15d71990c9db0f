// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QWidget;

/// Tells which widget lacks colours. The warnings of the same matter don't say: they come from
/// functions that know no widgets. The category "uielements.theme" is off unless somebody asks for
/// it.
namespace MissingColors {

/// Tells that the set called \a name does not exist for \a widget.
void tell(const QString &name, const QWidget *widget);

/// Tells of what is left of \a widget's style text in its \a sheet because it can't be expanded.
void tellOfLeftovers(const QString &sheet, const QWidget *widget);

} // namespace MissingColors
