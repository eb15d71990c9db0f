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
/// an `Accessible.role`: a pane in the widget that shows what it renders, or else a window or a
/// dialog. Qt would take the former for a window of the application, and dialogs for windows.
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

    /// Returns the widget that shows what the window renders, or null.
    QWidget *widget() const { return m_widget; }

private:
    QQuickWindow *quickWindow() const;
    QList<QQuickItem *> items() const;

    QWidget *const m_widget;
};

/// What assistive technology is told of an item in a widget with QML: what Qt tells of it, but for
/// where it is and whether it is seen. Qt never counts the window that renders it as visible, and
/// does not move it with the widget's.
class AccessibleQuickItem : public QAccessibleObject
{
public:
    /// Has Qt ask this class. To be called once a file has loaded: only then is it asked before
    /// QtQuick itself, which comes with the first file.
    static void install();

    /// Returns what is told of \a item, which may be null.
    static QAccessibleInterface *of(QObject *item);

    /// Makes what is told of \a item; null for what Qt tells, if it tells anything.
    static QAccessibleInterface *make(QQuickItem *item);

    QRect rect() const override;
    QAccessible::State state() const override;
    QAccessible::Role role() const override { return m_qts->role(); }
    QString text(QAccessible::Text kind) const override { return m_qts->text(kind); }
    void setText(QAccessible::Text kind, const QString &text) override;
    QWindow *window() const override;
    QAccessibleInterface *parent() const override { return m_qts->parent(); }
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override { return m_qts->childAt(x, y); }
    int childCount() const override { return m_qts->childCount(); }
    int indexOfChild(const QAccessibleInterface *child) const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

private:
    AccessibleQuickItem(QQuickItem *item, QAccessibleInterface *qts);

    QQuickItem *item() const;

    const QtsInterface m_qts;
};
