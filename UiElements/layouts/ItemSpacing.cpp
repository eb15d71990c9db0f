// SPDX-License-Identifier: Apache-2.0
#include "ItemSpacing_p.h"
#include "LayoutPass_p.h"

#include <QApplication>
#include <QStyle>
#include <QWidget>

namespace {

constexpr int noSpacing = -1;

int styleSpacing(const QStyle &style, Qt::Orientation orientation)
{
    return style.layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton, orientation);
}

} // namespace

ItemSpacing::ItemSpacing(const FlowLayout &layout)
    : m_ownX(LayoutPass::held(layout.horizontalSpacing())),
      m_ownY(LayoutPass::held(layout.verticalSpacing())),
      m_leavesToStyle(m_ownX == noSpacing || m_ownY == noSpacing),
      m_x(m_ownX),
      m_y(m_ownY)
{
}

void ItemSpacing::askStyleOf(QLayoutItem &item)
{
    // Items without a widget are spaced by the application's style.
    const QWidget *widget = item.widget();
    const QStyle *style = widget ? widget->style() : QApplication::style();
    if (style == m_style)
        return;
    m_style = style;
    m_x = m_ownX == noSpacing ? styleSpacing(*style, Qt::Horizontal) : m_ownX;
    m_y = m_ownY == noSpacing ? styleSpacing(*style, Qt::Vertical) : m_ownY;
}
