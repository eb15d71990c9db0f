// SPDX-License-Identifier: Apache-2.0
#include "EmojiTable.h"

#include "protocol/Literal.h"

#include <UiElements/emoji/EmojiTextConverter.h>
#include <UiElements/fonts/FontUtils.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSet>
#include <QStandardItemModel>

namespace {

QSet<QString> artworkStems()
{
    QSet<QString> stems;
    const QStringList files = QDir(u":/emojis"_s).entryList();
    for (const QString &file : files)
        stems += file.section(u'.', 0, 0);
    return stems;
}

bool isInFont(const QString &text, const QFontMetrics &metrics)
{
    const QVector<uint> points = text.toUcs4();
    const bool isSingle = points.size() == 1 || (points.size() == 2 && points.at(1) == 0xFE0F);
    return isSingle && metrics.inFontUcs4(points.first());
}

QString stemOf(const QString &text) { return EmojiTextConverter::sequences(text).value(0).stem; }

void add(QStandardItemModel *emojis, const QString &text, const QString &name, const QString &group)
{
    auto *item = new QStandardItem(text);
    item->setToolTip(name);
    item->setData(name, Qt::AccessibleTextRole);
    item->setData(group, EmojiTable::GroupRole);
    item->setEditable(false);
    emojis->appendRow(item);
}

/// Reads lines as "1F600 ; fully-qualified # 😀 E1.0 grinning face".
void addListed(QStandardItemModel *emojis)
{
    const QSet<QString> stems = artworkStems();
    const QFontMetrics metrics = FontUtils::fontMetrics(OxaFont::Token::Title);
    QFile file(u"/usr/share/unicode/emoji/emoji-test.txt"_s);
    QString group;
    const bool isOpen = file.open(QIODevice::ReadOnly);
    while (isOpen && !file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine());
        if (line.startsWith(u"# group: "_s))
            group = line.mid(9).trimmed();
        if (!line.contains(u"; fully-qualified"_s) || line.contains(u"skin tone"_s))
            continue; // Skin tones would be five rows of each hand.
        const QString comment = line.section(u'#', 1).trimmed();
        const QString text = comment.section(u' ', 0, 0);
        if (stems.contains(stemOf(text)) || isInFont(text, metrics))
            add(emojis, text, comment.section(u' ', 2), group);
    }
}

/// Adds the emoji of the artwork, by their file names.
void addArtwork(QStandardItemModel *emojis)
{
    const QSet<QString> stems = artworkStems();
    for (const QString &stem : stems) {
        QVector<uint> points;
        const QStringList numbers = stem.split(u'-');
        for (const QString &number : numbers)
            points += number.toUInt(nullptr, 16);
        add(emojis, QString::fromUcs4(points.constData(), points.size()), stem,
            QCoreApplication::translate("EmojiTable", "Emoji"));
    }
}

} // namespace

QStandardItemModel *EmojiTable::model()
{
    static auto *const emojis = new QStandardItemModel(QCoreApplication::instance());
    if (emojis->rowCount() == 0)
        addListed(emojis);
    if (emojis->rowCount() == 0)
        addArtwork(emojis);
    return emojis;
}
