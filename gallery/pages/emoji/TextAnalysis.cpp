// SPDX-License-Identifier: Apache-2.0
#include "TextAnalysis.h"

#include <UiElements/emoji/EmojiTextConverter.h>

#include <QCoreApplication>
#include <QStringList>

namespace {

/// The names of EmojiCharType, in its order.
constexpr const char *typeNames[] = {
    "text",
    "emoji",
    "joiner",
    "gender sign",
    "skin tone",
    "hair",
    "variation selector",
    "keycap base",
    "keycap",
    "regional indicator",
    "black flag",
    "tag",
};

QString tr(const char *text) { return QCoreApplication::translate("TextAnalysis", text); }

QString numberOf(uint codePoint)
{
    return QStringLiteral("U+%1").arg(codePoint, 4, 16, QLatin1Char('0')).toUpper();
}

} // namespace

QString TextAnalysis::codePoints(const QString &text)
{
    QStringList lines;
    const auto points = text.toUcs4();
    for (const uint codePoint : points) {
        const auto type = int(EmojiTextConverter::charType(codePoint));
        lines += QStringLiteral("%1 %2 %3")
                         .arg(numberOf(codePoint), -8)
                         .arg(type, 2)
                         .arg(QLatin1String(typeNames[type]));
    }
    return lines.join(QLatin1Char('\n'));
}

QString TextAnalysis::stems(const QString &text)
{
    QStringList lines;
    const auto sequences = EmojiTextConverter::sequences(text);
    for (const EmojiSequence &sequence : sequences) {
        EmojiTextConverter converter(1, 1.0);
        converter.convert(sequence.text);
        const bool isFound = converter.svgFiles().size() == 1;
        lines += (isFound ? tr("artwork  ") : tr("text     ")) + sequence.stem;
    }
    return lines.join(QLatin1Char('\n'));
}
