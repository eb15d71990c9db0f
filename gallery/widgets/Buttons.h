// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaToggleButton.h>

/// The looks of the gallery's buttons, and buttons that have them.
namespace Buttons {

/// Returns the style text of a button with a border.
QString plain();

/// Returns the style text of a default button.
QString accent();

/// Returns the style text of a button without a background, until the pointer is over it.
QString quiet();

/// Returns the style text of a button that leaves or ends something.
QString leave();

/// Returns the style text of a button that shows whether it is checked.
QString toggle();

/// Gives \a button the font and the size policy that the looks are made for, and the plain look. A
/// click leaves the focus where it is: a focus border is for the keyboard.
void setUp(OxaPushButton &button);

/// Returns a button for an action, in the plain look.
OxaPushButton *make(const QString &text, QWidget *parent = nullptr);

/// Returns one of several buttons of which one is checked. Tab stops at that one, and the arrow
/// keys go to the others.
///
/// It has two style texts, not one with a `checked` state: in a style sheet the state of the
/// pointer wins over the checked one, and the checked button has to stay recognisable under it.
OxaToggleButton *makeChoice(const QString &text, const QString &unchecked, const QString &checked,
                            QWidget *parent);

} // namespace Buttons
