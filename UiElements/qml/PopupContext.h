// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/qml/OxaQmlBalloon.h>
#include <UiElements/qml/OxaQuickViewContext.h>

#include <QRectF>

#include <memory>

class OxaPopupQuickView;
class PopupContextTimer;
class QWidget;
struct PopupTimers;

/// Keeps one popup for each source, and opens and closes it as the mouse comes and goes.
///
/// createQmlPopup() makes a popup and keeps it hidden. showQmlPopup() with a delay opens it after
/// DELAY_POPUP_DURATION if the mouse is still over the rectangle or the widget, looks again each
/// time that this duration has passed, and closes the popup, which deletes it, when the mouse has
/// been neither there nor over the popup for one more. A new request for another rectangle moves
/// the same popup there. Without a delay the popup opens at once and stays until it loses
/// activation or Escape is pressed.
///
/// A popup opens only while the application is active.
///
/// All popups close when the application emits OxaAppSignals::closeQmlPopups(). A context that is
/// destroyed closes nothing: an open popup stays open until it loses activation.
class UIELEMENTS_EXPORT PopupContext : public OxaQuickViewContext
{
    Q_OBJECT

public:
    /// How long the mouse rests before a popup opens, and is away before it closes, in
    /// milliseconds.
    static const int DELAY_POPUP_DURATION;

    /// Makes a context without popups.
    explicit PopupContext(QObject *parent = nullptr);
    ~PopupContext() override;

    /// Returns the popup of \a source, or makes a hidden one, see OxaQmlEngine::createQmlPopup().
    ///
    /// For a new popup, \a controllerCallback is called with its controller, whose `arrowAnchor`
    /// is then set to \a anchor if it is an OxaQmlPopupController. A popup that exists gets none of
    /// the arguments.
    QPointer<OxaPopupQuickView> createQmlPopup(const QString &source, QWindow *parent,
                                               OxaQmlBalloon::ArrowAnchor anchor,
                                               const QVariantMap &initialProperties,
                                               const ControllerCallback &controllerCallback);

    /// Shows the popup of \a source beside \a rect, in global coordinates, at once or \a delayed.
    /// Does nothing if there is no popup.
    ///
    /// Before it is shown, \a controllerCallback is called with its controller, and the controller
    /// gets the \a anchor: the side of the popup that has the arrow. A popup that is visible stays
    /// as it is.
    void showQmlPopup(const QString &source, const QRectF &rect, bool delayed,
                      OxaQmlBalloon::ArrowAnchor anchor,
                      const ControllerCallback &controllerCallback);

    /// Shows the popup of \a source beside \a widget. The rectangle is the widget's geometry as it
    /// is: relative to the parent, unless the widget is a window.
    void showQmlPopup(const QString &source, QWidget *widget, bool delayed,
                      OxaQmlBalloon::ArrowAnchor anchor,
                      const ControllerCallback &controllerCallback);

    /// True when the popup of \a source is visible.
    bool isVisible(const QString &source) const;

    /// Returns the timer that opens the popup of \a source and polls the mouse, or null.
    QPointer<PopupContextTimer> findDelayOpenTimer(const QString &source);

    /// Returns the timer that closes the popup of \a source, or null.
    QPointer<PopupContextTimer> findDelayCloseTimer(const QString &source);

public Q_SLOTS:
    /// To be called when the view that asked for popups shows something else. Stops all timers that
    /// open: what waits does not open, and what is open stays. Only the delay of a request that
    /// waits for an open popup begins now.
    void requestingViewChanged();

protected:
    void removeOxaQuickView(const std::string &source) override;
    QPointer<OxaQuickView> instantiateOxaQuickView(
            const QString &source, QWindow *parent, const QVariantMap &initialProperties,
            const ControllerCallback &controllerCallback) override;

private Q_SLOTS:
    void stopAllQmlPopupTimers();

private:
    QPointer<OxaPopupQuickView> findPopup(const QString &source) const;
    std::shared_ptr<const PopupTimers> findTimers(const QString &source) const;
    std::shared_ptr<const PopupTimers> findOrCreateTimers(const QString &source);
    void showQmlPopup(const QString &source, OxaPopupQuickView *popup, bool delayed,
                      const std::function<void()> &doShow, const std::function<bool()> &wantsOpen,
                      const QRectF &rect);

    std::map<std::string, std::shared_ptr<const PopupTimers>> m_timers;
};
