// SPDX-License-Identifier: Apache-2.0
#include "EmojiBaseRanges_p.h"
#include "EmojiCharTypes_p.h"

namespace {

using Table = std::array<EmojiCharType, EmojiCharTypes::tableEnd>;

constexpr Table makeTable()
{
    Table types {};
    for (uint digit = '0'; digit <= '9'; ++digit)
        types[digit] = EmojiCharType::KeycapBase;
    types['#'] = EmojiCharType::KeycapBase;
    types['*'] = EmojiCharType::KeycapBase;
    types[0x200D] = EmojiCharType::Joiner;
    types[0x20E3] = EmojiCharType::Keycap;
    types[0x2640] = EmojiCharType::GenderSign;
    types[0x2642] = EmojiCharType::GenderSign;
    // Last, so that the gender signs become emoji, which they also are by themselves.
    for (const CodePointRange &range : emojiBaseRanges) {
        for (char32_t codePoint = range.first; codePoint <= range.last; ++codePoint)
            types[codePoint] = EmojiCharType::Base;
    }
    return types;
}

constexpr bool isWithin(uint codePoint, uint first, uint last)
{
    return codePoint >= first && codePoint <= last;
}

EmojiCharType typeOfPictograph(uint codePoint)
{
    if (isWithin(codePoint, 0x1F3FB, 0x1F3FF))
        return EmojiCharType::SkinTone;
    if (isWithin(codePoint, 0x1F9B0, 0x1F9B3))
        return EmojiCharType::HairComponent;
    if (isWithin(codePoint, 0x1F1E6, 0x1F1FF))
        return EmojiCharType::RegionalIndicator;
    if (codePoint == 0x1F3F4)
        return EmojiCharType::BlackFlag;
    return EmojiCharType::Base;
}

} // namespace

constexpr Table EmojiCharTypes::table = makeTable();

EmojiCharType EmojiCharTypes::typeOfHigh(uint codePoint)
{
    if (isWithin(codePoint, 0x1F000, 0x1FFFD))
        return typeOfPictograph(codePoint);
    if (codePoint == 0xFE0F)
        return EmojiCharType::VariationSelector;
    if (isWithin(codePoint, 0xE0030, 0xE0039) || isWithin(codePoint, 0xE0061, 0xE007A))
        return EmojiCharType::TagCharacter;
    return EmojiCharType::Other;
}
