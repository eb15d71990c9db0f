// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// How the library paints an SVG file, and why: users ask first why an icon does not take the
/// theme's colour.
struct IconDiagnosis
{
    /// The visible result.
    enum class Outcome {
        TakesColor,    ///< All of it is painted in the state's colour.
        TakesSome,     ///< Some of it is; the rest keeps its own colours.
        KeepsColors,   ///< It keeps the file's colours.
        Animated,      ///< It keeps the file's colours, and is animated.
        PaintsNothing, ///< Nothing is visible.
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
    QString advice; ///< How to make the file take the colour; may be empty.

    /// Returns the diagnosis of the file at \a path. Logs no warning: Qt's message about
    /// an unreadable file becomes the reason.
    static IconDiagnosis of(const QString &path);

    /// Returns the outcome in a few words.
    QString title() const;

    /// Returns the painter in a few words.
    QString painterText() const;
};
