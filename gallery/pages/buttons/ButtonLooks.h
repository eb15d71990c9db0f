// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class OxaPushButton;

/// The looks that the buttons of this page come in.
namespace ButtonLooks {

/// Returns the style text of a button with a border.
QString plain();

/// Returns the style text of the button that a dialog suggests.
QString accent();

/// Returns the style text of a button without a ground, until the pointer is over it.
QString quiet();

/// Returns the style text of a button that ends something.
QString leave();

/// Returns the style text of a button that shows whether it is checked.
QString toggle();

/// Returns the style text of a button whose ground is the same when it is checked, so that icons of
/// any colour stand out from it.
QString steady();

/// Gives \a button the font and the height that the looks are made for, and the plain look.
void apply(OxaPushButton &button);

} // namespace ButtonLooks
