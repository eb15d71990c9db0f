// SPDX-License-Identifier: Apache-2.0
#pragma once

class QMenu;
class QPoint;
class QWidget;

/// The context menus of fields.
namespace ContextMenu {

/// Opens \a menu, which \a field made for itself, at \a globalPosition in the colours of the
/// field's theme. The menu deletes itself when it closes. Null does nothing.
void popUp(QMenu *menu, QWidget *field, const QPoint &globalPosition);

} // namespace ContextMenu
