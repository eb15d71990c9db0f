// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFile>
#include <QStringList>
#include <QVector>

/// Unicode's list of emoji sequences, emoji-test.txt.
namespace EmojiTestFile {

/// A sequence of the list.
struct Entry
{
    QString status; ///< "fully-qualified", "minimally-qualified", "unqualified" or "component".
    QVector<uint> codePoints;
    QString text;
    QString stem; ///< The stem of its artwork's file name.
};

/// Returns the whole file.
inline QByteArray content()
{
    QFile file(QStringLiteral(EMOJI_TEST_FILE));
    if (!file.open(QFile::ReadOnly))
        qFatal("Cannot read %s, which is in Debian's unicode-data.", EMOJI_TEST_FILE);
    return file.readAll();
}

/// Returns the sequence of \a line: "1F44D 1F3FB ; fully-qualified # ...".
inline Entry entryOf(const QString &line)
{
    Entry entry;
    entry.status = line.section(QLatin1Char(';'), 1).section(QLatin1Char('#'), 0, 0).trimmed();
    QStringList names;
    const QString codes = line.section(QLatin1Char(';'), 0, 0).simplified();
    for (const QString &code : codes.split(QLatin1Char(' '))) {
        entry.codePoints += code.toUInt(nullptr, 16);
        names += (code.size() == 2 ? QLatin1String("00") + code : code).toLower();
    }
    entry.text = QString::fromUcs4(entry.codePoints.constData(), entry.codePoints.size());
    entry.stem = names.join(QLatin1Char('-'));
    return entry;
}

/// Returns all sequences of the file.
inline QVector<Entry> entries()
{
    QVector<Entry> found;
    const QStringList lines = QString::fromUtf8(content()).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (!line.startsWith(QLatin1Char('#')) && line.contains(QLatin1Char(';')))
            found += entryOf(line);
    }
    return found;
}

/// Returns the stems of \a entries, each of them once.
inline QStringList stemsOf(const QVector<Entry> &entries)
{
    QStringList stems;
    for (const Entry &entry : entries)
        stems += entry.stem;
    stems.removeDuplicates();
    return stems;
}

} // namespace EmojiTestFile
