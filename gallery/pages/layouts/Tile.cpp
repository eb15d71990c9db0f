// SPDX-License-Identifier: Apache-2.0
#include "Tile.h"

#include <QAccessible>
#include <QPainter>

namespace {

constexpr QSize smallest(44, 24);
constexpr int radius = 4;
constexpr int focusWidth = 2;

} // namespace

Tile::Tile(int number, const TileLook &look, QWidget *parent)
    : QWidget(parent), m_number(number), m_look(look)
{
    // All tiles are one stop for Tab; the arrow keys go from one to the next.
    setFocusPolicy(Qt::ClickFocus);
    setAccessibleName(tr("Tile %1").arg(number));
    setProperty("accessibleRole", QVariant::fromValue(QAccessible::ListItem));
}

void Tile::setSizes(LayoutSettings::Sizes sizes)
{
    m_sizes = sizes;
    updateGeometry();
}

QSize Tile::sizeHint() const
{
    // Steps without a common divisor with their ranges: neighbours differ.
    QSize size = smallest;
    if (m_sizes != LayoutSettings::Sizes::Equal)
        size.rheight() += m_number * 17 % 37;
    if (m_sizes == LayoutSettings::Sizes::Both)
        size.rwidth() += m_number * 23 % 53;
    return size;
}

void Tile::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_look.grounds[std::size_t(m_number) % m_look.grounds.size()]);
    const int border = m_look.borderWidth;
    const QRect inner = rect().adjusted(border, border, -border, -border);
    painter.drawRoundedRect(inner, radius, radius);
    painter.setPen(m_look.text);
    painter.drawText(rect(), Qt::AlignCenter, QString::number(m_number));
    if (!hasFocus())
        return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(m_look.text, focusWidth));
    constexpr int inset = focusWidth / 2;
    painter.drawRoundedRect(inner.adjusted(inset, inset, -inset, -inset), radius, radius);
}

void Tile::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void Tile::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}
