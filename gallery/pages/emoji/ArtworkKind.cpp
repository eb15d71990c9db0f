// SPDX-License-Identifier: Apache-2.0
#include "ArtworkKind.h"

#include <UiElements/emoji/EmojiTextConverter.h>

#include <QStringList>

#include <algorithm>

QString emojiOfStem(const QString &stem)
{
    QVector<uint> codePoints;
    const QStringList names = stem.split(QLatin1Char('-'));
    for (const QString &name : names) {
        bool isNumber = false;
        codePoints += name.toUInt(&isNumber, 16);
        if (!isNumber)
            return {};
    }
    return QString::fromUcs4(codePoints.constData(), codePoints.size());
}

ArtworkKind artworkKindOf(const QString &emoji)
{
    const auto codePoints = emoji.toUcs4();
    const auto has = [&codePoints](EmojiCharType type) {
        return std::any_of(codePoints.begin(), codePoints.end(), [type](uint codePoint) {
            return EmojiTextConverter::charType(codePoint) == type;
        });
    };
    if (has(EmojiCharType::TagCharacter))
        return ArtworkKind::Region;
    if (has(EmojiCharType::RegionalIndicator))
        return ArtworkKind::Flag;
    if (has(EmojiCharType::Keycap))
        return ArtworkKind::Keycap;
    if (has(EmojiCharType::Joiner))
        return ArtworkKind::Joined;
    return has(EmojiCharType::SkinTone) ? ArtworkKind::SkinTone : ArtworkKind::Single;
}
