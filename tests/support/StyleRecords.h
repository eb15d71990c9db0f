// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/ColorSets.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <QTest>

/// What a style text expands to, as short texts, so that a failing test shows all of it.
namespace StyleRecords {

/// Returns every field of \a data.
inline QString describe(const OxaCSSData &data)
{
    const auto side = [](bool on, const char *word) {
        return on ? QLatin1Char(' ') + QLatin1String(word) : QString();
    };
    return QStringLiteral("background \"%1\" border \"%2\" text \"%3\" sides%4 width %5 radius %6 "
                          "corner %7 mask %8%9 plain \"%10\"")
            .arg(data.backgroundColorSetName, data.borderColorSetName, data.textColorSetName,
                 side(data.borderTop, "top") + side(data.borderRight, "right")
                         + side(data.borderBottom, "bottom") + side(data.borderLeft, "left"),
                 QString::number(data.borderWidth), QString::number(data.borderRadius),
                 QString::number(data.radiusCorner), QString::number(data.rectangularCornerMask),
                 data.noBorder ? QStringLiteral(" noBorder") : QString())
            .arg(data.plainStyleSheet);
}

/// Returns the sheet, the sets and the record of \a result, one on each line.
inline QString describe(const OxaThemeUtils::CSSParserResult &result)
{
    return QStringList { result.expandedStyleSheet, ColorSets::describe(result.backgroundColorSet),
                         ColorSets::describe(result.borderColorSet),
                         ColorSets::describe(result.textColorSet), describe(result.oxaCSS) }
            .join(QLatin1Char('\n'));
}

} // namespace StyleRecords

namespace QTest {

template <>
inline char *toString(const OxaCSSData &data)
{
    return toString(StyleRecords::describe(data));
}

} // namespace QTest
