// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaCSSData.h>

/// The border of a style text: its sides, their width and the radius of its corners.
namespace StyleBorder {

/// Takes the border directives out of \a sheet, fills the border fields of \a data, whose set names
/// are known already, and inserts the border's rule for \a selector.
///
/// The rule stands where the last of the directives stood, a width apart; without one of them it
/// comes first, or not at all where \a data names no set.
void expandDirectives(QString &sheet, const QString &selector, OxaCSSData &data);

/// Returns the directives that say what \a data says of the border: "$borders: all; …".
QString toDirectives(const OxaCSSData &data);

} // namespace StyleBorder
