// SPDX-License-Identifier: Apache-2.0
#include "OxaQuickWidget.h"

#include <UiElements/accessibility/AccessibleQuick_p.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/RenderTimer_p.h>

#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

namespace {

/// The id of the item that marks where the keyboard focus leaves the QML.
constexpr char borderId[] = "breakQmlFocus";

/// Returns the id of \a item in its QML file. Empty without one, and for null.
QString idOf(QQuickItem *item)
{
    const QQmlContext *const context = item ? qmlContext(item) : nullptr;
    return context ? context->nameForObject(item) : QString();
}

} // namespace

OxaQuickWidget::OxaQuickWidget(QWidget *parent) : QQuickWidget(parent) { initialise(); }

OxaQuickWidget::OxaQuickWidget(OxaQmlEngine *engine, QWidget *parent) : QQuickWidget(engine, parent)
{
    initialise();
}

void OxaQuickWidget::initialise()
{
    // Now, and by no factory: that of QtQuick, which comes with a file, would be asked first.
    QAccessible::registerAccessibleInterface(new AccessibleQuickWindow(quickWindow(), this));
    connect(this, &QQuickWidget::statusChanged, this, [] { AccessibleQuickItem::install(); });
    quickWindow()->setTitle(QString());
    connect(this, &OxaQuickWidget::focusAboutToChange, this, &OxaQuickWidget::onFocusAboutToChange,
            Qt::QueuedConnection);
}

// Rendering that goes on while the base class is destroyed must not reach the timer.
OxaQuickWidget::~OxaQuickWidget() { setPerformanceWatcherEnabled(false); }

bool OxaQuickWidget::getPerformanceWatcherEnabled() const { return m_renderTimer != nullptr; }

void OxaQuickWidget::setPerformanceWatcherEnabled(bool enabled)
{
    RenderTimer::setEnabled(enabled, this, quickWindow(), m_renderTimer);
}

bool OxaQuickWidget::isCustomAccessibilityEnabled() const { return m_customAccessibilityEnabled; }

void OxaQuickWidget::setCustomAccessibilityEnabled(bool enabled)
{
    m_customAccessibilityEnabled = enabled;
}

bool OxaQuickWidget::event(QEvent *event)
{
    if (m_customAccessibilityEnabled && event->type() == QEvent::KeyPress
        && leavesQml(static_cast<QKeyEvent *>(event)->key()))
        return false; // The parent widgets move the focus. clazy:exclude=base-class-event
    if (m_customAccessibilityEnabled && m_focusRetryPending
        && event->type() == QEvent::FocusAboutToChange) {
        const QPointer<OxaQuickWidget> self(this); // A slot may delete the widget.
        Q_EMIT focusAboutToChange();
        if (!self)
            return true;
    }
    return QQuickWidget::event(event);
}

/// True when \a key moves the focus to the border of the QML, which is then kept.
bool OxaQuickWidget::leavesQml(int key)
{
    if (key != Qt::Key_Tab && key != Qt::Key_Backtab)
        return false;
    const auto [id, item] = getNextFocusItem(key == Qt::Key_Tab);
    if (id != QLatin1String(borderId))
        return false;
    if (!m_breakFocusItem)
        m_breakFocusItem = item;
    return true;
}

void OxaQuickWidget::focusInEvent(QFocusEvent *event)
{
    const QPointer<OxaQuickWidget> self(this); // A handler in QML may delete the widget.
    QQuickWidget::focusInEvent(event);
    if (!self)
        return;
    // Qt tells of the item's focus now, and then of the widget's, which would be the last word.
    if (QAccessible::isActive())
        QMetaObject::invokeMethod(this, &OxaQuickWidget::tellFocusOfItem, Qt::QueuedConnection);
    if (!m_customAccessibilityEnabled)
        return;
    m_focusRetryPending = getWindowHandle() != QGuiApplication::focusWindow();
    restoreItemFocus(event->reason());
}

void OxaQuickWidget::tellFocusOfItem()
{
    QQuickItem *const item = quickWindow()->activeFocusItem();
    if (!hasFocus() || !QAccessible::queryAccessibleInterface(item))
        return;
    QAccessibleEvent event(item, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void OxaQuickWidget::restoreItemFocus(Qt::FocusReason reason)
{
    if (getActiveFocusItem().isEmpty()) {
        quickWindow()->requestActivate();
        focusNextPrevChild(true);
    } else if (m_breakFocusItem && m_breakFocusItem->isVisible()) {
        m_breakFocusItem->nextItemInFocusChain(true)->forceActiveFocus(reason);
    }
}

void OxaQuickWidget::focusOutEvent(QFocusEvent *event)
{
    const QPointer<OxaQuickWidget> self(this); // A handler in QML may delete the widget.
    QQuickWidget::focusOutEvent(event);
    if (self)
        m_focusRetryPending = false;
}

void OxaQuickWidget::onFocusAboutToChange()
{
    if (!m_customAccessibilityEnabled || !m_focusRetryPending)
        return;
    QFocusEvent event(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    focusInEvent(&event);
}

/// Returns the item that Tab, or Shift+Tab, would move the focus to, and its id.
std::pair<QString, QQuickItem *> OxaQuickWidget::getNextFocusItem(bool forward) const
{
    QQuickItem *const current = quickWindow()->activeFocusItem();
    // From a hidden item, Qt may look for the next one forever.
    QQuickItem *const next = current && current->isVisible()
            ? current->nextItemInFocusChain(forward)
            : nullptr;
    return { idOf(next), next };
}

QString OxaQuickWidget::getActiveFocusItem() const
{
    return idOf(quickWindow()->activeFocusItem());
}

QPointer<QWindow> OxaQuickWidget::getWindowHandle() const { return window()->windowHandle(); }
