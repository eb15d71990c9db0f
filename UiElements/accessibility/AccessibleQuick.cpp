// SPDX-License-Identifier: Apache-2.0
#include "AccessibleQuick_p.h"

#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQuickWidget.h>

#include <QCoreApplication>
#include <QQuickItem>
#include <QQuickWindow>

namespace {

/// Adds the items in \a item that Qt tells of, past those that it does not.
void addItems(QList<QQuickItem *> &items, const QQuickItem &item)
{
    const QList<QQuickItem *> children = item.childItems();
    for (QQuickItem *child : children) {
        if (QAccessible::queryAccessibleInterface(child))
            items += child;
        else
            addItems(items, *child);
    }
}

/// Returns the widget that shows \a item, or null.
QWidget *widgetOf(const QQuickItem &item)
{
    const auto *window = dynamic_cast<AccessibleQuickWindow *>(
            QAccessible::queryAccessibleInterface(item.window()));
    return window ? window->widget() : nullptr;
}

QAccessibleInterface *makeItem(const QString &className, QObject *object)
{
    const bool isItem = className == QLatin1String(QQuickItem::staticMetaObject.className());
    return isItem && !QtsInterface::isBeingMade(object)
            ? AccessibleQuickItem::make(static_cast<QQuickItem *>(object))
            : nullptr;
}

} // namespace

QAccessibleInterface *AccessibleQuickWidget::quickWindow() const
{
    return QAccessible::queryAccessibleInterface(
            static_cast<OxaQuickWidget *>(object())->quickWindow());
}

QAccessible::State AccessibleQuickWidget::state() const
{
    QAccessible::State state = AccessibleWidget::state();
    if (focusChild() != this)
        state.focused = false;
    return state;
}

QAccessibleInterface *AccessibleQuickWidget::focusChild() const
{
    QAccessibleInterface *item = widget()->hasFocus() ? quickWindow()->focusChild() : nullptr;
    return item ? item : AccessibleWidget::focusChild();
}

QAccessibleInterface *AccessibleQuickWidget::child(int index) const
{
    return index == 0 ? quickWindow() : nullptr;
}

QAccessibleInterface *AccessibleQuickWidget::childAt(int x, int y) const
{
    return rect().contains(x, y) ? quickWindow() : nullptr;
}

int AccessibleQuickWidget::childCount() const { return 1; }

int AccessibleQuickWidget::indexOfChild(const QAccessibleInterface *child) const
{
    return child == quickWindow() ? 0 : -1;
}

AccessibleQuickWindow::AccessibleQuickWindow(QQuickWindow *window, QWidget *widget)
    : QAccessibleObject(window), m_widget(widget)
{
}

QQuickWindow *AccessibleQuickWindow::quickWindow() const
{
    return static_cast<QQuickWindow *>(object());
}

QList<QQuickItem *> AccessibleQuickWindow::items() const
{
    QList<QQuickItem *> items;
    addItems(items, *quickWindow()->contentItem());
    return items;
}

QRect AccessibleQuickWindow::rect() const
{
    return m_widget ? parent()->rect() : quickWindow()->geometry();
}

QAccessibleInterface *AccessibleQuickWindow::parent() const
{
    return QAccessible::queryAccessibleInterface(m_widget ? m_widget
                                                          : static_cast<QObject *>(qApp));
}

QAccessibleInterface *AccessibleQuickWindow::focusChild() const
{
    return AccessibleQuickItem::of(quickWindow()->activeFocusItem());
}

QAccessibleInterface *AccessibleQuickWindow::child(int index) const
{
    return AccessibleQuickItem::of(items().value(index));
}

int AccessibleQuickWindow::childCount() const { return items().size(); }

int AccessibleQuickWindow::indexOfChild(const QAccessibleInterface *child) const
{
    return child ? items().indexOf(qobject_cast<QQuickItem *>(child->object())) : -1;
}

QWindow *AccessibleQuickWindow::window() const
{
    return m_widget ? m_widget->window()->windowHandle() : quickWindow();
}

QString AccessibleQuickWindow::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name)
        return {};
    const QString title = quickWindow()->title();
    const QAccessibleInterface *item = title.isEmpty() && !m_widget ? child(0) : nullptr;
    return item ? item->text(kind) : title;
}

QAccessible::Role AccessibleQuickWindow::role() const
{
    if (m_widget)
        return QAccessible::Pane;
    const bool isDialog = quickWindow()->type() != Qt::Window
            || qobject_cast<OxaPopupQuickView *>(object());
    return isDialog ? QAccessible::Dialog : QAccessible::Window;
}

QAccessible::State AccessibleQuickWindow::state() const
{
    QAccessible::State state;
    state.invisible = m_widget ? !m_widget->isVisible() : !quickWindow()->isVisible();
    state.disabled = m_widget && !m_widget->isEnabled();
    state.active = quickWindow()->isActive() && !m_widget;
    return state;
}

AccessibleQuickItem::AccessibleQuickItem(QQuickItem *item, QAccessibleInterface *qts)
    : QAccessibleObject(item), m_qts(qts)
{
}

void AccessibleQuickItem::install()
{
    QAccessible::removeFactory(makeItem);
    QAccessible::installFactory(makeItem);
}

QAccessibleInterface *AccessibleQuickItem::of(QObject *item)
{
    QAccessibleInterface *told = QAccessible::queryAccessibleInterface(item);
    const bool isQts = told && !dynamic_cast<AccessibleQuickItem *>(told);
    if (!isQts || !widgetOf(*static_cast<QQuickItem *>(item)))
        return told;
    // Made while the file was loading.
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(told));
    return QAccessible::queryAccessibleInterface(item);
}

QAccessibleInterface *AccessibleQuickItem::make(QQuickItem *item)
{
    // Qt may ask before the item is in a window.
    if (item->window() && !widgetOf(*item))
        return nullptr;
    QAccessibleInterface *qts = QtsInterface::make(item);
    return qts ? new AccessibleQuickItem(item, qts) : nullptr;
}

QQuickItem *AccessibleQuickItem::item() const { return static_cast<QQuickItem *>(object()); }

QRect AccessibleQuickItem::rect() const
{
    const QWidget *widget = widgetOf(*item());
    if (!widget)
        return m_qts->rect();
    const QRect place = item()->mapRectToScene({ QPointF(), item()->size() }).toRect();
    return place.translated(widget->mapToGlobal(QPoint()));
}

QAccessible::State AccessibleQuickItem::state() const
{
    QAccessible::State state = m_qts->state();
    if (const QWidget *widget = widgetOf(*item())) {
        const QRect place = rect();
        const QRect pane(widget->mapToGlobal(QPoint()), widget->size());
        state.offscreen = !pane.intersects(place);
        state.invisible = place.isNull() || !widget->isVisible() || !item()->isVisible()
                || qFuzzyIsNull(item()->opacity());
    }
    return state;
}

QAccessibleInterface *AccessibleQuickItem::child(int index) const
{
    QAccessibleInterface *child = m_qts->child(index);
    return child ? of(child->object()) : nullptr;
}

void AccessibleQuickItem::setText(QAccessible::Text kind, const QString &text)
{
    m_qts->setText(kind, text);
}

QWindow *AccessibleQuickItem::window() const
{
    const QWidget *widget = widgetOf(*item());
    return widget ? widget->window()->windowHandle() : m_qts->window();
}

int AccessibleQuickItem::indexOfChild(const QAccessibleInterface *child) const
{
    return m_qts->indexOfChild(child);
}

void *AccessibleQuickItem::interface_cast(QAccessible::InterfaceType type)
{
    return m_qts->interface_cast(type);
}
