// SPDX-License-Identifier: Apache-2.0
#pragma once

/// What assistive technology hears while a text is masked.
///
/// Qt reports what is typed into a line edit, removed from it or set, in clear also where the text
/// is masked, although whoever asks for the text gets stars. There is no other place to change
/// that than the one handler that a process has for all such reports.
namespace MaskedUpdates {

/// From the first call on, reports about a masked OxaLineEdit say stars, and those about one that
/// shows nothing are empty. All others go on as they are, to the handler that was installed before.
/// A handler that is installed later gets everything in clear.
void ensureInstalled();

} // namespace MaskedUpdates
