// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeUtils.h>

/// The widget form of OxaThemeUtils::parseCSS() for callers that know the widget's theme type: to
/// ask a widget for it by name takes as long as to expand a short style text.
namespace WidgetStyleText {

/// Expands \a styleText for \a widget, whose effective theme type is \a themeType.
OxaThemeUtils::CSSParserResult parse(QWidget *widget, OxaThemeUtils::AppThemeType themeType,
                                     const QString &styleText,
                                     const OxaColorSetMap &globalColorSets);

} // namespace WidgetStyleText
