// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "QuickViews.h"

#include <UiElements/qml/OxaQuickWidget.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QQmlContext>
#include <QQuickWindow>

/// A window with QML between two fields, for tests of the keyboard focus.
struct FocusScene
{
    /// Two items that Tab visits, and the border after them.
    static constexpr char twoItems[] = R"(
        import QtQuick 2.15
        Item {
            id: root
            width: 100; height: 40
            Item {
                id: first
                activeFocusOnTab: true
                width: 10; height: 10
                Accessible.role: Accessible.Button
                Accessible.name: "first"
            }
            Item {
                id: second
                activeFocusOnTab: true
                width: 10; height: 10
                Accessible.role: Accessible.Button
                Accessible.name: "second"
            }
            Item { id: breakQmlFocus; activeFocusOnTab: true }
        })";

    FocusScene(OxaQmlEngine *engine, const char *qml)
        : before(new QLineEdit), quick(new OxaQuickWidget(engine, nullptr)), after(new QLineEdit)
    {
        auto *layout = new QHBoxLayout(&window);
        before->setObjectName(QStringLiteral("before"));
        quick->setObjectName(QStringLiteral("quick"));
        after->setObjectName(QStringLiteral("after"));
        for (QWidget *widget : { static_cast<QWidget *>(before), static_cast<QWidget *>(quick),
                                 static_cast<QWidget *>(after) })
            layout->addWidget(widget);
        before->setAccessibleName(before->objectName());
        after->setAccessibleName(after->objectName());
        quick->setCustomAccessibilityEnabled(true);
        quick->setResizeMode(QQuickWidget::SizeRootObjectToView);
        QuickViews::load(*quick, qml);
    }

    /// Shows the window with the focus in the field before the QML.
    bool show()
    {
        if (QGuiApplication::platformName() == QLatin1String("offscreen"))
            QTest::ignoreMessage(QtWarningMsg, "This plugin does not support propagateSizeHints()");
        before->setFocus();
        return QuickViews::showActive(window)
                && QTest::qWaitFor([this] { return before->hasFocus(); });
    }

    /// Returns the id of the item with the focus of the QML; empty without one.
    QString activeItem() const
    {
        QQuickItem *item = quick->quickWindow()->activeFocusItem();
        const QQmlContext *context = item ? qmlContext(item) : nullptr;
        return context ? context->nameForObject(item) : QString();
    }

    /// Returns where the focus is: the id of an item, or the name of a widget.
    QString focus() const
    {
        const QWidget *widget = window.focusWidget();
        if (!widget || !widget->hasFocus())
            return QStringLiteral("nowhere");
        const QString item = widget == quick ? activeItem() : QString();
        return item.isEmpty() ? widget->objectName() : item;
    }

    QWidget window;
    QLineEdit *const before;
    OxaQuickWidget *const quick;
    QLineEdit *const after;
};
