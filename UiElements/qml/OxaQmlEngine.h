// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QPointer>
#include <QQmlEngine>
#include <QVariantMap>

#include <functional>

class OxaPopupQuickView;
class OxaQmlController;
class OxaQuickView;
class OxaQuickWidget;
class QWidget;
class QWindow;

/// The QML engine of the application. IOxaApplication::getQmlEngine() makes it on demand.
///
/// Its static functions make views from a source: the path of a QML file relative to "qrc:/Qml/",
/// such as "people/Card.qml", or on disk to the folder that the library was built with (the CMake
/// variable UIELEMENTS_QML_SOURCE_DIR). They return null with a warning for an empty source, and
/// where the process has no application object with an engine. Errors in a file are reported by
/// qmlViewStatusChanged() only: its view stays empty.
///
/// A QML file may have one OxaQmlController, as a direct child of its root object. When the file
/// has loaded, the controller's init() gets the initial properties, and then the callback is called
/// with the controller. A reload does this again with the new controller.
///
/// Each view has the base name of its file as object name. A view named "DevToolsView" is neither
/// measured nor reloaded.
///
/// A callback, or a slot of qmlViewStatusChanged(), may delete the view or the engine while a view
/// loads: the function then returns null. Slots that hear of DestroyedController or DestroyedView
/// run in a destructor: there, use deleteLater(), and neither reload nor run an event loop. What
/// QML calls may neither delete the view or the engine nor reload: Qt still uses the object that
/// calls.
class UIELEMENTS_EXPORT OxaQmlEngine : public QQmlEngine
{
    Q_OBJECT

public:
    /// Gets the controller of a view.
    using ControllerCallback = std::function<void(OxaQmlController *)>;
    /// Gets the root object of a component, and its controller.
    using ComponentCallback = std::function<void(QObject *, OxaQmlController *)>;
    /// Makes an engine without a parent.
    using Factory = OxaQmlEngine *(*)();

    /// What happened to a view. The meta-type's name is "QmlViewStatus".
    enum class QmlViewStatus {
        Creating = 0, ///< A view is about to be made; or it has no root object, as a message says.
        Initializing = 1, ///< The file has loaded; the controller's init() follows.
        Ready = 2, ///< The controller, if there is one, is initialised and given to the callback.
        DestroyedController = 3, ///< The controller was destroyed.
        DestroyedView = 4,       ///< The view was destroyed, or the root object of a component.
        Error = 5,               ///< Loading failed, or the file has more than one controller.
    };
    Q_ENUM(QmlViewStatus)

    /// Makes an engine that reads from resources, measures nothing and has the import paths of
    /// fixImportPath(). It reloads all views at OxaAppSignals::reloadAllQmlViews().
    explicit OxaQmlEngine(QObject *parent = nullptr);
    ~OxaQmlEngine() override;

    /// Sets the function that makes the application's next engine, which can so be of the client's
    /// own class. Null, the default, or a null result makes an OxaQmlEngine. Neither the function
    /// nor the constructor of what it makes may ask for the engine.
    static void setFactory(Factory factory);

    /// True when QML files are read from disk. Off by default.
    bool isReadingQmlFromDisk() const { return m_readQmlFromDisk; }
    /// True when new views measure their rendering time. Off by default.
    bool isWatchingPerformance() const { return m_performanceWatcherEnabled; }

    /// Makes a view of \a source in \a parent. A null parent logs a warning.
    static QPointer<OxaQuickWidget> createQmlWidget(const QString &source, QWidget *parent,
                                                    const QVariantMap &initialProperties,
                                                    const ControllerCallback &controllerCallback);

    /// Makes a hidden window of \a source, which deletes itself when it is closed.
    static QPointer<OxaQuickView> createQmlWindow(const QString &source, QWindow *parent,
                                                  const QVariantMap &initialProperties,
                                                  const ControllerCallback &controllerCallback);

    /// Makes a hidden dialog of \a source, which stays above \a parent and deletes itself when it
    /// is closed. With \a fixedSize it has the size of its root item.
    static QPointer<OxaQuickView> createQmlDialog(const QString &source, QWindow *parent,
                                                  const QVariantMap &initialProperties,
                                                  const ControllerCallback &controllerCallback,
                                                  bool fixedSize);

    /// Makes a hidden popup of \a source on the screen of \a parent. It has the size of its root
    /// item, hides when it or \a parent loses activation or \a parent moves, and deletes itself
    /// when it is closed. With \a dialog its window type is Qt::Tool, else Qt::Popup.
    static QPointer<OxaPopupQuickView> createQmlPopup(const QString &source, QWindow *parent,
                                                      const QVariantMap &initialProperties,
                                                      const ControllerCallback &controllerCallback,
                                                      bool dialog);

    /// Makes a window as createQmlWindow() does. Its parent is the outermost window among the
    /// ancestors of \a owner; null if there is none.
    static QPointer<OxaQuickView> createControllerQmlWindow(
            const QString &source, QObject *owner, const QVariantMap &initialProperties,
            const ControllerCallback &controllerCallback);

    /// Makes a dialog of fixed size as createQmlDialog() does, above that same window.
    static QPointer<OxaQuickView> createControllerQmlDialog(
            const QString &source, QObject *owner, const QVariantMap &initialProperties,
            const ControllerCallback &controllerCallback);

    /// Loads \a source without a view. The object is made later, as a child of \a parent, which
    /// also owns the component. \a callback is called if the object has a controller.
    static void createQmlComponent(const QString &source, QObject *parent,
                                   const QVariantMap &initialProperties,
                                   const ComponentCallback &callback);

Q_SIGNALS:
    /// The view of the source \a viewName reached \a status.
    void qmlViewStatusChanged(QmlViewStatus status, // clazy:exclude=fully-qualified-moc-types
                              const QString &viewName, const QString &message = QString());
    /// All views reload themselves if they were read from disk.
    void reloadAllQmlViews();
    /// A measured view painted a frame in \a milisec milliseconds. \a source is its object name.
    void finishedRendering(const QString &source, qlonglong milisec);
    /// A view got no graphics context. Emitted once, however many views fail.
    void sceneGraphCriticalError();

public Q_SLOTS:
    /// Emits sceneGraphCriticalError() at the first call.
    void onSceneGraphCriticalError();

protected:
    /// Decides where sources are read from that are loaded from now on.
    void setReadQmlFromDisk(bool enabled);
    /// Decides whether views that are made from now on measure their rendering time.
    void setPerformanceWatcherEnabled(bool enabled);
    /// Replaces the import paths by the folders of the environment variable QML2_IMPORT_PATH, as
    /// far as they exist and if any does. Warns of several, and of those that do not exist.
    void fixImportPath();

private Q_SLOTS:
    void reload();

private:
    bool m_readQmlFromDisk = false;
    bool m_performanceWatcherEnabled = false;
    bool m_sceneGraphErrorReported = false;

    friend class IOxaApplication;
    static OxaQmlEngine *create();
};
