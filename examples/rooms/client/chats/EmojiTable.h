// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QVector>

/// An emoji that this client can show.
struct Emoji
{
    QString text;
    QString name;
    QString group;
};

namespace EmojiTable {

/// All emoji that there is artwork for or that the font has, in the order of Unicode's list. Read
/// once. Without that list, those of the artwork.
const QVector<Emoji> &all();

} // namespace EmojiTable
