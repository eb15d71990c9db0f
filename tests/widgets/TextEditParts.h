// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/ColorSets.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>

/// What the tests of text edits and text browsers share.
namespace TextEditParts {

/// Returns a store of the sets that context menus name, all in \a color.
inline OxaColorSetMap menuStore(const char *color)
{
    OxaColorSetMap store;
    for (const char *name : { "menulistbackground-secondary-background", "listitem-textprimary",
                              "listitem-background", "separator-primary" })
        store.emplace(name, ColorSets::make(QString::fromLatin1(name), { color }));
    return store;
}

/// Asks \a widget for a context menu at \a position in it, as a user does.
inline void askForMenu(QWidget &widget, const QPoint &position)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, widget.mapToGlobal(position));
    QCoreApplication::sendEvent(&widget, &event);
}

/// Returns the menu that is open, or null.
inline QMenu *openMenu() { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }

/// Asks \a widget for a context menu, and returns the one that opens.
inline QMenu *menuOf(QWidget &widget, const QPoint &position = QPoint(5, 5))
{
    QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
    QTest::ignoreMessage(QtWarningMsg, "This plugin does not support grabbing the keyboard");
    askForMenu(widget, position);
    return openMenu();
}

} // namespace TextEditParts
