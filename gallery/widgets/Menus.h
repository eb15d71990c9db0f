// SPDX-License-Identifier: Apache-2.0
#pragma once

class OxaMenu;
class QAction;
class QMenu;
class QWidget;

/// The gallery's menus, which look like the context menus of fields.
namespace Menus {

/// Returns a menu that is a child of \a parent.
OxaMenu *make(QWidget *parent);

/// Returns a menu with the actions of \a other.
OxaMenu *makeCopy(QMenu *other, QWidget *parent);

/// Gives \a action of \a menu the icon called \a name, in the colours of the menu's text.
void setIcon(QAction *action, OxaMenu *menu, const char *name);

/// Opens \a menu below \a button, at the side where the button's text begins.
void openBelow(OxaMenu *menu, const QWidget *button);

} // namespace Menus
