// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeUtils.h>

#include <QPalette>

/// Returns the palette, made from the colour sets of \a themeType, for what Qt itself paints.
QPalette themePalette(OxaThemeUtils::AppThemeType themeType);
