// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeUtils.h>

/// The style language a second time, step by step, by regular expressions and replacement and
/// without a thought of speed: what the library is held against, for its results and for its time.
///
/// It shares the value records and OxaColorSet with the library, and nothing of its scanner.
namespace NaiveStyleText {

/// Replaces the colour references of \a text, as OxaThemeUtils::parseCSS() does at first.
QString substituteReferences(const QString &text, const OxaColorSetMap &colorSets);

/// Does what OxaThemeUtils::parseCSS() does.
OxaThemeUtils::CSSParserResult parse(const QString &selector, const QString &text,
                                     const OxaColorSetMap &colorSets);

/// Does what OxaThemeUtils::convertToOxaCSS() does.
QString toStyleText(OxaCSSData data);

} // namespace NaiveStyleText
