// SPDX-License-Identifier: Apache-2.0
#include "OxaQmlEngine.h"

#include <UiElements/app/ApplicationObject_p.h>
#include <UiElements/app/IOxaApplication.h>
#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQmlController.h>
#include <UiElements/qml/OxaQuickView.h>
#include <UiElements/qml/OxaQuickWidget.h>

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QQmlComponent>
#include <QQuickItem>

#include <memory>

namespace {

using Status = OxaQmlEngine::QmlViewStatus;

constexpr char noEngineWarning[] = "Unable to create QML view! OxaQmlEngine is not attached to "
                                   "OxaApplication! This should never happen!";
constexpr char emptySourceWarning[] =
        "Trying to create a Qml view for an empty source! This should never happen!";
constexpr char emptyComponentWarning[] =
        "Trying to create a Qml view for an empty source! This should never happen! Resource: ";
constexpr char noParentWarning[] = "OxaQuickWidget should be created with a valid parent! Use "
                                   "OxaQmlEngine::createQmlWindow to create a popout window!";
constexpr char sceneGraphWarning[] = "Critical Scene Graph Error creating: ";
constexpr char emptyReloadWarning[] = "Trying to reload an empty QML view";
constexpr char resourceReloadWarning[] = "Reloading views from QRC is not supported.";

/// A file to load, and what its controller gets.
struct Request
{
    QString source;
    QVariantMap initialProperties;
};

/// Keeps a component while it sends a signal: Qt uses it afterwards, but a slot may delete the
/// owner, which is a view for example.
class ComponentGuard
{
    Q_DISABLE_COPY_MOVE(ComponentGuard)

public:
    ComponentGuard(QQmlComponent *component, QObject *owner)
        : m_component(component), m_owner(owner), m_hasOwner(owner != nullptr)
    {
        if (m_component)
            m_component->setParent(nullptr);
    }
    ~ComponentGuard()
    {
        if (m_component && isOrphaned())
            m_component->deleteLater();
        else if (m_component)
            m_component->setParent(m_owner);
    }

    QObject *owner() const { return m_owner; }

