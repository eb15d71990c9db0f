// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QColor>
#include <QSize>
#include <QtEndian>

#include <vector>

/// GIF images of plain frames.
namespace GifFiles {

constexpr int endless = -1; ///< As QMovie::loopCount() has it.

/// A GIF image: one frame for each colour.
struct Gif
{
    std::vector<QColor> frames;
    QSize size { 16, 16 };
    int delayMs = 20; ///< A multiple of ten.
    int loops = 0;    ///< How often the image repeats, or endless.
};

inline QByteArray word(int value)
{
    char bytes[2];
    qToLittleEndian(quint16(value), bytes);
    return QByteArray(bytes, 2);
}

/// Returns \a count pixels of the table's colour \a index, coded without compression.
inline QByteArray pixels(int count, char index)
{
    constexpr char bits = 7; // So that each code is a byte until the decoder has learned 126 codes.
    constexpr char clear = char(1 << bits);
    QByteArray codes;
    for (; count > 0; count -= 126)
        codes += clear + QByteArray(qMin(count, 126), index);
    codes += char(clear + 1);

    QByteArray blocks(1, bits);
    for (int i = 0; i < codes.size(); i += 255) {
        const QByteArray block = codes.mid(i, 255);
        blocks += char(block.size()) + block;
    }
    return blocks + '\0';
}

/// Returns the file of \a gif.
inline QByteArray bytes(const Gif &gif)
{
    const QByteArray screen = word(gif.size.width()) + word(gif.size.height());
    QByteArray table(3 * 128, '\0');
    for (std::size_t i = 0; i < gif.frames.size(); ++i) {
        table[3 * int(i)] = char(gif.frames[i].red());
        table[3 * int(i) + 1] = char(gif.frames[i].green());
        table[3 * int(i) + 2] = char(gif.frames[i].blue());
    }
    QByteArray file = "GIF89a" + screen + QByteArray("\xf6\0\0", 3) + table;
    if (gif.loops != 0)
        file += QByteArray("\x21\xff\x0bNETSCAPE2.0\x03\x01", 16)
                + word(gif.loops == endless ? 0 : gif.loops) + '\0';
    for (std::size_t i = 0; i < gif.frames.size(); ++i)
        file += QByteArray("\x21\xf9\x04\x04", 4) + word(gif.delayMs / 10) + QByteArray(2, '\0')
                + ',' + word(0) + word(0) + screen + '\0'
                + pixels(gif.size.width() * gif.size.height(), char(i));
    return file + ';';
}

} // namespace GifFiles
