// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <functional>

class QKeyEvent;
class QLayout;
class QObject;
class QWidget;

/// Keyboard focus for widgets that are made of others: how to walk Qt's focus chain past what a
/// layout holds, find the items of a layout that take the focus, and chain them in its order.
///
/// GUI thread only; the functions keep no state. A null widget, layout or chain gives null, false
/// or -1, and changes nothing.
namespace TabOrderUtils {

/// Takes the focus away from the widget that has it.
UIELEMENTS_EXPORT void clearFocus();

/// True when \a widget is visible, enabled, and takes the focus by Tab.
UIELEMENTS_EXPORT bool isTabFocusable(QWidget *widget);

/// Returns the last of the focus proxies that \a widget leads to; null when it has none.
UIELEMENTS_EXPORT QWidget *deepestFocusProxy(QWidget *widget);

// The focus chain

/// True when \a widget is one to stop at on the way through the focus chain, forward with \a next.
///
/// Items of \a layout, which may be null, are not: they are for the owner of the layout. Of a
/// compound widget and the proxy inside it, one counts in each direction.
UIELEMENTS_EXPORT bool shouldFocusNextWidget(QWidget *widget, bool next, QLayout *layout);

/// Returns the widget to stop at after \a widget, or with \a next false before it. Null when there
/// is none in one trip round the chain.
UIELEMENTS_EXPORT QWidget *getNextPrevFocusableWidget(QWidget *widget, bool next, QLayout *layout);

/// Gives the focus to that widget, for the reason of Tab or Backtab. False when there is none. For
/// an override of QWidget::focusNextPrevChild() in the owner of \a layout.
UIELEMENTS_EXPORT bool focusNextPrevChild(bool next, QWidget *widget, QLayout *layout);

/// Puts the widgets of \a layout behind \a first in the tab order, in the order of the layout.
///
/// Qt chains nothing to a widget that never takes the focus: what follows one in the layout is not
/// chained to what stands before it.
UIELEMENTS_EXPORT void fixFocusChainFromLayout(QWidget *first, QLayout *layout);

/// Does the same and puts \a last behind them. Does nothing when an argument is null or the layout
/// has nothing to show.
UIELEMENTS_EXPORT void setCompoundTabOrder(QWidget *first, QLayout *layout, QWidget *last);

// The items of a layout

/// Returns the index of the item of \a layout that has the focus; -1 when none has.
UIELEMENTS_EXPORT int getItemFocusIndexInLayout(QLayout *layout);

/// Returns the index of the next item after it that takes the focus by Tab, from the first one when
/// none has the focus. It is -1 at the end: there is no wrapping around.
UIELEMENTS_EXPORT int getNextFocusableItemFocusIndexInLayout(QLayout *layout);

/// Returns the index of the one before it, from the last one when none has the focus; -1 at the
/// start.
UIELEMENTS_EXPORT int getPreviousFocusableItemFocusInLayout(QLayout *layout);

/// Returns the first widget in \a layout that passes \a predicate, or with \a fromEnd the last one.
/// The predicate is called with null for an item without a widget. Null when none passes, and when
/// the layout has nothing to show.
UIELEMENTS_EXPORT QWidget *getFirstItemInLayoutIf(QLayout *layout,
                                                  std::function<bool(QWidget *)> predicate,
                                                  bool fromEnd);

/// Returns the first widget in \a layout that takes the focus by Tab, or with \a fromEnd the last.
UIELEMENTS_EXPORT QWidget *getFirstFocusableItemInLayout(QLayout *layout, bool fromEnd);

// Who has the focus

/// True when \a widget or one inside it has the focus.
UIELEMENTS_EXPORT bool hasDeepFocus(QWidget *widget);

/// True when \a widget is \a ancestor or inside it, also across windows.
UIELEMENTS_EXPORT bool isAncestorOfParent(const QWidget *ancestor, const QWidget *widget);

// Arrow keys

/// True when the arrow key of \a event is to be kept from moving the focus out of \a object, which
/// is what Qt's buttons do with it.
///
/// Other keys never are. Lists, trees, combo boxes, radio buttons, line edits, sliders and QML
/// views use their arrow keys themselves. For an OxaPushButton it depends on its accelerator type:
/// 1 and 3 keep left and right, 2 and 4 up and down, 5 all of them. For anything else the key is
/// taken away.
UIELEMENTS_EXPORT bool removeArrowKeyTabbingFromSpecificWidgets(QObject *object, QKeyEvent *event);

} // namespace TabOrderUtils