    /// True when the owner was deleted meanwhile.
    bool isOrphaned() const { return m_hasOwner && !m_owner; }

private:
    const QPointer<QQmlComponent> m_component;
    const QPointer<QObject> m_owner;
    const bool m_hasOwner;
};

OxaQmlEngine *findEngine()
{
    const auto *app = ApplicationObject::find<IOxaApplication>();
    OxaQmlEngine *const engine = app ? app->getQmlEngine() : nullptr;
    if (!engine)
        QMessageLogger().warning() << noEngineWarning;
    return engine;
}

/// Returns the engine of a file that loads. Null also while it is being destroyed, when all such
/// files fail: it is no OxaQmlEngine any more then.
OxaQmlEngine *alive(const QPointer<QObject> &engine)
{
    return qobject_cast<OxaQmlEngine *>(engine.data());
}

/// Both URLs name exactly the file that \a source says, whatever characters it contains.
QUrl urlOf(const QString &source, bool onDisk)
{
    if (onDisk) {
        const QString QmlSourceDir = QString::fromUtf8(UIELEMENTS_QML_SOURCE_DIR);
        return QUrl::fromLocalFile(QDir::cleanPath(QmlSourceDir + QLatin1Char('/') + source));
    }
    QUrl url;
    url.setScheme(QStringLiteral("qrc"));
    url.setPath(QStringLiteral("/Qml/") + source, QUrl::DecodedMode);
    return url;
}

bool isDevToolsView(const QObject *view)
{
    return view->objectName() == QLatin1String("DevToolsView");
}

void reportDestruction(const QObject *object, Status status, OxaQmlEngine *engine,
                       const QString &source)
{
    QObject::connect(object, &QObject::destroyed, engine, [engine, status, source] {
        Q_EMIT engine->qmlViewStatusChanged(status, source);
    });
}

/// Initialises the controller among the children of \a root. \a call calls back with a controller.
/// Both can delete what they know.
void initialize(QObject *root, const QPointer<OxaQmlEngine> &engine, const Request &request,
                const std::function<void(OxaQmlController *)> &call)
{
    const auto controllers = root->findChildren<OxaQmlController *>(QString(),
                                                                    Qt::FindDirectChildrenOnly);
    if (controllers.size() > 1) {
        Q_EMIT engine
                ->qmlViewStatusChanged(Status::Error, request.source,
                                       QStringLiteral(
                                               "The Qml view should have only one controller!"));
        return;
    }

    const QPointer<QObject> loaded = root;
    const QPointer<OxaQmlController> controller = controllers.value(0);
    Q_EMIT engine->qmlViewStatusChanged(Status::Initializing, request.source);
    if (engine && controller) {
        reportDestruction(controller, Status::DestroyedController, engine, request.source);
        controller->init(request.initialProperties);
        if (controller)
            call(controller);
    }
    if (engine && loaded)
        Q_EMIT engine->qmlViewStatusChanged(Status::Ready, request.source);
}

template <typename View>
void onStatusChanged(View *view, typename View::Status status, OxaQmlEngine *engine,
                     const Request &request, const OxaQmlEngine::ControllerCallback &callback)
{
    if (!engine || status == View::Loading)
        return;
    const ComponentGuard
            guard(view->template findChild<QQmlComponent *>(QString(), Qt::FindDirectChildrenOnly),
                  view);
    if (status != View::Ready) {
        Q_EMIT engine->qmlViewStatusChanged(Status::Error, request.source,
                                            QStringLiteral("Unable to load the qml view!"));
        return;
    }
    QQuickItem *const root = view->rootObject();
    if (!root) {
        Q_EMIT engine
                ->qmlViewStatusChanged(Status::Creating, request.source,
                                       QStringLiteral(
                                               "Unable to find the rootObject for this qml view."));
        return;
    }
    initialize(root, engine, request, [&callback](OxaQmlController *controller) {
        if (callback)
            callback(controller);
    });
}

template <typename View>
void reload(View *view)
{
    const QUrl url = view->source();
    if (!url.isValid()) {
        QMessageLogger().warning() << emptyReloadWarning;
        return;
    }
    if (url.scheme() == QLatin1String("qrc")) {
        QMessageLogger().warning() << resourceReloadWarning << url;
        return;
    }
    if (isDevToolsView(view))
        return;
    view->setSource(url);
    QMessageLogger().debug() << "Reloading QML view:" << url;
}

template <typename View>
void reportSceneGraphErrors(const View *view, OxaQmlEngine *engine)
{
    QObject::connect(view, &View::sceneGraphError, engine,
                     [view, engine](QQuickWindow::SceneGraphError error, const QString &message) {
                         if (error != QQuickWindow::ContextNotAvailable)
                             return;
                         QMessageLogger().warning() << sceneGraphWarning << view->objectName()
                                                    << " with message: " << message;
                         engine->onSceneGraphCriticalError();
                     });
}

template <typename View>
void watch(View *view, OxaQmlEngine *engine)
{
    view->setPerformanceWatcherEnabled(engine->isWatchingPerformance());
    if (engine->isWatchingPerformance())
        QObject::connect(view, &View::finishedRendering, engine, &OxaQmlEngine::finishedRendering);
    QObject::connect(engine, &OxaQmlEngine::reloadAllQmlViews, view, [view] { reload(view); });
}

/// Makes a view by \a construct, which gets the engine and may return null, and loads the source.
template <typename View, typename Construct>
QPointer<View> makeView(const Request &request, const OxaQmlEngine::ControllerCallback &callback,
                        const Construct &construct)
{
    if (request.source.isEmpty()) {
        QMessageLogger().warning() << emptySourceWarning;
        return {};
    }
    const QPointer<OxaQmlEngine> engine = findEngine();
    if (engine)
        Q_EMIT engine->qmlViewStatusChanged(Status::Creating, request.source);
    QPointer<View> view = engine ? construct(engine.data()) : nullptr;
    if (!view)
        return {};

    view->setObjectName(QFileInfo(request.source).baseName());
    view->setResizeMode(View::SizeRootObjectToView);
    QQuickWindow::setTextRenderType(QQuickWindow::QtTextRendering);
    reportSceneGraphErrors(view.data(), engine);
    if (!isDevToolsView(view))
        watch(view.data(), engine);
    reportDestruction(view, Status::DestroyedView, engine, request.source);
    QObject::connect(view.data(), &View::statusChanged, view.data(),
                     [view, guard = QPointer<QObject>(engine), request,
                      callback](typename View::Status status) {
                         onStatusChanged(view.data(), status, alive(guard), request, callback);
                     });
    view->setSource(urlOf(request.source, engine->isReadingQmlFromDisk()));
    return view;
}

QWindow *outermostWindowAbove(const QObject *owner)
{
    QWindow *window = nullptr;
    for (QObject *each = owner ? owner->parent() : nullptr; each; each = each->parent()) {
        if (each->isWindowType())
            window = qobject_cast<QWindow *>(each);
    }
    return window;
}

void onComponentReady(QQmlComponent *component, const ComponentGuard &guard, OxaQmlEngine *engine,
                      const Request &request, const OxaQmlEngine::ComponentCallback &callback)
{
    QObject *const object = component->create();
    if (guard.isOrphaned()) { // By what the QML called while it was created.
        delete object;
        return;
    }
    if (!object)
        return;
    object->setParent(guard.owner());
    object->setObjectName(QFileInfo(request.source).baseName());
    reportDestruction(object, Status::DestroyedView, engine, request.source);
    initialize(object, engine, request, [&callback, object](OxaQmlController *controller) {
        if (callback)
            callback(object, controller);
    });
}

void onComponentError(const QQmlComponent *component, OxaQmlEngine *engine, const QString &source)
{
    const QString error = component->errorString();
    if (!error.isEmpty())
        Q_EMIT engine->qmlViewStatusChanged(Status::Error, source, error);
}

} // namespace

