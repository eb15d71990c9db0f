// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// The gallery's animated images, which tools/draw-movies draws.
namespace MovieFiles {

/// Returns the path of the movie called \a name.
inline QString path(const QString &name) { return QStringLiteral(":/movies/%1.gif").arg(name); }

const QString ball = QStringLiteral("ball");      ///< Repeats.
const QString heart = QStringLiteral("heart");    ///< Repeats.
const QString once = QStringLiteral("once");      ///< Does not repeat.
const QString waves = QStringLiteral("waves");    ///< Is larger than most widgets.
const QString cutOff = QStringLiteral("cut-off"); ///< Ends amid a frame.
const QString text = QStringLiteral("text");      ///< Is no picture.

} // namespace MovieFiles
