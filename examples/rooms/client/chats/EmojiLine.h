// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>

class QPainter;

/// One elided line with emoji from artwork, for delegates.
namespace EmojiLine {

/// Paints \a text into \a rect, from where lines begin in the painter's direction, or in the
/// middle.
void paint(QPainter *painter, const QRect &rect, const QString &text, const QFont &font,
           const QColor &color, bool isCentred = false);

/// The size of an emoji among text in \a font.
int emojiSize(const QFont &font);

} // namespace EmojiLine