QPointer<OxaQuickWidget> OxaQmlEngine::createQmlWidget(const QString &source, QWidget *parent,
                                                       const QVariantMap &initialProperties,
                                                       const ControllerCallback &controllerCallback)
{
    if (!parent)
        QMessageLogger().warning() << noParentWarning;
    return makeView<OxaQuickWidget>({ source, initialProperties }, controllerCallback,
                                    [hasParent = parent != nullptr,
                                     guard = QPointer<QWidget>(parent)](auto *engine) {
                                        return hasParent && !guard
                                                ? nullptr
                                                : new OxaQuickWidget(engine, guard);
                                    });
}

QPointer<OxaQuickView> OxaQmlEngine::createQmlWindow(const QString &source, QWindow *parent,
                                                     const QVariantMap &initialProperties,
                                                     const ControllerCallback &controllerCallback)
{
    return makeView<OxaQuickView>({ source, initialProperties }, controllerCallback,
                                  [hasParent = parent != nullptr,
                                   guard = QPointer<QWindow>(parent)](auto *engine) {
                                      return hasParent && !guard
                                              ? nullptr
                                              : new OxaQuickView(engine, guard, ViewOptions());
                                  });
}

QPointer<OxaQuickView> OxaQmlEngine::createQmlDialog(const QString &source, QWindow *parent,
                                                     const QVariantMap &initialProperties,
                                                     const ControllerCallback &controllerCallback,
                                                     bool fixedSize)
{
    const QPointer<QWindow> guard = parent;
    QPointer<OxaQuickView> view = createQmlWindow(source, nullptr, initialProperties,
                                                  controllerCallback);
    if (!view)
        return {};
    view->setViewOptions(ViewOptions());
    view->setFlag(Qt::Dialog, true);
    view->setTransientParent(guard);
    if (fixedSize)
        view->setupFixedSize();
    return view;
}

QPointer<OxaPopupQuickView> OxaQmlEngine::createQmlPopup(
        const QString &source, QWindow *parent, const QVariantMap &initialProperties,
        const ControllerCallback &controllerCallback, bool dialog)
{
    const QPointer<QWindow> guard = parent;
    auto view = makeView<OxaPopupQuickView>({ source, initialProperties }, controllerCallback,
                                            [](OxaQmlEngine *engine) {
                                                return new OxaPopupQuickView(engine, nullptr,
                                                                             ViewOptions());
                                            });
    if (!view)
        return {};
    ViewOptions options;
    options.hideOnDeactivate = true;
    options.watchedWindow = guard;
    view->setViewOptions(options);
    view->setFlags(view->flags() | Qt::FramelessWindowHint);
    // Together with Qt::Popup, which is set already, the type is Qt::Tool.
    if (dialog)
        view->setFlag(Qt::Dialog, true);
    view->setupFixedSize();
    if (guard && guard->screen())
        view->setScreen(guard->screen());
    return view;
}

QPointer<OxaQuickView> OxaQmlEngine::createControllerQmlWindow(
        const QString &source, QObject *owner, const QVariantMap &initialProperties,
        const ControllerCallback &controllerCallback)
{
    return createQmlWindow(source, outermostWindowAbove(owner), initialProperties,
                           controllerCallback);
}

QPointer<OxaQuickView> OxaQmlEngine::createControllerQmlDialog(
        const QString &source, QObject *owner, const QVariantMap &initialProperties,
        const ControllerCallback &controllerCallback)
{
    return createQmlDialog(source, outermostWindowAbove(owner), initialProperties,
                           controllerCallback, true);
}

void OxaQmlEngine::createQmlComponent(const QString &source, QObject *parent,
                                      const QVariantMap &initialProperties,
                                      const ComponentCallback &callback)
{
    if (source.isEmpty()) {
        QMessageLogger().warning() << emptyComponentWarning << source;
        return;
    }
    const bool hasParent = parent != nullptr;
    const QPointer<QObject> guard = parent;
    const QPointer<OxaQmlEngine> engine = findEngine();
    if (engine)
        Q_EMIT engine->qmlViewStatusChanged(Status::Creating, source);
    if (!engine || (hasParent && !guard))
        return;

    auto *const component = new QQmlComponent(engine, guard);
    const Request request { source, initialProperties };
    connect(component, &QQmlComponent::statusChanged, component,
            [component, engineGuard = QPointer<QObject>(engine), guard, request,
             callback](QQmlComponent::Status status) {
                const ComponentGuard componentGuard(component, guard);
                OxaQmlEngine *const loader = alive(engineGuard);
                if (loader && status == QQmlComponent::Ready)
                    onComponentReady(component, componentGuard, loader, request, callback);
                else if (loader && status == QQmlComponent::Error)
                    onComponentError(component, loader, request.source);
            });
    component->loadUrl(urlOf(source, engine->isReadingQmlFromDisk()), QQmlComponent::Asynchronous);
}
