// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "looks/ColorDocuments.h"

#include <QStringList>

/// The options of the command line.
struct GalleryOptions
{
    /// What the program does after reading its options.
    enum class Task {
        ShowWindow,      ///< Open the window, on the first of `pages`.
        TakeScreenshots, ///< Write pictures of `pages` to `screenshotFolder`.
        ListPages,       ///< Print the names of the pages.
        PrintHelp,       ///< Print `message`, and succeed.
        Fail,            ///< Print `message` as an error, and fail.
    };

    Task task = Task::ShowWindow;
    QStringList pages;        ///< Names of the pages asked for: one of them, or all.
    QString screenshotFolder; ///< The folder for pictures.
    QString artworkFolder = defaultArtworkFolder(); ///< The folder of downloaded pictures.
    QString message;                                ///< The text to print, for tasks that print.
    DocumentPaths documents; ///< The colour documents; the gallery's own by default.

    /// Returns the folder that ./dev artwork fills, which need not exist.
    static QString defaultArtworkFolder();

    /// Reads \a arguments, of which the first is the program. Needs an application object.
    static GalleryOptions parse(const QStringList &arguments);

    /// Lets runs without a window do without a display. Must be called before the application
    /// object is made. Respects a platform that the user chose.
    static void preparePlatform(int argc, const char *const *argv);
};
