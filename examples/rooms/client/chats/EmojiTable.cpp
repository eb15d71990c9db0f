// SPDX-License-Identifier: Apache-2.0
#include "EmojiTable.h"

#include <UiElements/emoji/EmojiTextConverter.h>
#include <UiElements/fonts/FontUtils.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSet>

namespace {

QSet<QString> artworkStems()
{
    QSet<QString> stems;
    const QStringList files = QDir(QStringLiteral(":/emojis")).entryList();
    for (const QString &file : files)
        stems += file.section(QLatin1Char('.'), 0, 0);
    return stems;
}

bool isInFont(const QString &text, const QFontMetrics &metrics)
{
    const QVector<uint> points = text.toUcs4();
    const bool isSingle = points.size() == 1 || (points.size() == 2 && points.at(1) == 0xFE0F);
    return isSingle && metrics.inFontUcs4(points.first());
}

QString stemOf(const QString &text) { return EmojiTextConverter::sequences(text).value(0).stem; }

/// Reads "1F600 ; fully-qualified # 😀 E1.0 grinning face".
Emoji fromLine(const QString &line)
{
    if (!line.contains(QLatin1String("; fully-qualified")))
        return {};
    const QString comment = line.section(QLatin1Char('#'), 1).trimmed();
    return { comment.section(QLatin1Char(' '), 0, 0), comment.section(QLatin1Char(' '), 2), {} };
}

QVector<Emoji> read()
{
    const QSet<QString> stems = artworkStems();
    const QFontMetrics metrics = FontUtils::fontMetrics(OxaFont::Token::Title);
    QFile file(QStringLiteral("/usr/share/unicode/emoji/emoji-test.txt"));
    QVector<Emoji> emojis;
    QString group;
    const bool isOpen = file.open(QIODevice::ReadOnly);
    while (isOpen && !file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine());
        if (line.startsWith(QLatin1String("# group: ")))
            group = line.mid(9).trimmed();
        Emoji emoji = fromLine(line);
        emoji.group = group;
        // Skin tones would be five rows of each hand.
        if (!emoji.text.isEmpty() && !emoji.name.contains(QLatin1String("skin tone"))
            && (stems.contains(stemOf(emoji.text)) || isInFont(emoji.text, metrics)))
            emojis += emoji;
    }
    return emojis;
}

/// The emoji of the artwork, by their file names.
QVector<Emoji> fromArtwork()
{
    QVector<Emoji> emojis;
    const QSet<QString> stems = artworkStems();
    for (const QString &stem : stems) {
        QVector<uint> points;
        const QStringList numbers = stem.split(QLatin1Char('-'));
        for (const QString &number : numbers)
            points += number.toUInt(nullptr, 16);
        emojis += { QString::fromUcs4(points.constData(), points.size()), stem,
                    QCoreApplication::translate("EmojiTable", "Emoji") };
    }
    return emojis;
}

} // namespace

const QVector<Emoji> &EmojiTable::all()
{
    static const QVector<Emoji> emojis = [] {
        const QVector<Emoji> listed = read();
        return listed.isEmpty() ? fromArtwork() : listed;
    }();
    return emojis;
}
