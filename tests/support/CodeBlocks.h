// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArrayList>
#include <QFile>

/// The code in a page of docs, for tests that hold it to a source which compiles.
namespace CodeBlocks {

inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Returns the blocks of C++ in the page \a path.
inline QByteArrayList blocksOf(const QString &path)
{
    const QByteArray page = contentOf(path);
    const QByteArray opening = "\n```cpp\n";
    QByteArrayList blocks;
    for (int start = page.indexOf(opening); start >= 0; start = page.indexOf(opening, start)) {
        const int code = start + opening.size();
        start = page.indexOf("\n```", code) + 1;
        blocks += page.mid(code, start - code);
    }
    return blocks;
}

/// Returns \a source without its head, from the first include on.
inline QByteArray codeOf(const QString &source)
{
    const QByteArray content = contentOf(source);
    return content.mid(content.indexOf("#include"));
}

} // namespace CodeBlocks
