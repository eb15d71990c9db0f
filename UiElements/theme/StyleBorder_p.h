// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaCSSData.h>

class StyleDraft;

/// The border half of the style language, as functions on values.
namespace StyleBorder {

/// Returns at most how much the function below writes.
int roomFor(const QString &selector);

/// Puts the rule of the border, "selector{border-style:solid; …}", in the place of the border
/// directives of \a draft, and fills the border fields of \a data, whose set names are known
/// already. Without directives the rule comes first, or not at all where there is no set either.
void expandDirectives(StyleDraft &draft, const QString &selector, OxaCSSData &data);

/// Returns the directives that say what \a data says of the border: "$borders: all; …".
QString toDirectives(const OxaCSSData &data);

} // namespace StyleBorder
