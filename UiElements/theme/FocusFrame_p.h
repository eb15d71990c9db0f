// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QApplication>
#include <QStyleOptionFocusRect>
#include <QVariant>
#include <QWidget>

/// The frame of keyboard focus: whether it shows, and who draws it.
namespace FocusFrame {

/// True when a widget in \a state shows a frame. Focus by mouse shows none.
inline bool isShown(QStyle::State state)
{
    return state.testFlag(QStyle::State_HasFocus)
            && state.testFlag(QStyle::State_KeyboardFocusChange);
}

/// True when the application's style draws all frames, as its property "useGlobalFocusBorders"
/// says. False without an application.
inline bool areBordersGlobal()
{
    const QCoreApplication *app = QCoreApplication::instance();
    return app && app->property("useGlobalFocusBorders").toBool();
}

/// Returns the option for the frame of \a widget: around \a chosenRect, or around the widget if
/// that is null. The widget's property "hasCustomRect" tells the style which.
inline QStyleOptionFocusRect optionFor(const QWidget *widget, const QRect &chosenRect = {})
{
    QStyleOptionFocusRect option;
    option.initFrom(widget);
    if (!chosenRect.isNull()) {
        option.rect = chosenRect;
        option.styleObject->setProperty("hasCustomRect", true);
    }
    return option;
}

/// Makes \a style draw the frame of \a option for \a widget.
inline void draw(QPainter *painter, const QStyleOptionFocusRect &option, const QWidget *widget,
                 const QStyle *style = QApplication::style())
{
    style->drawPrimitive(QStyle::PE_FrameFocusRect, &option, painter, widget);
}

} // namespace FocusFrame
