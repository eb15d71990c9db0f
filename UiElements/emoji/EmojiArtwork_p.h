// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QString>

/// The application's emoji files, and what the process remembers of them. GUI thread only.
namespace EmojiArtwork {

/// Begins a text. The first 64 files that it asks for are checked again; if one has changed, the
/// others are forgotten too.
void beginText();

/// Returns the path of the artwork called \a stem, or an empty text if there is no valid file. Only
/// files that were found are remembered, so that the application may add artwork at any time.
QString pathOf(const QString &stem);

/// Returns the artwork at \a path as a square of \a edge pixels; fully transparent if there is no
/// valid file.
QImage picture(const QString &path, int edge);

} // namespace EmojiArtwork
