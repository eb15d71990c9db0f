// SPDX-License-Identifier: Apache-2.0
#include "OxaQmlBalloon.h"

#include "NaturalRole_p.h"

#include <UiElements/app/BoundedPixels_p.h>

#include <QPainter>
#include <QPointer>
#include <QRect>

using BoundedPixels::bounded;

static QPainterPath roundedRectangle(const QRectF &rect, double radius)
{
    const double diameter = 2 * radius;
    const double arcLeft = rect.right() - diameter;
    const double arcTop = rect.bottom() - diameter;
    QPainterPath path;
    path.moveTo(rect.right(), rect.top() + radius);
    path.arcTo(arcLeft, rect.top(), diameter, diameter, 0, 90);
    path.lineTo(rect.left() + radius, rect.top());
    path.arcTo(rect.left(), rect.top(), diameter, diameter, 90, 90);
    path.lineTo(rect.left(), rect.bottom() - radius);
    path.arcTo(rect.left(), arcTop, diameter, diameter, 180, 90);
    path.lineTo(rect.right() - radius, rect.bottom());
    path.arcTo(arcLeft, arcTop, diameter, diameter, 270, 90);
    path.closeSubpath();
    return path;
}

/// Returns \a center, but where an arrow runs into neither of the corners at 0 and at \a length.
/// Where there is no room between them, the first corner counts.
static double clampedCenter(double center, double corner, double length)
{
    return corner > center ? corner : qMin(center, length - corner);
}

OxaQmlBalloon::OxaQmlBalloon(QQuickItem *parent) : QQuickPaintedItem(parent) { }

void OxaQmlBalloon::componentComplete()
{
    const QPointer<OxaQmlBalloon> self = this; // A handler in QML may delete it.
    QQuickPaintedItem::componentComplete();
    if (self)
        setNaturalRole(this, QAccessible::ToolTip);
}

template <typename Value>
void OxaQmlBalloon::change(Value &member, const Value &value, void (OxaQmlBalloon::*changed)())
{
    if (member == value)
        return;
    member = value;
    const QPointer<OxaQmlBalloon> self = this;
    Q_EMIT(this->*changed)();
    if (self)
        update();
}

OxaQmlBalloon::ArrowAlignment OxaQmlBalloon::arrowAlignment() const { return m_arrowAlignment; }

void OxaQmlBalloon::setArrowAlignment(ArrowAlignment alignment)
{
    change(m_arrowAlignment, alignment, &OxaQmlBalloon::arrowAlignmentChanged);
}

OxaQmlBalloon::ArrowAnchor OxaQmlBalloon::arrowAnchor() const { return m_arrowAnchor; }

void OxaQmlBalloon::setArrowAnchor(ArrowAnchor anchor)
{
    change(m_arrowAnchor, anchor, &OxaQmlBalloon::arrowAnchorChanged);
}

QColor OxaQmlBalloon::backgroundColor() const { return m_backgroundColor; }

void OxaQmlBalloon::setBackgroundColor(const QColor &color)
{
    change(m_backgroundColor, color, &OxaQmlBalloon::backgroundColorChanged);
}

QColor OxaQmlBalloon::borderColor() const { return m_borderColor; }

void OxaQmlBalloon::setBorderColor(const QColor &color)
{
    change(m_borderColor, color, &OxaQmlBalloon::borderColorChanged);
}

int OxaQmlBalloon::arrowOffset() const { return m_arrowOffset; }

void OxaQmlBalloon::setArrowOffset(int offset)
{
    change(m_arrowOffset, offset, &OxaQmlBalloon::arrowOffsetChanged);
}

int OxaQmlBalloon::arrowSize() const { return m_arrowSize; }

void OxaQmlBalloon::setArrowSize(int size)
{
    change(m_arrowSize, size, &OxaQmlBalloon::arrowSizeChanged);
}

int OxaQmlBalloon::radius() const { return m_radius; }

int OxaQmlBalloon::borderWidth() const { return m_borderWidth; }

void OxaQmlBalloon::setBorderWidth(int width)
{
    change(m_borderWidth, width, &OxaQmlBalloon::borderWidthChanged);
}

int OxaQmlBalloon::topMargin() const { return m_topMargin; }

void OxaQmlBalloon::setTopMargin(int margin)
{
    change(m_topMargin, margin, &OxaQmlBalloon::topMarginChanged);
}

double OxaQmlBalloon::getXCenter(const QSizeF &size) const
{
    double x = size.width() * 0.5;
    if (m_arrowAlignment == LeftAlignment)
        x = m_arrowSize;
    else if (m_arrowAlignment == RightAlignment)
        x = size.width() - m_arrowSize;
    return clampedCenter(x + m_arrowOffset, double(m_arrowSize) + m_radius, size.width());
}

double OxaQmlBalloon::getYCenter(const QSizeF &size) const
{
    double y = size.height() * 0.5;
    if (m_arrowAlignment == TopAlignment)
        y = m_arrowSize;
    else if (m_arrowAlignment == BottomAlignment)
        y = size.height() - m_arrowSize;
    return clampedCenter(y + m_arrowOffset, double(m_arrowSize) + m_radius, size.height());
}

