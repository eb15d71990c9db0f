// SPDX-License-Identifier: Apache-2.0
#include "Backdrop.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <QPaintEvent>
#include <QPainter>

Backdrop::Backdrop(const std::string &colors, QWidget *parent) : OxaWidget(parent), m_colors(colors)
{
}

void Backdrop::paintEvent(QPaintEvent *event)
{
    QPainter(this).fillRect(event->rect(), OxaThemeUtils::getColorSet(m_colors, this).normal);
}
