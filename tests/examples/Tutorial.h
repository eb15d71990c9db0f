// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDirIterator>
#include <QFile>
#include <QVector>

/// A page that goes through an example, and quotes it.
namespace Tutorial {

inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Returns the code blocks of the page \a path that show the example, without shell commands.
inline QVector<QByteArray> quotedBlocks(const QString &path)
{
    QVector<QByteArray> blocks;
    const QByteArray tutorial = contentOf(path);
    constexpr char fence[] = "\n```";
    for (int start = tutorial.indexOf(fence); start >= 0; start = tutorial.indexOf(fence, start)) {
        const int code = tutorial.indexOf('\n', start + 1) + 1;
        const int end = tutorial.indexOf(fence, code - 1) + 1;
        if (!tutorial.mid(start).startsWith("\n```sh\n"))
            blocks.append(tutorial.mid(code, end - code));
        start = tutorial.indexOf('\n', end);
    }
    return blocks;
}

/// Returns all files of the example in \a folder as one text.
inline QByteArray filesOf(const QString &folder)
{
    QByteArray example;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        example += contentOf(files.next());
    return example;
}

} // namespace Tutorial
