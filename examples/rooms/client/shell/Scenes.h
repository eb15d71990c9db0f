// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDir>
#include <QVector>

#include <functional>

class Backend;
class MainWindow;

/// Takes pictures of the client in ten scenes, also without a display.
class Scenes
{
public:
    /// Takes them of \a window, which shows \a backend, into \a folder. \a stopServer ends the
    /// server for the last one.
    Scenes(MainWindow *window, Backend *backend, const QString &folder,
           std::function<void()> stopServer);

    /// Takes all; false with a warning if one of them could not be shown or written.
    bool takeAll();

private:
    struct Scene
    {
        const char *name;
        std::function<bool()> show; ///< False if there is not what the scene is to show.
    };

    QVector<Scene> scenes();
    bool take(const Scene &scene);
    bool showConversation(bool isLong);
    bool scrollUp();
    bool search(const QString &text);
    bool click(const QString &button);

    MainWindow *const m_window;
    Backend *const m_backend;
    const QDir m_folder;
    const std::function<void()> m_stopServer;
};
