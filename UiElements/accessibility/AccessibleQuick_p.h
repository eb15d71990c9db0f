// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "AccessibleWidget_p.h"

class QQuickItem;
class QQuickWindow;

/// What assistive technology is told of a widget with QML: the window that renders it is its child.
/// Qt tells nothing of that window.
class AccessibleQuickWidget : public AccessibleWidget
{
public:
    using AccessibleWidget::AccessibleWidget;

    /// Not focused while an item is.
    QAccessible::State state() const override;

    QAccessibleInterface *focusChild() const override;
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

private:
    QAccessibleInterface *quickWindow() const;
};

/// What assistive technology is told of a window with QML, whose children are the items that have
/// an `Accessible.role`: a pane in the widget that shows what it renders, or else a dialog. Qt
/// would take the former for a window of the application.
class AccessibleQuickWindow : public QAccessibleObject
{
public:
    /// Tells of \a window, which belongs to \a widget; null for one of its own.
    explicit AccessibleQuickWindow(QQuickWindow *window, QWidget *widget = nullptr);

    QRect rect() const override;
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *focusChild() const override;
    QAccessibleInterface *child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QWindow *window() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

private:
    QQuickWindow *quickWindow() const;
    QList<QQuickItem *> items() const;

    QWidget *const m_widget;
};
