// SPDX-License-Identifier: Apache-2.0
#include "PopupWidget.h"

#include <UiElements/keyboard/TabOrderUtils.h>

#include <QApplication>
#include <QQuickWindow>

// When a popup hides because another window was activated.

void PopupWidget::followWindows()
{
    const QWidget *parent = parentWidget();
    // It has no window of its own where a client has put it into another.
    for (const QWindow *followed :
         { windowHandle(), parent ? parent->window()->windowHandle() : nullptr }) {
        if (followed)
            connect(followed, &QWindow::activeChanged, this, &PopupWidget::onActiveChanged,
                    Qt::UniqueConnection);
    }
}

void PopupWidget::onActiveChanged()
{
    if (isActiveWindow() || !m_data.m_autoDismiss)
        return;
    m_trackedWindow = windowToTrack();
    if (m_trackedWindow) {
        connect(m_trackedWindow, &QWindow::activeChanged, this,
                &PopupWidget::onCurrentActiveWindowChanged, Qt::UniqueConnection);
        return;
    }
    if (m_data.m_dismissWithParentFocused)
        hide();
    else
        dismissUnlessParentHasFocus();
}

void PopupWidget::onCurrentActiveWindowChanged()
{
    if (!m_trackedWindow || m_trackedWindow->isActive() || isActiveWindow() || !isVisible())
        return;
    if (isActiveWindowInside()) {
        const QPointer<PopupWidget> self(this); // A slot of a window's activation may delete it.
        const QPointer<QWidget> inner = QApplication::activeWindow();
        if (m_data.m_selfReactivate)
            activateWindow();
        if (inner)
            inner->activateWindow();
        if (!self)
            return;
    } else if (m_data.m_dismissWithParentFocused) {
        hide();
        return;
    }
    if (!m_data.m_dismissWithParentFocused)
        dismissUnlessParentHasFocus();
}

/// True when the active window belongs to the popup, as a menu of its content does.
bool PopupWidget::isActiveWindowInside() const
{
    return TabOrderUtils::isAncestorOfParent(this, QApplication::activeWindow());
}

/// Returns the active window if it counts as a part of the popup: it belongs to it, or is a QML
/// window that overlaps it. Null otherwise.
QWindow *PopupWidget::windowToTrack() const
{
    if (isActiveWindowInside())
        return QApplication::activeWindow()->windowHandle();
    auto *qmlWindow = qobject_cast<QQuickWindow *>(QGuiApplication::focusWindow());
    if (qmlWindow && !qmlWindow->property("isFrontLayer").toBool()
        && qmlWindow->frameGeometry().intersects(frameGeometry()))
        return qmlWindow;
    return nullptr;
}

void PopupWidget::dismissUnlessParentHasFocus()
{
    if (!m_data.m_skipDeepFocusCheck && !TabOrderUtils::hasDeepFocus(parentWidget()))
        hide();
}
