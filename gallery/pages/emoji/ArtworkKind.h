// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// The kind of sequence that a picture is for.
enum class ArtworkKind { Single, SkinTone, Joined, Keycap, Flag, Region };

/// Returns the emoji whose artwork is called \a stem; empty if that is no stem.
QString emojiOfStem(const QString &stem);

/// Returns the kind of \a emoji, the text of one sequence.
ArtworkKind artworkKindOf(const QString &emoji);
