// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// What kind of sequence a piece of artwork is for.
enum class ArtworkKind { Single, SkinTone, Joined, Keycap, Flag, Region };

/// Returns the text of the emoji whose artwork is called \a stem; empty when it is no such name.
QString emojiOfStem(const QString &stem);

/// Returns the kind of \a emoji, the text of one sequence.
ArtworkKind artworkKindOf(const QString &emoji);
