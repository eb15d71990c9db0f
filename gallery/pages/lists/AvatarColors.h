// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// The colour sets of the circles that stand for people.
namespace AvatarColors {

int count();

/// Returns the name of the set at \a index; any index that is not negative has one.
QString setName(int index);

} // namespace AvatarColors
