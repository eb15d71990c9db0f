// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// The artwork of the gallery's emoji.
namespace EmojiFiles {

/// Takes the artwork from the file "emojis.rcc" in \a folder, if there is one, instead of the
/// gallery's own few emoji: two styles of drawing do not go together.
void load(const QString &folder);

} // namespace EmojiFiles
