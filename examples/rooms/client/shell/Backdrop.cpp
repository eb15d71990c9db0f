// SPDX-License-Identifier: Apache-2.0
#include "Backdrop.h"

#include "Looks.h"

#include <QPaintEvent>
#include <QPainter>

Backdrop::Backdrop(const std::string &colors, QWidget *parent) : OxaWidget(parent), m_colors(colors)
{
}

void Backdrop::paintEvent(QPaintEvent *event)
{
    QPainter(this).fillRect(event->rect(), Looks::color(m_colors));
}
