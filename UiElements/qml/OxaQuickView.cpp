// SPDX-License-Identifier: Apache-2.0
#include "OxaQuickView.h"

#include <UiElements/app/AppUtils.h>
#include <UiElements/app/BoundedPixels_p.h>
#include <UiElements/qml/OxaQmlController.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/RenderTimer_p.h>
#include <UiElements/widgets/PopupWidget.h>

#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QQuickItem>
#include <QQuickWidget>
#include <QScreen>

namespace {

/// Returns the top left corner of \a rect once it is moved into \a available. One that is entirely
/// outside stays.
QPoint movedInside(const QRect &rect, const QRect &available)
{
    const QRect visible = available.intersected(rect);
    if (visible.isEmpty() || visible == rect)
        return rect.topLeft();
    // By as much as is outside, at whichever edge: what is outside at the right and the bottom is
    // moved in, what is outside at the left and the top further out, maybe beyond the edge. The
    // corner stays at that edge then; an intersection, which may be empty, would have it at (0, 0),
    // on whichever screen that is.
    const int x = rect.x() + visible.width() - rect.width();
    const int y = rect.y() + visible.height() - rect.height();
    return { qMax(x, available.x()), qMax(y, available.y()) };
}

} // namespace

OxaQuickView::OxaQuickView(QWindow *parent) : QQuickView(parent) { }

OxaQuickView::OxaQuickView(OxaQmlEngine *engine, QWindow *parent, const ViewOptions &options)
    : QQuickView(engine, parent)
{
    setIcon(AppUtils::getDialogIcon(parent != nullptr));
    setViewOptions(options);
    connect(this, &OxaQuickView::_dispatchShow, this, &OxaQuickView::showAndActivate,
            Qt::QueuedConnection);
}

OxaQuickView::~OxaQuickView()
{
    delete rootObject(); // Its QML may do something to the view, which is still whole here.
    // Rendering that goes on while the base class is destroyed must not reach the timer.
    setPerformanceWatcherEnabled(false);
}

ViewOptions OxaQuickView::getViewOptions() const { return m_viewOptions; }

void OxaQuickView::setViewOptions(const ViewOptions &options)
{
    m_viewOptions = options;
    if (!options.hideOnDeactivate)
        return;
    connect(this, &QWindow::activeChanged, this, &OxaQuickView::onActiveChanged,
            Qt::UniqueConnection);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &OxaQuickView::onActiveChanged,
            Qt::UniqueConnection);
    if (!options.watchedWindow)
        return;
    connect(options.watchedWindow, &QWindow::xChanged, this, &OxaQuickView::onActiveChanged,
            Qt::UniqueConnection);
    connect(options.watchedWindow, &QWindow::yChanged, this, &OxaQuickView::onActiveChanged,
            Qt::UniqueConnection);
}

bool OxaQuickView::getPerformanceWatcherEnabled() const { return m_renderTimer != nullptr; }

void OxaQuickView::setPerformanceWatcherEnabled(bool enabled)
{
    RenderTimer::setEnabled(enabled, this, this, m_renderTimer);
}

bool OxaQuickView::underMouse() const { return geometry().contains(QCursor::pos()); }

void OxaQuickView::showAt(const QPoint &point, QScreen *screen)
{
    QScreen *const target = screen ? screen : this->screen();
    if (!target)
        return;
    const QPointer<OxaQuickView> self(this); // A slot may delete the view as it moves.
    setScreen(target);
    if (!self)
        return;
    const QRect place(BoundedPixels::bounded(QPointF(point)), size());
    setPosition(movedInside(place, target->availableGeometry()));
    if (!self)
        return;
    if (m_viewOptions.deferShow)
        Q_EMIT _dispatchShow();
    else if (!isVisible() || handle()) // Not while it is shown and has changed its size by that.
        show();
}

void OxaQuickView::showAt(const QWidget *widget, QScreen *screen)
{
    if (!widget)
        return;
    const QPoint centre = BoundedPixels::bounded(
            QPointF(widget->mapToGlobal(widget->rect().center())));
    showAt(centre + QPoint(-(width() / 2), widget->height() / 2), screen);
}

void OxaQuickView::showAndActivate()
{
    const QPointer<OxaQuickView> self(this); // A slot of a shown window may delete it.
    show();
    if (self)
        requestActivate();
}

void OxaQuickView::callControllerCallback(const std::function<void(OxaQmlController *)> &callback)
{
    const QPointer<OxaQmlController> controller = findController();
    if (controller && callback)
        callback(controller);
}

void OxaQuickView::setupFixedSize()
{
    updateSize();
    const QQuickItem *const root = rootObject();
    if (!root)
        return;
    connect(root, &QQuickItem::heightChanged, this, &OxaQuickView::updateSize,
            Qt::UniqueConnection);
    connect(root, &QQuickItem::widthChanged, this, &OxaQuickView::updateSize, Qt::UniqueConnection);
}

void OxaQuickView::updateSize()
{
    const QQuickItem *const root = rootObject();
    if (!root)
        return;
    const QSize size = BoundedPixels::bounded(root->size());
    setMinimumSize(size);
    setMaximumSize(size);
    resize(size);
}

void OxaQuickView::setCustomNativeHandler(
        const std::shared_ptr<QAbstractNativeEventFilter> &handler)
{
    m_customNativeHandler = handler;
}

void OxaQuickView::onActiveChanged()
{
    if (!isVisible())
        return;
    if (isActive()) {
        if (status() == Ready && m_viewOptions.focusContentOnActivate && contentItem())
            contentItem()->setFocus(true, Qt::ActiveWindowFocusReason);
        return;
    }
    if (!m_viewOptions.hideOnDeactivate || staysForActiveWindow())
        return;
    const QPointer<OxaQuickView> self(this); // A slot may delete the view as it hides.
    hide();
    if (self && m_viewOptions.deleteOnClose)
        close();
}

/// Looks for a reason to stay among the active window and its parents that overlap the view.
bool OxaQuickView::staysForActiveWindow()
{
    for (auto *widget = QApplication::activeWindow(); widget; widget = widget->parentWidget()) {
        if (!widget->frameGeometry().intersects(frameGeometry()))
            continue;
        const auto *quickWidget = qobject_cast<QQuickWidget *>(widget);
        if (quickWidget && quickWidget->quickWindow() == this) {
            requestActivate();
            return true;
        }
        if (!quickWidget && qobject_cast<PopupWidget *>(widget))
            return true;
    }
    return false;
}

QPointer<OxaQmlController> OxaQuickView::findController()
{
    const QQuickItem *const root = rootObject();
    if (!root)
        return nullptr;
    return root->findChild<OxaQmlController *>(QString(), Qt::FindDirectChildrenOnly);
}

bool OxaQuickView::event(QEvent *event)
{
    if (event->type() == QEvent::Close) {
        const QPointer<OxaQuickView> self(this); // A slot may delete the view.
        Q_EMIT aboutToClose();
        if (!self)
            return true;
        if (m_viewOptions.deleteOnClose)
            deleteLater();
    } else if (event->type() == QEvent::Show) {
        Q_EMIT aboutToShow();
    }
    return QQuickView::event(event);
}

bool OxaQuickView::nativeEvent(const QByteArray &eventType, void *message, long *result)
{
    const auto handler = m_customNativeHandler; // It may be replaced while it runs.
    if (handler)
        return handler->nativeEventFilter(eventType, message, result);
    return QQuickView::nativeEvent(eventType, message, result);
}
