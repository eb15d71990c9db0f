// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QString>

/// The application's emoji files, and what is remembered of them for the process. GUI thread only.
namespace EmojiArtwork {

/// Has the files looked at again that are asked for from now on, for a text that begins. The first
/// 64 are: if one of them has changed, nothing is remembered of the others either.
void beginText();

/// Returns the path of the artwork called \a stem, or an empty text where there is no valid file.
/// Only what was found is remembered, so that the application may add artwork at any time.
QString pathOf(const QString &stem);

/// Returns the artwork at \a path as a square of \a edge pixels; fully transparent where there is
/// no valid file.
QImage picture(const QString &path, int edge);

} // namespace EmojiArtwork
