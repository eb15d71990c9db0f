// SPDX-License-Identifier: Apache-2.0
#include "OxaQmlHalfPill.h"

#include "NaturalRole_p.h"

#include <QPainter>
#include <QPainterPath>
#include <QPointer>

OxaQmlHalfPill::OxaQmlHalfPill(QQuickItem *parent) : QQuickPaintedItem(parent) { }

void OxaQmlHalfPill::componentComplete()
{
    const QPointer<OxaQmlHalfPill> self = this; // A handler in QML may delete it.
    QQuickPaintedItem::componentComplete();
    if (self)
        setNaturalRole(this, QAccessible::Grouping);
}

QColor OxaQmlHalfPill::backgroundColor() const { return m_backgroundColor; }

void OxaQmlHalfPill::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
    const QPointer<OxaQmlHalfPill> self = this;
    Q_EMIT backgroundColorChanged();
    if (self)
        update();
}

QColor OxaQmlHalfPill::borderColor() const { return m_borderColor; }

void OxaQmlHalfPill::setBorderColor(const QColor &color)
{
    m_borderColor = color;
    const QPointer<OxaQmlHalfPill> self = this;
    Q_EMIT borderColorChanged();
    if (self)
        update();
}

void OxaQmlHalfPill::paint(QPainter *painter)
{
    const QSizeF size = this->size();
    drawSemiCircle(painter, size);
    drawRect(painter, size);
    drawBorders(painter, size, m_borderColor, m_borderWidth, m_borderLeft, m_borderTop,
                m_borderRight, m_borderBottom);
}

/// Draws the whole ellipse. drawRect() covers its inner half.
void OxaQmlHalfPill::drawSemiCircle(QPainter *painter, const QSizeF &size) const
{
    if (m_edge == None)
        return;
    const bool isLeft = m_edge == Left;
    const double height = size.height();
    const double inset = (isLeft ? m_borderLeft : m_borderRight) ? m_borderWidth * 0.5 : 0;
    const double x = isLeft ? inset : size.width() - height - inset;

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_backgroundColor);
    painter->drawEllipse(QRectF(x, inset, height, height - inset));
    painter->restore();
}

void OxaQmlHalfPill::drawRect(QPainter *painter, const QSizeF &size) const
{
    QRectF rect(QPointF(0, 0), size);
    const double roundEnd = m_borderWidth + size.height() * 0.5;
    if (m_edge == Left)
        rect.translate(roundEnd, 0); // Past the right end, where the item clips it.
    else if (m_edge == Right)
        rect.setRight(size.width() - roundEnd);

    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_backgroundColor);
    painter->drawRect(rect);
}

// NOLINTNEXTLINE(readability-function-size): each side has a parameter of its own
void OxaQmlHalfPill::drawBorders(QPainter *painter, const QSizeF &size, const QColor &color,
                                 int width, bool left, bool top, bool right, bool bottom) const
{
    const double half = width * 0.5;
    const double height = size.height();
    const double inset = height * 0.5 + width;
    const double x0 = m_edge == Left ? inset - half : -half;
    const double x1 = m_edge == Right ? size.width() - inset : size.width();

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));

    // Each line is drawn again with those after it: translucent colours and smooth edges add up.
    QPainterPath lines;
    const auto drawLine = [painter, &lines](const QPointF &from, const QPointF &to) {
        lines.moveTo(from);
        lines.lineTo(to);
        painter->drawPath(lines);
    };
    if (top)
        drawLine({ x0, half }, { x1, half });
    if (bottom)
        drawLine({ x0, height - half }, { x1, height - half });
    if (right && m_edge != Right)
        drawLine({ x1 - half, half }, { x1 - half, height });
    if (left && m_edge != Left)
        drawLine({ width + x0, half }, { width + x0, height });

    constexpr int quarter = 90 * 16;
    if (m_edge == Left && left)
        painter->drawArc(QRectF(half, half, height, height - width), quarter, 2 * quarter);
    if (m_edge == Right && right) {
        const QRectF circle(size.width() - height - half, half, height, height - width);
        painter->drawArc(circle, quarter, -2 * quarter);
    }
    painter->restore();
}
