// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/emoji/EmojiTextConverter.h>

#include <array>

/// Classes of code points.
namespace EmojiCharTypes {

/// The first code point above the table.
constexpr uint tableEnd = 0x329A;

/// The class of each code point below tableEnd.
extern const std::array<EmojiCharType, tableEnd> table;

/// Returns the class of \a codePoint, which is above the table.
EmojiCharType typeOfHigh(uint codePoint);

/// Returns the class of \a codePoint.
inline EmojiCharType typeOf(uint codePoint)
{
    return codePoint < tableEnd ? table[codePoint] : typeOfHigh(codePoint);
}

/// Returns whether the UTF-16 unit \a unit is a complete character that is part of no sequence.
inline bool isPlain(ushort unit)
{
    if (unit < tableEnd)
        return table[unit] == EmojiCharType::Other;
    return unit != 0xFE0F && (unit < 0xD800 || unit > 0xDFFF);
}

} // namespace EmojiCharTypes
