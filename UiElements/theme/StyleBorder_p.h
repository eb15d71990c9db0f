// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaCSSData.h>

class StyleDraft;

/// The border half of the style language, as functions on values.
namespace StyleBorder {

constexpr QStringView bordersTag = u"$borders:";
constexpr QStringView radiusTag = u"$borderRadius:";
constexpr QStringView widthTag = u"$borderWidth:";

/// Takes the border directives out of \a draft, whose rules begin with \a selector, and fills the
/// border fields of \a data, whose set names are known already. Returns where the border rule
/// belongs, or -1 when there is none.
int readDirectives(StyleDraft &draft, const QString &selector, OxaCSSData &data);

/// Returns the rule of the border of \a data: "selector{border-style:solid; …}".
QString toRule(const QString &selector, const OxaCSSData &data);

/// Returns the directives that say what \a data says of the border: "$borders: all; …".
QString toDirectives(const OxaCSSData &data);

} // namespace StyleBorder
