// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/WidgetData.h>

#include <QSize>
#include <QVector>

#include <optional>

/// Where a PopupWidget lies: functions on numbers alone, all in pixels of the desktop.
namespace PopupPlacement {

/// What a popup asks for.
struct Request
{
    QRect origin;        ///< The source.
    QPoint offset;       ///< Moves the source, for the place but not for the choice of the screen.
    QSize size;          ///< The size of the popup's window.
    int leftMargin = 0;  ///< How far the body is from the window's left edge.
    int rightMargin = 0; ///< How far the body is from the window's right edge.
    WidgetData::Alignment alignment = WidgetData::Alignment::Center;
    WidgetData::ArrowPostion arrow = WidgetData::ArrowPostion::Top;
};

/// What it gets.
struct Placement
{
    QRect geometry;
    WidgetData::ArrowPostion arrow;
};

struct Screen
{
    QRect geometry;
    QRect available; ///< What is left of it beside panels.
};

/// Returns the place beside the source, whether there is room for it or not.
QRect calculateProposedRect(const Request &request);

/// Returns the screen that has the largest area in common with \a rect, the first one of several,
/// also if none has any. Null if there is no screen.
const Screen *bestScreen(const QRect &rect, const QVector<Screen> &screens);

/// Returns a place on the best screen for the source with \a isBySource, or else for the place that
/// is asked for. Where the popup would pass the far edge, it goes to the other side of its source;
/// then it is shifted, by half its size at most. Nothing if there is no screen.
std::optional<Placement> onScreen(const Request &request, const QVector<Screen> &screens,
                                  bool isBySource);

/// Returns a place inside \a window, to which the popup is shifted as far as it takes.
Placement inWindow(const Request &request, const QRect &window);

/// A rectangle of a widget on the desktop, with one of its corners mapped and its size kept: the
/// two differ for a widget that lies across screens of different scale.
struct MappedRect
{
    QRect byTopLeft;
    QRect byBottomRight;
};

/// Returns the pixel at \a cursor, or if that is not inside the part of \a rect that its \a parent
/// and one screen show, in the middle of that part; moved by \a offset.
QRect originAtCursor(const MappedRect &parent, const MappedRect &rect,
                     const QVector<Screen> &screens, const QPoint &cursor, const QPoint &offset);

} // namespace PopupPlacement
