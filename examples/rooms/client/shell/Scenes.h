// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <functional>

class Backend;
class MainWindow;

/// Takes pictures of \a window, which shows \a backend, in ten scenes into \a folder, also without
/// a display. \a stopServer ends the server for the last one. False with a warning if one of them
/// could not be shown or written.
bool takeScenes(MainWindow *window, Backend *backend, const QString &folder,
                const std::function<void()> &stopServer);
