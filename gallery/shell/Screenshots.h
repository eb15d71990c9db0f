// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

/// Pictures of the gallery.
namespace Screenshots {

/// Writes a picture of the whole of each of \a pages into \a folder, in each appearance, in both
/// directions, at device pixel ratios 1 and 2, and prints the files. If that fails,
/// \a problem says why.
bool take(const QStringList &pages, const QString &folder, QString &problem);

} // namespace Screenshots