/// Returns body and arrow. The arrow is open: its base is a part of the body's outline.
QPainterPath OxaQmlBalloon::outline(const QSizeF &size) const
{
    const double a = m_arrowSize;
    const double w = size.width();
    const double h = size.height();
    const double cx = getXCenter(size);
    const double cy = getYCenter(size);
    QRectF body(QPointF(0, 0), size);
    QPolygonF arrow;
    switch (m_arrowAnchor) {
    case None:
        break;
    case Top:
        arrow << QPointF(cx + a, a) << QPointF(cx, 0) << QPointF(cx - a, a);
        body.setTop(a);
        break;
    case Bottom:
        arrow << QPointF(cx + a, h - a) << QPointF(cx, h) << QPointF(cx - a, h - a);
        body.setBottom(h - a);
        break;
    case Left:
        arrow << QPointF(a, cy + a) << QPointF(0, cy) << QPointF(a, cy - a);
        body.setLeft(a);
        break;
    case Right:
        arrow << QPointF(w - a, cy + a) << QPointF(w, cy) << QPointF(w - a, cy - a);
        body.setRight(w - a);
        break;
    }
    QPainterPath path = roundedRectangle(body, m_radius);
    path.addPolygon(arrow);
    return path;
}

void OxaQmlBalloon::paint(QPainter *painter)
{
    painter->setBrush(m_backgroundColor);
    painter->setPen(QPen(m_borderColor, m_borderWidth));
    painter->setRenderHint(QPainter::Antialiasing);

    const QSizeF size(bounded(width()), bounded(height() - m_topMargin));
    if (m_arrowAnchor == None) {
        const QRect rect(0, 0, int(size.width()), int(size.height()));
        painter->drawRoundedRect(rect, m_radius, m_radius);
        return;
    }
    const auto parts = std::make_tuple(size.width(), size.height(), m_arrowAnchor, getXCenter(size),
                                       getYCenter(size), m_arrowSize, m_radius);
    if (parts != m_outlineParts) {
        m_outlineParts = parts;
        m_outline = outline(size).simplified(); // Slow, and the same for most repaints.
    }
    painter->drawPath(m_outline);
}

OxaQmlBalloon::ArrowAnchor OxaQmlBalloon::arrowAnchorFromArrowType(Qt::ArrowType arrow)
{
    return arrow >= Qt::UpArrow && arrow <= Qt::RightArrow ? ArrowAnchor(arrow) : None;
}

Qt::ArrowType OxaQmlBalloon::arrowTypeFromArrowAnchor(ArrowAnchor anchor)
{
    return anchor >= Top && anchor <= Right ? Qt::ArrowType(anchor) : Qt::NoArrow;
}

OxaQmlBalloon::ArrowAnchor OxaQmlBalloon::flipAnchor(ArrowAnchor anchor)
{
    switch (anchor) {
    case Top:
        return Bottom;
    case Bottom:
        return Top;
    case Left:
        return Right;
    case Right:
        return Left;
    case None:
        break;
    }
    return None;
}

QPoint OxaQmlBalloon::calcArrowPos(QQuickItem *item, const QSize &size, ArrowAnchor anchor,
                                   ArrowAlignment alignment, int offset, int inset)
{
    if (!item)
        return {};
    const QRect rect(bounded(item->mapToGlobal(QPointF(0, 0))), bounded(item->size()));
    const QSize box = bounded(QSizeF(size));
    const QPoint shift = bounded(QPointF(offset, inset));
    return { getGlobalXCenter(alignment, anchor, rect, shift.x(), shift.y(), box.width()),
             getGlobalYCenter(alignment, anchor, rect, shift.x(), shift.y(), box.height()) };
}

int OxaQmlBalloon::getGlobalXCenter(ArrowAlignment alignment, ArrowAnchor anchor, const QRect &rect,
                                    int offset, int inset, int width)
{
    if (anchor == Left)
        return rect.right();
    if (anchor == Right)
        return rect.left() - width;

    const int middle = rect.right() - rect.width() / 2 - offset;
    if (alignment == LeftAlignment)
        return middle - inset;
    if (alignment == RightAlignment)
        return middle - width + inset;
    return middle - width / 2;
}

int OxaQmlBalloon::getGlobalYCenter(ArrowAlignment alignment, ArrowAnchor anchor, const QRect &rect,
                                    int offset, int inset, int height)
{
    if (anchor == Top)
        return rect.bottom();
    if (anchor == Bottom)
        return rect.top() - height;
    if (anchor != Left && anchor != Right)
        return rect.top();

    const int middle = rect.bottom() - rect.height() / 2 - offset;
    if (alignment == TopAlignment)
        return middle - inset;
    if (alignment == BottomAlignment)
        return middle - height + inset;
    return middle - height / 2;
}
