// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// The artwork of the gallery's emoji.
namespace EmojiFiles {

/// Takes the artwork from the file "emojis.rcc" in \a folder, where there is one, instead of the
/// few emoji that the gallery brings along: drawings of two kinds don't go together.
void load(const QString &folder);

} // namespace EmojiFiles
