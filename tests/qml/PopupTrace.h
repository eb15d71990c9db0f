// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "qml/EngineFixture.h"

#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQmlPopupController.h>
#include <UiElements/qml/OxaQmlTypes.h>
#include <UiElements/qml/PopupContext.h>
#include <UiElements/qml/PopupContextTimer.h>

#include <QCursor>
#include <QWidget>
#include <qpa/qwindowsysteminterface.h>

/// A popup context with an active window, a pointer and a clock of the test's own: time passes only
/// where the test fires a timer.
class PopupTrace
{
    Q_DISABLE_COPY_MOVE(PopupTrace)

public:
    static constexpr int never = 1000 * 60 * 60; // ms

    PopupTrace() : m_context(new PopupContext)
    {
        static const bool isRegistered = (OxaQmlTypes::registerQmlTypes(), true);
        Q_UNUSED(isRegistered)
        m_window.setGeometry(600, 500, 100, 50);
        setApplicationActive(true);
        point(QPoint(790, 10));
    }
    ~PopupTrace()
    {
        delete popup();
        delete m_context;
    }

    QString source = QStringLiteral("Popup.qml");
    QRectF a { 100, 100, 40, 20 };
    QRectF b { 400, 300, 40, 20 };
    std::unique_ptr<QWindow> parent; ///< That of the popup, if any.

    PopupContext *context() const { return m_context; }
    OxaQmlEngine *engine() const { return m_engine.engine(); }
    OxaPopupQuickView *popup() const
    {
        return m_context ? qobject_cast<OxaPopupQuickView *>(
                       m_context->findOxaQuickView(source.toStdString()).data())
                         : nullptr;
    }
    PopupContextTimer *openTimer() const
    {
        return m_context ? m_context->findDelayOpenTimer(source).data() : nullptr;
    }
    PopupContextTimer *closeTimer() const
    {
        return m_context ? m_context->findDelayCloseTimer(source).data() : nullptr;
    }

    void create()
    {
        if (m_context)
            m_context->createQmlPopup(source, parent.get(), OxaQmlBalloon::Top, {}, {});
        settle();
    }

    void show(const QRectF &rect, bool delayed, OxaQmlBalloon::ArrowAnchor anchor,
              const PopupContext::ControllerCallback &callback)
    {
        if (m_context)
            m_context->showQmlPopup(source, rect, delayed, anchor, callback);
        settle();
    }
    void showDelayed(const QRectF &rect) { show(rect, true, OxaQmlBalloon::Top, {}); }
    void showNow(const QRectF &rect) { show(rect, false, OxaQmlBalloon::Top, {}); }

    /// Lets the time of \a timer pass, if it is active.
    void fire(PopupContextTimer *timer)
    {
        if (!timer || !timer->isActive())
            return;
        if (timer->isSingleShot())
            timer->stop();
        QMetaObject::invokeMethod(timer, "timeout");
        settle();
    }
    void poll() { fire(openTimer()); }
    void passCloseTime() { fire(closeTimer()); }

    static void point(const QPoint &position)
    {
        QCursor::setPos(position);
        QCoreApplication::processEvents();
    }

    void setApplicationActive(bool active)
    {
        m_window.setVisible(active);
        QWindowSystemInterface::handleWindowActivated(active ? m_window.windowHandle() : nullptr);
        QCoreApplication::processEvents();
        settle();
    }

    /// Handles what is queued, while time stands still.
    void settle()
    {
        stopTheClock();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        stopTheClock();
    }

    /// Returns what there is: "none", or "hidden" or "shown" with the names of the active timers
    /// and "pending".
    QString state() const
    {
        if (!m_context || !popup())
            return QStringLiteral("none");
        QStringList parts(popup()->isVisible() ? QStringLiteral("shown")
                                               : QStringLiteral("hidden"));
        if (openTimer() && openTimer()->isActive())
            parts += QStringLiteral("open");
        if (closeTimer() && closeTimer()->isActive())
            parts += QStringLiteral("close");
        if (openTimer() && openTimer()->popupPending())
            parts += QStringLiteral("pending");
        return parts.join(QLatin1Char(' '));
    }

private:
    void stopTheClock()
    {
        for (PopupContextTimer *const timer : { openTimer(), closeTimer() }) {
            if (timer && timer->isActive())
                timer->setInterval(never);
        }
    }

    EngineFixture m_engine;
    QWidget m_window;
    const QPointer<PopupContext> m_context;
};
