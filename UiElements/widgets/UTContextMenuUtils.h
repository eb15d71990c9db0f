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

/// Moves the top edge of \a menu where its screen does not contain the whole menu, on any of the
/// four sides: to one height of the menu above the screen's bottom, but by no more than one height
/// up. The bottom edge stays, so that a menu that hangs out below becomes higher, and one that
/// hangs out elsewhere as low as it can be. Does nothing for null, or where no screen is under the
/// menu's centre.
UIELEMENTS_EXPORT void updateYPositionOnScreen(QMenu *menu);

} // namespace UTContextMenuUtils
