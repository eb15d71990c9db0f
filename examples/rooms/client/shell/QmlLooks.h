// SPDX-License-Identifier: Apache-2.0
#pragma once

class QQmlEngine;

/// Makes the colours, fonts and icons of this client known to the QML of \a engine as "looks":
///
/// - `colors`: those of all sets, by the set's name, and with ".hovered" and the like behind it;
/// - `fonts`: those of all tokens, by the token's name;
/// - `isRightToLeft`.
///
/// An icon is an image: "image://icons/NAME/COLOUR".
void provideLooks(QQmlEngine *engine);
