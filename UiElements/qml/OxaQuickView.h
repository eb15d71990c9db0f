// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QPointer>
#include <QQuickView>

#include <functional>
#include <memory>

class OxaQmlController;
class OxaQmlEngine;
class QAbstractNativeEventFilter;
class QElapsedTimer;
class QScreen;
class QWidget;

/// How an OxaQuickView is shown, hidden and closed.
struct ViewOptions
{
    /// showAt() shows and activates the view when control is back in the event loop, not at once.
    bool deferShow = false;
    /// The view hides when it loses activation; see OxaQuickView::onActiveChanged().
    bool hideOnDeactivate = false;
    /// A close event deletes the view later.
    bool deleteOnClose = true;
    /// The content item gets the focus when a view that is ready becomes active.
    bool focusContentOnActivate = false;
    /// With hideOnDeactivate: moves of this window run onActiveChanged() too.
    QPointer<QWindow> watchedWindow;
};

/// A window that shows QML, with options for showing, hiding, closing and its size.
///
/// It belongs to nobody: by default it deletes itself after it was closed, so that callers hold it
/// by a QPointer. Views are made by the functions of OxaQmlEngine.
///
/// A slot of its signals calls deleteLater() instead of deleting the view: Qt still uses a window
/// after it was shown, moved, rendered, or has lost activation. For the same reason a slot of
/// aboutToShow() must not run an event loop, in which the view may be closed and deleted.
class UIELEMENTS_EXPORT OxaQuickView : public QQuickView
{
    Q_OBJECT

public:
    /// Makes a view with an engine of its own and the default options. Its icon is the system's,
    /// and it cannot show deferred.
    explicit OxaQuickView(QWindow *parent = nullptr);

    /// Makes a view of \a engine, which must outlive it. Its icon is transparent where it has a
    /// parent, otherwise the application's.
    OxaQuickView(OxaQmlEngine *engine, QWindow *parent, const ViewOptions &options);

    ~OxaQuickView() override;

    /// Returns the options.
    ViewOptions getViewOptions() const;

    /// Replaces the options. With hideOnDeactivate the view listens to changes of activation, and
    /// to moves of watchedWindow, from now on: windows that were watched before still count.
    void setViewOptions(const ViewOptions &options);

    /// True while the view measures the time of its rendering. Off by default.
    bool getPerformanceWatcherEnabled() const;

    /// Turns finishedRendering() on or off. Off ends all connections of this view's
    /// beforeRendering() and afterRendering() to the view itself, a client's too.
    void setPerformanceWatcherEnabled(bool enabled);

    /// True while the pointer is inside geometry(), also when another window covers the view there.
    bool underMouse() const;

    /// Moves the view's top left corner to \a point of \a screen and shows it. Null means the
    /// view's screen. A view that would cross an edge of the available geometry is moved to that
    /// edge; one that is entirely outside stays there. Does nothing where there is no screen.
    void showAt(const QPoint &point, QScreen *screen);

    /// Shows the view centred below \a widget, as the form above. Does nothing without a widget.
    void showAt(const QWidget *widget, QScreen *screen);

    /// Calls \a callback with the controller of the view's QML, if both exist.
    void callControllerCallback(const std::function<void(OxaQmlController *)> &callback);

    /// Gives the view the size of its root item, from now on and whenever that changes: users can't
    /// resize the window. Does nothing as long as there is no root item.
    void setupFixedSize();

    /// Lets \a handler alone decide on native events, or Qt again with null.
    void setCustomNativeHandler(const std::shared_ptr<QAbstractNativeEventFilter> &handler);

public Q_SLOTS:
    /// Gives the content item the focus, or hides a visible view that is not active, as the options
    /// say. A view that hides is also closed, where deleteOnClose is set. It stays while a
    /// PopupWidget that overlaps it is active.
    void onActiveChanged();

Q_SIGNALS:
    /// The view is asked to close, and is deleted later where deleteOnClose is set.
    void aboutToClose();

    /// The view is going to be visible.
    void aboutToShow();

    /// Internal: the view is to be shown and activated by the event loop.
    void _dispatchShow();

    /// The view called \a source was rendered within \a milisec milliseconds. Emitted in the view's
    /// thread, whichever thread renders. Needs setPerformanceWatcherEnabled().
    void finishedRendering(QString source, qlonglong milisec);

protected:
    /// Returns the controller that is a direct child of the root item. Null without one.
    QPointer<OxaQmlController> findController();

    bool event(QEvent *event) override;
    bool nativeEvent(const QByteArray &eventType, void *message, long *result) override;

private Q_SLOTS:
    void updateSize();

private:
    void showAndActivate();
    bool staysForActiveWindow();

    ViewOptions m_viewOptions;
    std::unique_ptr<QElapsedTimer> m_renderTimer;
    std::shared_ptr<QAbstractNativeEventFilter> m_customNativeHandler;
};
