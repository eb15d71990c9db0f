// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QIcon>
#include <QString>

/// Functions that ask the application object, and that may be called without one.
namespace AppUtils {

/// Returns the path of the application's SVG logo; empty without an OxaApplication.
UIELEMENTS_EXPORT QString getAppSvgIconPath();

/// Returns the path of the application's PNG logo; empty without an OxaApplication.
UIELEMENTS_EXPORT QString getAppPngIconPath();

/// Returns the icon for a dialog's title bar: with \a transparent a fully transparent one of 32 by
/// 32 pixels, otherwise the application's PNG logo, which is a null icon as long as no logo is set.
UIELEMENTS_EXPORT QIcon getDialogIcon(bool transparent);

/// True when the layout direction is right to left and the application is an OxaApplication.
/// Without one it is false in either direction.
UIELEMENTS_EXPORT bool isRTLLayoutDirection();

} // namespace AppUtils
