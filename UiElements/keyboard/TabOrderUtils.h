// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <functional>

class QKeyEvent;
class QLayout;
class QObject;
class QWidget;

/// Keyboard focus for compound widgets: functions that walk Qt's focus chain past the items of a
/// layout, find the items that take the focus, and chain them in the layout's order.
///
/// GUI thread only; the functions keep no state. For a null widget, layout or chain they return
/// null, false or -1, and change nothing.
namespace TabOrderUtils {

/// Takes the focus away from the widget that has it.
UIELEMENTS_EXPORT void clearFocus();

/// True when \a widget is visible, enabled, and takes the focus by Tab.
UIELEMENTS_EXPORT bool isTabFocusable(QWidget *widget);

/// Returns the last widget in the chain of focus proxies of \a widget; null when it has none.
UIELEMENTS_EXPORT QWidget *deepestFocusProxy(QWidget *widget);

// The focus chain

/// True when the focus stops at \a widget on the way through the focus chain, forward with \a next.
///
/// It doesn't stop at items of \a layout, which may be null: their owner handles them. Of a
/// compound widget and the proxy inside it, one counts in each direction.
UIELEMENTS_EXPORT bool shouldFocusNextWidget(QWidget *widget, bool next, QLayout *layout);

/// Returns the widget to stop at after \a widget, or before it if \a next is false. Null if one
/// round through the chain finds none.
UIELEMENTS_EXPORT QWidget *getNextPrevFocusableWidget(QWidget *widget, bool next, QLayout *layout);

/// Gives the focus to that widget, with the reason Tab or Backtab, and scrolls it into view. False
/// if there is none. For an override of QWidget::focusNextPrevChild() in the owner of \a layout.
UIELEMENTS_EXPORT bool focusNextPrevChild(bool next, QWidget *widget, QLayout *layout);

/// Puts the widgets of \a layout after \a first in the tab order, in the order of the layout.
///
/// Qt chains nothing to a widget that never takes the focus: the widgets after one in the layout
/// are not chained to those before it.
UIELEMENTS_EXPORT void fixFocusChainFromLayout(QWidget *first, QLayout *layout);

/// Does the same and puts \a last after them. Does nothing if an argument is null or the layout has
/// nothing to show.
UIELEMENTS_EXPORT void setCompoundTabOrder(QWidget *first, QLayout *layout, QWidget *last);

// The items of a layout

/// Returns the index of the item of \a layout that has the focus; -1 when none has.
UIELEMENTS_EXPORT int getItemFocusIndexInLayout(QLayout *layout);

/// Returns the index of the next item after it that takes the focus by Tab, from the first one when
/// none has the focus; -1 at the end, without wrapping around.
UIELEMENTS_EXPORT int getNextFocusableItemFocusIndexInLayout(QLayout *layout);

/// Returns the index of the previous such item, from the last one when none has the focus; -1 at
/// the start.
UIELEMENTS_EXPORT int getPreviousFocusableItemFocusInLayout(QLayout *layout);

/// Returns the first widget in \a layout for which \a predicate is true, or with \a fromEnd the
/// last one. The predicate is called with null for an item without a widget. Null when there is no
/// such widget, and when the layout has nothing to show.
UIELEMENTS_EXPORT QWidget *getFirstItemInLayoutIf(QLayout *layout,
                                                  std::function<bool(QWidget *)> predicate,
                                                  bool fromEnd);

/// Returns the first widget in \a layout that takes the focus by Tab, or with \a fromEnd the last.
UIELEMENTS_EXPORT QWidget *getFirstFocusableItemInLayout(QLayout *layout, bool fromEnd);

// Where the focus is

/// True when \a widget or one inside it has the focus.
UIELEMENTS_EXPORT bool hasDeepFocus(QWidget *widget);

/// True when \a widget is \a ancestor or inside it, also across windows.
UIELEMENTS_EXPORT bool isAncestorOfParent(const QWidget *ancestor, const QWidget *widget);

// Arrow keys

/// True when the arrow key of \a event must be kept from moving the focus out of \a object, as it
/// does in Qt's buttons.
///
/// False for other keys, and for lists, trees, combo boxes, radio buttons, line edits, sliders and
/// QML views, which use their arrow keys themselves. For an OxaPushButton it depends on its
/// accelerator type: it is false for left and right with 1 and 3, for up and down with 2 and 4, and
/// for all of them with 5. True for anything else.
UIELEMENTS_EXPORT bool removeArrowKeyTabbingFromSpecificWidgets(QObject *object, QKeyEvent *event);

} // namespace TabOrderUtils
