// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Qt>

class QStandardItemModel;

namespace EmojiTable {

/// The group of an emoji. Its name is its tool tip.
enum Role { GroupRole = Qt::UserRole + 1 };

/// All emoji that there is artwork for or that the font has, in the order of Unicode's list. Read
/// once. Without that list, those of the artwork.
QStandardItemModel *model();

} // namespace EmojiTable
