// SPDX-License-Identifier: Apache-2.0
#include "PopupContext.h"

#include <UiElements/app/ApplicationObject_p.h>
#include <UiElements/app/OxaApplication.h>
#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/OxaQmlPopupController.h>
#include <UiElements/qml/PopupTimers.h>

#include <QCursor>
#include <QDebug>
#include <QGuiApplication>
#include <QWidget>

#include <vector>

const int PopupContext::DELAY_POPUP_DURATION = 500;

namespace {

constexpr char noPopupWarning[] = "OxaPopupQuickView should not be null!";

using ControllerCallback = PopupContext::ControllerCallback;
using Condition = std::function<bool()>;

/// A request to show a popup. What connections keep of it owns neither popup nor timers: the popup
/// owns the connections, and the context the timers.
struct Request
{
    QPointer<OxaPopupQuickView> popup;
    std::weak_ptr<const PopupTimers> timers;
    std::function<void()> doShow;
    Condition wantsOpen;
};

ControllerCallback controllerCallbackWithArrowAnchor(const ControllerCallback &callback,
                                                     OxaQmlBalloon::ArrowAnchor anchor)
{
    return [callback, anchor](OxaQmlController *controller) {
        const QPointer<OxaQmlController> guard = controller;
        if (callback)
            callback(controller);
        auto *const popupController = qobject_cast<OxaQmlPopupController *>(guard.data());
        if (popupController)
            popupController->setArrowAnchor(anchor);
    };
}

void closeNow(const QPointer<OxaPopupQuickView> &popup,
              const std::shared_ptr<const PopupTimers> &timers, const Condition &shouldClose)
{
    if (!popup || !shouldClose() || !popup)
        return;
    // A request that is pending needs the popup.
    if (timers->openTimer && timers->openTimer->popupPending())
        popup->hide();
    else
        popup->close();
    if (timers->openTimer)
        timers->openTimer->stopAndEmit();
}

void closePopup(
        const std::pair<QPointer<OxaPopupQuickView>, std::shared_ptr<const PopupTimers>> &target,
        const Condition &shouldClose)
{
    const auto &[popup, timers] = target;
    if (!popup)
        return;
    PopupContextTimer *const closeTimer = timers->closeTimer;
    if (!closeTimer) {
        closeNow(popup, timers, shouldClose);
        return;
    }
    if (closeTimer->isActive())
        return;
    QObject::disconnect(closeTimer, &QTimer::timeout, popup, nullptr);
    const std::weak_ptr<const PopupTimers> weakTimers = timers;
    QObject::connect(closeTimer, &QTimer::timeout, popup, [guard = popup, weakTimers, shouldClose] {
        if (const auto kept = weakTimers.lock())
            closeNow(guard, kept, shouldClose);
    });
    closeTimer->start(PopupContext::DELAY_POPUP_DURATION);
}

void evaluate(const Request &request)
{
    const bool isActive = QGuiApplication::applicationState() == Qt::ApplicationActive;
    if (isActive && request.wantsOpen()) {
        if (request.popup && !request.popup->isVisible())
            request.doShow();
        return;
    }
    const auto timers = request.timers.lock();
    if (timers)
        closePopup({ request.popup, timers },
                   [wantsOpen = request.wantsOpen] { return !wantsOpen(); });
}

void armOpenTimer(PopupContextTimer *openTimer, const Request &request)
{
    QObject::disconnect(openTimer, &QTimer::timeout, nullptr, nullptr);
    QObject::connect(openTimer, &QTimer::timeout, request.popup, [request] { evaluate(request); });
    openTimer->start(PopupContext::DELAY_POPUP_DURATION);
    openTimer->setPopupPending(false);
}

/// Serves \a request after the one that \a openTimer serves now.
void supersede(PopupContextTimer *openTimer, const Request &request, const QRectF &rect)
{
    const bool isVisible = request.popup->isVisible();
    if (isVisible
        && (rect == openTimer->requestedRect() || rect == request.popup->activationRect()))
        return;
    openTimer->setPopupPending(true);
    openTimer->setRequestedRect(rect);
    QObject::disconnect(openTimer, &PopupContextTimer::stopped, nullptr, nullptr);
    QObject::connect(
            openTimer, &PopupContextTimer::stopped, request.popup,
            [openTimer, request] { armOpenTimer(openTimer, request); }, Qt::DirectConnection);
    // A popup that is visible stays until the mouse has left it.
    if (!isVisible)
        openTimer->stopAndEmit();
}

} // namespace

PopupContext::PopupContext(QObject *parent) : OxaQuickViewContext(parent)
{
    const auto *app = ApplicationObject::find<OxaApplication>();
    if (app && app->getAppSignals())
        connect(app->getAppSignals(), &OxaAppSignals::closeQmlPopups, this,
                &OxaQuickViewContext::closeAllOxaQuickViews);
}

PopupContext::~PopupContext() = default;

QPointer<OxaPopupQuickView> PopupContext::createQmlPopup(
        const QString &source, QWindow *parent, OxaQmlBalloon::ArrowAnchor anchor,
        const QVariantMap &initialProperties, const ControllerCallback &controllerCallback)
{
    const auto callback = controllerCallbackWithArrowAnchor(controllerCallback, anchor);
    const auto view = createOxaQuickView(source, parent, initialProperties, callback);
    return qobject_cast<OxaPopupQuickView *>(view.data());
}

