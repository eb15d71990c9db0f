// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/PopupWidget.h>

#include <QLayout>
#include <QScreen>
#include <QTest>

#include <algorithm>
#include <vector>

/// Where a popup must lie, by arithmetic on edges alone, and a table of sources, sizes and sides.
namespace PopupRules {

using Alignment = WidgetData::Alignment;
using Side = WidgetData::ArrowPostion;

constexpr Alignment alignments[] = { Alignment::Left, Alignment::Center, Alignment::Right };
constexpr Side sides[] = { Side::Top,    Side::Left,         Side::Right,
                           Side::Bottom, Side::NoArrowAbove, Side::NoArrowBelow };
constexpr const char *sideNames[] = { "top",    "left",           "right",
                                      "bottom", "no arrow above", "no arrow below" };
constexpr const char *alignmentNames[] = { "left", "centre", "right" };
constexpr int margin = 4; // Of the popup's own layout, for its shadow.

struct Screen
{
    QRect all;
    QRect available;
};

struct Case
{
    QRect source;
    QPoint offset;
    QSize size;
    Alignment alignment = Alignment::Center;
    Side side = Side::Top;
};

/// A place and the side of the arrow there.
struct Answer
{
    QRect place;
    Side side = Side::Top;

    /// Returns both as a text.
    QString text() const
    {
        return QStringLiteral("%1,%2 %3x%4 %5")
                .arg(place.x())
                .arg(place.y())
                .arg(place.width())
                .arg(place.height())
                .arg(QLatin1String(sideNames[int(side)]));
    }
};

/// Returns the place that \a c asks for with the arrow on \a side.
inline QRect wish(const Case &c, Side side)
{
    const int x1 = c.source.x() + c.offset.x();
    const int y1 = c.source.y() + c.offset.y();
    const int x2 = x1 + c.source.width() - 1;
    const int y2 = y1 + c.source.height() - 1;
    const int w = c.size.width();
    const int h = c.size.height();
    int x = (x1 + x2) / 2 - w / 2;
    if (c.alignment == Alignment::Left)
        x = x1 - margin;
    if (c.alignment == Alignment::Right)
        x = x2 - w + margin;
    const int y = (y1 + y2) / 2 - h / 2;
    if (side == Side::Left)
        return { x2, y, w, h };
    if (side == Side::Right)
        return { x1 - w, y, w, h };
    const bool isBelow = side == Side::Top || side == Side::NoArrowBelow;
    return { x, isBelow ? y2 : y1 - h, w, h };
}

/// Returns how far \a from to \a to must move to lie between \a low and \a high; the high end
/// first.
inline int push(int from, int to, int low, int high)
{
    return to > high ? high - to : from < low ? low - from : 0;
}

/// Returns how many pixels \a a and \a b have in common.
inline qint64 common(const QRect &a, const QRect &b)
{
    const qint64 w = qMin(a.x() + a.width(), b.x() + b.width()) - qMax(a.x(), b.x());
    const qint64 h = qMin(a.y() + a.height(), b.y() + b.height()) - qMax(a.y(), b.y());
    return w > 0 && h > 0 ? w * h : 0;
}

/// Returns the screen that shows most of \a rect, the first one of equals.
inline Screen screenFor(const QRect &rect, const std::vector<Screen> &screens)
{
    return *std::max_element(screens.begin(), screens.end(),
                             [&rect](const Screen &a, const Screen &b) {
                                 return common(a.all, rect) < common(b.all, rect);
                             });
}

/// Returns the place of \a c on \a screens.
inline Answer onScreens(const Case &c, const std::vector<Screen> &screens, bool isBySource = false)
{
    Side side = c.side;
    QRect place = wish(c, side);
    QRect area = screenFor(isBySource ? c.source : place, screens).available;
    if (c.side == Side::Top && place.bottom() > area.bottom())
        side = Side::Bottom;
    if (c.side == Side::Left && place.right() > area.right())
        side = Side::Right;
    if (c.side == Side::NoArrowAbove && place.top() < area.top())
        side = Side::NoArrowBelow;
    place = wish(c, side);
    area = screenFor(isBySource ? c.source : place, screens).available;
    const int halfWidth = c.size.width() / 2;
    const int halfHeight = c.size.height() / 2;
    int dx = push(place.left(), place.right(), area.left(), area.right());
    int dy = push(place.top(), place.bottom(), area.top(), area.bottom());
    dx = qMax(-halfWidth, qMin(dx, halfWidth));
    dy = qMax(-halfHeight, qMin(dy, halfHeight));
    return { place.translated(dx, dy), side };
}

/// Returns the place of \a c inside \a window.
inline Answer inWindow(const Case &c, const QRect &window)
{
    Side side = c.side;
    QRect place = wish(c, side);
    if (side == Side::Top && place.bottom() > window.bottom())
        side = Side::Bottom;
    else if (side == Side::Left && place.right() > window.right())
        side = Side::Right;
    place = wish(c, side);
    return { place.translated(push(place.left(), place.right(), window.left(), window.right()),
                              push(place.top(), place.bottom(), window.top(), window.bottom())),
             side };
}

/// Returns sources of 60 by 20 in the middle, at the edges and in the corners of \a area.
inline std::vector<QRect> sources(const QRect &area)
{
    const QSize size(60, 20);
    std::vector<QRect> found;
    for (const int x : { area.left(), area.center().x() - 30, area.right() - 59 }) {
        for (const int y : { area.top(), area.center().y() - 10, area.bottom() - 19 })
            found.emplace_back(QPoint(x, y), size);
    }
    return found;
}

/// Returns a small size, a large one, and one that is larger than \a area.
inline std::vector<QSize> sizes(const QRect &area)
{
    return { QSize(120, 90), QSize(area.width() * 2 / 3, area.height() * 2 / 3 + 1),
             QSize(area.width() + 101, area.height() + 100) };
}

/// Returns the side with room for an arrow in \a popup; \a none for a popup without an arrow.
inline Side sideOf(const PopupWidget &popup, Side none)
{
    const QMargins margins = popup.getMainWidget()->layout()->contentsMargins();
    const int smallest = std::min(
            { margins.left(), margins.top(), margins.right(), margins.bottom() });
    if (margins.top() > smallest)
        return Side::Top;
    if (margins.left() > smallest)
        return Side::Left;
    if (margins.right() > smallest)
        return Side::Right;
    return margins.bottom() > smallest ? Side::Bottom : none;
}

/// Returns the screens of the application.
inline std::vector<Screen> currentScreens()
{
    std::vector<Screen> screens;
    const QList<QScreen *> all = QGuiApplication::screens();
    for (const QScreen *screen : all)
        screens.push_back({ screen->geometry(), screen->availableGeometry() });
    return screens;
}

} // namespace PopupRules

Q_DECLARE_METATYPE(PopupRules::Case)
