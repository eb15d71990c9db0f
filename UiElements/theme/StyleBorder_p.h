// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaCSSData.h>

/// The border half of the style language, as functions on values.
namespace StyleBorder {

constexpr char bordersTag[] = "$borders:";
constexpr char radiusTag[] = "$borderRadius:";
constexpr char widthTag[] = "$borderWidth:";

/// Takes the border directives out of \a text and fills the border fields of \a data, whose set
/// names are known already. Returns where the border rule belongs, or -1 when there is none.
int readDirectives(QString &text, OxaCSSData &data);

/// Returns the declarations of the border of \a data: "border-style:solid; …".
QString toStyleSheet(const OxaCSSData &data);

/// Returns the directives that say what \a data says of the border: "$borders: all; …".
QString toDirectives(const OxaCSSData &data);

} // namespace StyleBorder
