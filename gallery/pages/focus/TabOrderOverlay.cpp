// SPDX-License-Identifier: Apache-2.0
#include "TabOrderOverlay.h"

#include <UiElements/fonts/OxaFont.h>

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>

namespace {

constexpr int badgeSize = 20;
constexpr qreal arrowLength = 7;
constexpr qreal arrowWidth = 3.5;
constexpr qreal lineWidth = 1.25;
constexpr qreal lineOpacity = 0.7;

QPointF along(const QPointF &from, const QPointF &direction, qreal distance)
{
    return from + direction * distance;
}

} // namespace

TabOrderOverlay::TabOrderOverlay(QWidget *window) : QWidget(window)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    m_themeBlock.followTheme();
}

void TabOrderOverlay::setStops(const std::vector<QWidget *> &stops)
{
    setFont(OxaFont(OxaFont::Token::TagLabelSecondary));
    setGeometry(parentWidget()->rect());
    raise();
    m_stops.clear();
    int number = 0;
    for (QWidget *widget : stops) {
        ++number;
        // Widgets that are scrolled out of view get no number.
        if (!widget->visibleRegion().isEmpty())
            m_stops.push_back({ number, badgeOf(*widget), widget->hasFocus() });
    }
    update();
}

void TabOrderOverlay::onThemeChanged()
{
    const auto color = [this](const char *name) {
        return OxaThemeUtils::getColorSet(name, getThemeType()).normal;
    };
    m_line = color("presence-busy");
    m_ground = color("avatar-purple");
    m_text = color("avatar-text");
    m_focusGround = color("avatar-orange");
    update();
}

void TabOrderOverlay::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(lineOpacity);
    for (std::size_t i = 1; i < m_stops.size(); ++i)
        paintArrow(painter, m_stops[i - 1].centre, m_stops[i].centre);
    painter.setOpacity(1);
    for (const Stop &stop : m_stops)
        paintBadge(painter, stop);
}

/// Returns the position of the badge of \a widget: the corner where its lines begin.
QPoint TabOrderOverlay::badgeOf(const QWidget &widget) const
{
    const QRect seen = widget.visibleRegion().boundingRect();
    const QPoint corner = QGuiApplication::isRightToLeft() ? seen.topRight() : seen.topLeft();
    constexpr int radius = badgeSize / 2;
    const QRect room = rect().adjusted(radius, radius, -radius, -radius);
    const QPoint wanted = widget.mapTo(parentWidget(), corner);
    return { qBound(room.left(), wanted.x(), room.right()),
             qBound(room.top(), wanted.y(), room.bottom()) };
}

void TabOrderOverlay::paintArrow(QPainter &painter, const QPoint &from, const QPoint &to) const
{
    const QPointF way = to - from;
    const qreal length = qSqrt(QPointF::dotProduct(way, way));
    constexpr qreal radius = badgeSize / 2.0;
    if (length <= 2 * radius + arrowLength)
        return;
    const QPointF direction = way / length;
    const QPointF side(-direction.y(), direction.x());
    const QPointF tip = along(to, direction, -radius);
    const QPointF base = along(tip, direction, -arrowLength);
    painter.setPen(QPen(m_line, lineWidth));
    painter.drawLine(along(from, direction, radius), base);
    QPainterPath head(tip);
    head.lineTo(along(base, side, arrowWidth));
    head.lineTo(along(base, side, -arrowWidth));
    head.closeSubpath();
    painter.fillPath(head, m_line);
}

void TabOrderOverlay::paintBadge(QPainter &painter, const Stop &stop) const
{
    QRect badge(0, 0, badgeSize, badgeSize);
    badge.moveCenter(stop.centre);
    painter.setPen(m_text);
    painter.setBrush(stop.hasFocus ? m_focusGround : m_ground);
    painter.drawEllipse(badge);
    painter.drawText(badge, Qt::AlignCenter, QString::number(stop.number));
}
