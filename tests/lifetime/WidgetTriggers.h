// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SignalTriggers.h"
#include "support/SvgFiles.h"

#include <UiElements/widgets/OxaWidget.h>

#include <QKeyEvent>

// What the triggers of several widget classes have in common.

inline void waitForDeletion(QObject &object)
{
    const QPointer<QObject> guard(&object);
    QTRY_VERIFY(guard.isNull());
}

inline void sendMouse(QWidget &widget, QEvent::Type type, Qt::MouseButton button)
{
    const QPointF inside = widget.rect().center();
    const auto buttons = type == QEvent::MouseButtonPress ? Qt::MouseButtons(button) : Qt::NoButton;
    QMouseEvent event(type, inside, button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

inline void press(QWidget &widget) { sendMouse(widget, QEvent::MouseButtonPress, Qt::LeftButton); }
inline void release(QWidget &widget)
{
    sendMouse(widget, QEvent::MouseButtonRelease, Qt::LeftButton);
}

inline void sendKey(QWidget &widget, QEvent::Type type, Qt::Key key)
{
    QKeyEvent event(type, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

template <typename Event>
void send(QWidget &widget, Event &&event)
{
    QCoreApplication::sendEvent(&widget, &event);
}

inline void setParentsThemeType(QWidget &widget)
{
    static_cast<OxaWidget *>(widget.parentWidget())->setThemeType(QStringLiteral("dark"));
}

/// Adds rows for a class that follows neither its parent nor its name.
template <typename Widget>
void addOwnThemeRows(SignalTriggers &rows)
{
    for (const char *signal : { "cssChanged()", "themeTypeChanged()" }) {
        rows.push_back(row<Widget>(signal, "setThemeType()", [](Widget &widget) {
            widget.setThemeType(QStringLiteral("dark"));
        }));
    }
    rows.push_back(row<Widget>("cssChanged()", "setCSS()", [](Widget &widget) {
        widget.setCSS(QStringLiteral("color: red;"));
    }));
}

template <typename Widget>
void addThemeRows(SignalTriggers &rows)
{
    addOwnThemeRows<Widget>(rows);
    for (const char *signal : { "cssChanged()", "themeTypeChanged()" }) {
        rows.push_back(row<Widget>(signal, "its parent's theme type",
                                   [](Widget &widget) { setParentsThemeType(widget); }));
    }
    rows.push_back(row<Widget>(
            "cssChanged()", "its object name",
            [](Widget &widget) { widget.setObjectName(QStringLiteral("another")); },
            [](Widget &widget) { widget.setCSS(QStringLiteral("color: red;")); }));
}

template <typename Widget>
void nameIconSets(Widget &widget)
{
    widget.setSvgIconColorSet(QStringLiteral("icon"));
    widget.setInnerSvgIconColorSet(QStringLiteral("icon"));
}

template <typename Widget>
void addIconRows(SignalTriggers &rows)
{
    rows.push_back(row<Widget>("svgIconChanged(QString)", "setSvgIcon()",
                               [](Widget &widget) { widget.setSvgIcon(QString()); }));
    rows.push_back(row<Widget>("svgIconSizeChanged(QSize)", "setSvgIconSize()",
                               [](Widget &widget) { widget.setSvgIconSize(QSize(9, 9)); }));
    rows.push_back(
            row<Widget>("svgIconColorSetChanged(OxaColorSet)", "setSvgIconColorSet()",
                        [](Widget &widget) { widget.setSvgIconColorSet(QStringLiteral("icon")); }));
    rows.push_back(row<Widget>(
            "svgIconColorSetChanged(OxaColorSet)", "refreshSvgIconColorSet()",
            [](Widget &widget) { widget.refreshSvgIconColorSet(); }, &nameIconSets<Widget>));
}

/// Adds rows for the signals of QAbstractButton. \a prepare runs before anything else.
template <typename Button, Act<Button> prepare>
void addAbstractButtonRows(SignalTriggers &rows)
{
    const auto pressIt = [](Button &button) {
        prepare(button);
        button.setCheckable(true);
        press(button);
    };
    const auto releaseIt = [](Button &button) { release(button); };
    const auto click = [](Button &button) { button.click(); };
    const auto makeCheckable = [](Button &button) { button.setCheckable(true); };

    rows.push_back(row<Button>(
            "pressed()", "a press", [](Button &button) { press(button); }, prepare));
    rows.push_back(row<Button>("pressed()", "a key", [](Button &button) {
        sendKey(button, QEvent::KeyPress, Qt::Key_Space);
    }));
    for (const char *signal : { "released()", "clicked(bool)" }) {
        rows.push_back(row<Button>(signal, "a release", releaseIt, pressIt));
        rows.push_back(row<Button>(signal, "click()", click, makeCheckable));
    }
}
