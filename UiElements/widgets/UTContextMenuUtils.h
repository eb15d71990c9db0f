// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QString>

class QMenu;

/// What context menus have in common.
namespace UTContextMenuUtils {

/// Returns the style text of context menus, to go through OxaThemeUtils::parseCSS(). It names the
/// sets "menulistbackground-secondary-background", "listitem-textprimary", "listitem-background"
/// and "separator-primary".
UIELEMENTS_EXPORT QString getContextMenuStyleSheet();

/// Moves the top edge of \a menu up where its screen does not contain the whole menu, on any of the
/// four sides; the bottom edge stays, so that the menu becomes higher. Does nothing for null, or
/// where no screen is under the menu's centre.
UIELEMENTS_EXPORT void updateYPositionOnScreen(QMenu *menu);

} // namespace UTContextMenuUtils
