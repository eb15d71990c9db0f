// SPDX-License-Identifier: Apache-2.0
#include "OxaQmlEngine.h"

#include <UiElements/app/ApplicationObject_p.h>
#include <UiElements/app/OxaApplication.h>

#include <QDebug>
#include <QDir>

namespace {

constexpr char severalPathsWarning[] =
        "QML2_IMPORT_PATH should have only one path! This should NEVER happen!";
constexpr char invalidPathWarning[] = "QML2_IMPORT_PATH is invalid! This should NEVER happen!";
constexpr char noPathWarning[] = "QML2_IMPORT_PATH isn't being set! This should NEVER happen!";

OxaQmlEngine::Factory engineFactory = nullptr;

bool existsOrWarn(const QDir &folder)
{
    if (folder.exists())
        return true;
    QMessageLogger().warning() << invalidPathWarning << "isEmpty:"
                               << folder.isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot)
                               << "isRelative:" << folder.isRelative();
    return false;
}

} // namespace

OxaQmlEngine::OxaQmlEngine(QObject *parent) : QQmlEngine(parent)
{
    qRegisterMetaType<QmlViewStatus>("QmlViewStatus");
    fixImportPath();
    const auto *app = ApplicationObject::find<OxaApplication>();
    if (app && app->getAppSignals())
        connect(app->getAppSignals(), &OxaAppSignals::reloadAllQmlViews, this,
                &OxaQmlEngine::reload);
}

OxaQmlEngine::~OxaQmlEngine() = default;

void OxaQmlEngine::setFactory(Factory factory) { engineFactory = factory; }

OxaQmlEngine *OxaQmlEngine::create()
{
    OxaQmlEngine *const engine = engineFactory ? engineFactory() : nullptr;
    return engine ? engine : new OxaQmlEngine(nullptr);
}

void OxaQmlEngine::onSceneGraphCriticalError()
{
    if (m_sceneGraphErrorReported)
        return;
    m_sceneGraphErrorReported = true;
    Q_EMIT sceneGraphCriticalError();
}

void OxaQmlEngine::setReadQmlFromDisk(bool enabled) { m_readQmlFromDisk = enabled; }

void OxaQmlEngine::setPerformanceWatcherEnabled(bool enabled)
{
    if (enabled == m_performanceWatcherEnabled)
        return;
    m_performanceWatcherEnabled = enabled;
    // Removes what the engine receives of itself, which is nothing: views that exist go on.
    if (!enabled)
        disconnect(this, &OxaQmlEngine::finishedRendering, this, nullptr);
}

void OxaQmlEngine::fixImportPath()
{
    const QStringList names = QString::fromUtf8(qgetenv("QML2_IMPORT_PATH"))
                                      .trimmed()
                                      .split(QDir::listSeparator(), Qt::SkipEmptyParts);
    if (names.isEmpty())
        return;
    if (names.size() > 1)
        QMessageLogger().warning() << severalPathsWarning;

    QStringList paths;
    for (const QString &name : names) {
        const QString path = QDir::fromNativeSeparators(name);
        if (existsOrWarn(QDir(path)))
            paths.append(path);
    }
    if (paths.isEmpty())
        QMessageLogger().warning() << noPathWarning;
    else
        setImportPathList(paths);
}

void OxaQmlEngine::reload()
{
    QMessageLogger().debug() << "Reloading OxaQmlEngine";
    clearComponentCache();
    Q_EMIT reloadAllQmlViews();
}