void PopupContext::showQmlPopup(const QString &source, const QRectF &rect, bool delayed,
                                OxaQmlBalloon::ArrowAnchor anchor,
                                const ControllerCallback &controllerCallback)
{
    const QPointer<OxaPopupQuickView> popup = findPopup(source);
    if (!popup)
        return;
    const auto callback = controllerCallbackWithArrowAnchor(controllerCallback, anchor);
    const auto doShow = [popup, rect, anchor, callback] {
        if (!popup || popup->isVisible())
            return;
        popup->callControllerCallback(callback);
        if (popup)
            popup->showAtRect(rect, OxaQmlBalloon::arrowTypeFromArrowAnchor(anchor));
    };
    const auto wantsOpen = [popup, rect, delayed] {
        return !delayed || rect.contains(QCursor::pos())
                || (popup && popup->isVisible() && popup->underMouse());
    };
    showQmlPopup(source, popup, delayed, doShow, wantsOpen, rect);
}

void PopupContext::showQmlPopup(const QString &source, QWidget *widget, bool delayed,
                                OxaQmlBalloon::ArrowAnchor anchor,
                                const ControllerCallback &controllerCallback)
{
    const QPointer<OxaPopupQuickView> popup = findPopup(source);
    if (!popup || !widget)
        return;
    const auto callback = controllerCallbackWithArrowAnchor(controllerCallback, anchor);
    const QPointer<QWidget> guard = widget;
    const auto doShow = [popup, guard, anchor, callback] {
        if (!popup || popup->isVisible())
            return;
        popup->callControllerCallback(callback);
        if (popup && guard)
            popup->showAtWidget(guard, OxaQmlBalloon::arrowTypeFromArrowAnchor(anchor));
    };
    const auto wantsOpen = [popup, guard, delayed] {
        return !delayed || (guard && guard->underMouse())
                || (popup && popup->isVisible() && popup->underMouse());
    };
    showQmlPopup(source, popup, delayed, doShow, wantsOpen, QRectF(widget->geometry()));
}

bool PopupContext::isVisible(const QString &source) const
{
    const auto popup = findPopup(source);
    return popup && popup->isVisible();
}

QPointer<PopupContextTimer> PopupContext::findDelayOpenTimer(const QString &source)
{
    const auto timers = findTimers(source);
    return timers ? timers->openTimer : nullptr;
}

QPointer<PopupContextTimer> PopupContext::findDelayCloseTimer(const QString &source)
{
    const auto timers = findTimers(source);
    return timers ? timers->closeTimer : nullptr;
}

void PopupContext::requestingViewChanged() { stopAllQmlPopupTimers(); }

void PopupContext::removeOxaQuickView(const std::string &source)
{
    OxaQuickViewContext::removeOxaQuickView(source);
    m_timers.erase(source);
}

QPointer<OxaQuickView> PopupContext::instantiateOxaQuickView(
        const QString &source, QWindow *parent, const QVariantMap &initialProperties,
        const ControllerCallback &controllerCallback)
{
    const QPointer<PopupContext> guard = this;
    const auto popup = OxaQmlEngine::createQmlPopup(source, parent, initialProperties,
                                                    controllerCallback, true);
    if (!popup)
        return {};
    ViewOptions options = popup->getViewOptions();
    options.deferShow = true;
    popup->setViewOptions(options);
    popup->setControllerView();
    if (guard)
        findOrCreateTimers(source);
    return popup.data();
}

void PopupContext::stopAllQmlPopupTimers()
{
    // A copy: slots of stopped() may delete the context.
    std::vector<QPointer<PopupContextTimer>> timers;
    for (const auto &entry : m_timers)
        timers.push_back(entry.second->openTimer);
    for (const QPointer<PopupContextTimer> &timer : timers) {
        if (timer && timer->isActive())
            timer->stopAndEmit();
    }
}

QPointer<OxaPopupQuickView> PopupContext::findPopup(const QString &source) const
{
    return qobject_cast<OxaPopupQuickView *>(findOxaQuickView(source.toStdString()).data());
}

std::shared_ptr<const PopupTimers> PopupContext::findTimers(const QString &source) const
{
    const auto found = m_timers.find(source.toStdString());
    return found == m_timers.end() ? nullptr : found->second;
}

std::shared_ptr<const PopupTimers> PopupContext::findOrCreateTimers(const QString &source)
{
    auto &timers = m_timers[source.toStdString()];
    if (!timers)
        timers = std::make_shared<const PopupTimers>();
    return timers;
}

void PopupContext::showQmlPopup(const QString &source, OxaPopupQuickView *popup, bool delayed,
                                const std::function<void()> &doShow,
                                const std::function<bool()> &wantsOpen, const QRectF &rect)
{
    if (!popup) {
        QMessageLogger().warning() << noPopupWarning;
        return;
    }
    const auto timers = findOrCreateTimers(source);
    const Request request { popup, timers, doShow, wantsOpen };
    PopupContextTimer *const openTimer = timers->openTimer;
    if (openTimer)
        connect(popup, &OxaQuickView::aboutToClose, openTimer, &PopupContextTimer::stopAndEmit,
                Qt::UniqueConnection);
    if (timers->closeTimer)
        connect(popup, &OxaQuickView::aboutToShow, timers->closeTimer.data(),
                &PopupContextTimer::stopAndEmit, Qt::UniqueConnection);
    if (!delayed) {
        evaluate(request);
        return;
    }
    if (!openTimer)
        return;
    if (openTimer->isActive()) {
        supersede(openTimer, request, rect);
        return;
    }
    openTimer->setRequestedRect(rect);
    armOpenTimer(openTimer, request);
}
