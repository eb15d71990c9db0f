// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/ColorSets.h"
#include "support/StyleRecords.h"

#include <UiElements/theme/OxaThemeUtils.h>

/// The store and the selector "#bar" that the tests of the style language share.
namespace StyleTexts {

/// Returns a store of "x", which differs in hovered only, "y", which has one colour, and "states",
/// which has six.
inline OxaColorSetMap store()
{
    return ColorSets::storeOf({
            ColorSets::make(QStringLiteral("x"), { "#112233", "#445566" }),
            ColorSets::make(QStringLiteral("y"), { "#778899" }),
            ColorSets::make(QStringLiteral("states"),
                            { "#000001", "#000002", "#000003", "#000004", "#000005", "#000006" }),
    });
}

/// Returns store() with \a sets added.
inline OxaColorSetMap storeWith(std::initializer_list<OxaColorSet> sets)
{
    OxaColorSetMap all = store();
    for (const OxaColorSet &set : sets)
        all.emplace(set.name.toStdString(), set);
    return all;
}

inline OxaThemeUtils::CSSParserResult parse(const QString &styleText,
                                            const OxaColorSetMap &colorSets = store())
{
    return OxaThemeUtils::parseCSS(QStringLiteral("#bar"), styleText, colorSets);
}

inline QString sheetOf(const QString &styleText, const OxaColorSetMap &colorSets = store())
{
    return parse(styleText, colorSets).expandedStyleSheet;
}

} // namespace StyleTexts
