// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>
#include <QTemporaryDir>

/// Provides emoji files under ":/emojis/" while it exists.
class EmojiArtwork
{
    Q_DISABLE_COPY_MOVE(EmojiArtwork)

public:
    /// Makes a file "STEM.svg" with \a svg for each of \a stems.
    explicit EmojiArtwork(const QStringList &stems, const QByteArray &svg = square("#ff0000"));
    ~EmojiArtwork();

    /// Returns a picture that is filled with \a color.
    static QByteArray square(const QByteArray &color);

private:
    QTemporaryDir m_folder;
};
