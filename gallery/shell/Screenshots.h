// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

/// Pictures of the gallery.
namespace Screenshots {

/// Writes a picture of the whole of each of \a pages into \a folder, in each appearance, in both
/// directions, at one and at two device pixels to the pixel, and prints the files. Where that
/// fails, \a problem tells why.
bool take(const QStringList &pages, const QString &folder, QString &problem);

} // namespace Screenshots
