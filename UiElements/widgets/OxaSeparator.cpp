// SPDX-License-Identifier: Apache-2.0
#include "OxaSeparator.h"

#include <UiElements/theme/StateColor_p.h>

#include <QPainter>

OxaSeparator::OxaSeparator(QWidget *parent) : OxaWidget(parent)
{
    setFixedHeight(1);
    OxaSeparator::onThemeChanged();
}

QString OxaSeparator::getColorSetName() const { return m_colorSetName; }

void OxaSeparator::setColorSetName(const QString &name) { m_colorSetName = name; }

void OxaSeparator::onThemeChanged()
{
    m_color = OxaThemeUtils::getColorSet(m_colorSetName.toStdString(), this).normal;
    update();
}

void OxaSeparator::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor color = orTransparent(m_color);
    painter.setPen(color);
    painter.setBrush(color);
    painter.drawRect(rect());
}
