// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// What the library makes of an SVG file, and why: a user's first question is why an icon does not
/// take the theme's colour.
struct IconDiagnosis
{
    /// What one sees.
    enum class Outcome {
        TakesColor,    ///< All of it is painted in the state's colour.
        TakesSome,     ///< Some of it is, some keeps a colour of its own.
        KeepsColors,   ///< It keeps the file's colours.
        Animated,      ///< It keeps the file's colours, and moves.
        PaintsNothing, ///< There is nothing to see.
        Unreadable,    ///< It cannot be loaded.
    };

    /// What paints it.
    enum class Painter {
        Node,     ///< Its one top-level node, directly.
        Renderer, ///< QSvgRenderer.
        Nothing,  ///< Nothing: there is no document.
    };

    Outcome outcome = Outcome::Unreadable;
    Painter painter = Painter::Nothing;
    QString reason; ///< Why, in whole sentences.
    QString advice; ///< What to change in a file that is to take the colour; may be empty.

    /// Returns the diagnosis of the file at \a path. Logs no warning: what Qt has to say about a
    /// file that cannot be read is the reason.
    static IconDiagnosis of(const QString &path);

    /// Returns what one sees, in a few words.
    QString title() const;

    /// Returns what paints it, in a few words.
    QString painterText() const;
};
