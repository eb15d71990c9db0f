// SPDX-License-Identifier: Apache-2.0
#include "PopupPlacement_p.h"

using Alignment = WidgetData::Alignment;
using ArrowPostion = WidgetData::ArrowPostion;
using namespace PopupPlacement;

namespace {

qint64 areaOf(const QRect &rect)
{
    return rect.isEmpty() ? 0 : qint64(rect.width()) * rect.height();
}

int alignedLeft(const Request &request, const QRect &source)
{
    switch (request.alignment) {
    case Alignment::Left:
        return source.left() - request.leftMargin;
    case Alignment::Center:
        return (source.left() + source.right()) / 2 - request.size.width() / 2;
    case Alignment::Right:
        return source.right() - request.size.width() + request.rightMargin;
    }
    return source.left();
}

QPoint proposedTopLeft(const Request &request, const QRect &source)
{
    const int centredTop = (source.top() + source.bottom()) / 2 - request.size.height() / 2;
    switch (request.arrow) {
    case ArrowPostion::Top:
    case ArrowPostion::NoArrowBelow:
        return { alignedLeft(request, source), source.bottom() };
    case ArrowPostion::Bottom:
    case ArrowPostion::NoArrowAbove:
        return { alignedLeft(request, source), source.top() - request.size.height() };
    case ArrowPostion::Left:
        return { source.right(), centredTop };
    case ArrowPostion::Right:
        return { source.left() - request.size.width(), centredTop };
    }
    return source.topLeft();
}

/// Returns the side that \a rect flips to because it passes \a area on the far side of the source,
/// or else \a arrow. Nothing goes to the side where an arrow at the bottom or on the right points.
ArrowPostion flipped(ArrowPostion arrow, const QRect &rect, const QRect &area)
{
    if (arrow == ArrowPostion::Top && rect.bottom() > area.bottom())
        return ArrowPostion::Bottom;
    if (arrow == ArrowPostion::Left && rect.right() > area.right())
        return ArrowPostion::Right;
    return arrow;
}

/// Returns how far to move what reaches from \a first to \a last, so that it does not pass the
/// edges of an area; it may pass the lower one afterwards.
int shiftInto(int areaFirst, int areaLast, int first, int last)
{
    if (last > areaLast)
        return areaLast - last;
    if (first < areaFirst)
        return areaFirst - first;
    return 0;
}

QPoint shiftInto(const QRect &area, const QRect &rect)
{
    return { shiftInto(area.left(), area.right(), rect.left(), rect.right()),
             shiftInto(area.top(), area.bottom(), rect.top(), rect.bottom()) };
}

/// Returns \a shift with at most half the size of \a rect, so that the arrow stays at the source.
QPoint limited(const QPoint &shift, const QRect &rect)
{
    const int halfWidth = rect.width() / 2;
    const int halfHeight = rect.height() / 2;
    return { qBound(-halfWidth, shift.x(), halfWidth), qBound(-halfHeight, shift.y(), halfHeight) };
}

QRect screenAt(const QPoint &point, const QVector<Screen> &screens)
{
    for (const Screen &screen : screens) {
        if (screen.geometry.contains(point))
            return screen.geometry;
    }
    return {};
}

} // namespace

QRect PopupPlacement::calculateProposedRect(const Request &request)
{
    const QRect source = request.origin.translated(request.offset);
    return { proposedTopLeft(request, source), request.size };
}

const Screen *PopupPlacement::bestScreen(const QRect &rect, const QVector<Screen> &screens)
{
    const Screen *best = nullptr;
    qint64 bestArea = -1;
    for (const Screen &screen : screens) {
        const qint64 area = areaOf(screen.geometry & rect);
        if (area > bestArea) {
            best = &screen;
            bestArea = area;
        }
    }
    return best;
}

std::optional<Placement> PopupPlacement::onScreen(const Request &request,
                                                  const QVector<Screen> &screens, bool isBySource)
{
    const QRect proposed = calculateProposedRect(request);
    const Screen *screen = bestScreen(isBySource ? request.origin : proposed, screens);
    if (!screen)
        return std::nullopt;

    const QRect area = screen->available;
    Request other = request;
    other.arrow = flipped(request.arrow, proposed, area);
    if (request.arrow == ArrowPostion::NoArrowAbove && proposed.top() < area.top())
        other.arrow = ArrowPostion::NoArrowBelow;
    if (other.arrow != request.arrow)
        return onScreen(other, screens, isBySource);
    return Placement { proposed.translated(limited(shiftInto(area, proposed), proposed)),
                       request.arrow };
}

Placement PopupPlacement::inWindow(const Request &request, const QRect &window)
{
    const QRect proposed = calculateProposedRect(request);
    Request other = request;
    other.arrow = flipped(request.arrow, proposed, window);
    if (other.arrow != request.arrow)
        return inWindow(other, window);
    return { proposed.translated(shiftInto(window, proposed)), request.arrow };
}

QRect PopupPlacement::originAtCursor(const MappedRect &parent, const MappedRect &rect,
                                     const QVector<Screen> &screens, const QPoint &cursor,
                                     const QPoint &offset)
{
    QRect first = parent.byTopLeft & rect.byTopLeft;
    QRect last = parent.byBottomRight & rect.byBottomRight;
    if (first != last) {
        first &= screenAt(parent.byTopLeft.topLeft(), screens);
        last &= screenAt(parent.byBottomRight.bottomRight(), screens);
    }
    QRect area = areaOf(first) > areaOf(last) ? first : last;
    if (const Screen *screen = bestScreen(area, screens))
        area &= screen->available;
    return { (area.contains(cursor) ? cursor : area.center()) + offset, QSize(1, 1) };
}
