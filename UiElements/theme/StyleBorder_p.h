// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaCSSData.h>

/// The border of a style text: its sides, their width and the radius of its corners.
namespace StyleBorder {

/// Removes the border directives from \a sheet, fills the border fields of \a data, whose set names
/// are already known, and inserts the border's rule for \a selector.
///
/// The rule replaces the last of the directives other than a width. Without such a directive it
/// comes first, or is left out if \a data names no set.
void expandDirectives(QString &sheet, const QString &selector, OxaCSSData &data);

/// Returns the directives that say what \a data says of the border: "$borders: all; …".
QString toDirectives(const OxaCSSData &data);

} // namespace StyleBorder
