// SPDX-License-Identifier: Apache-2.0
#include "OxaElisionBlock.h"

#include <QWidget>

void OxaElisionBlock::setMode(Qt::TextElideMode mode)
{
    m_mode = mode;
    m_widget->update();
}

void OxaElisionBlock::setPadding(int padding)
{
    m_padding = padding;
    m_widget->update();
}

int OxaElisionBlock::lineWidth() const { return m_widget->width() - m_padding; }

QString OxaElisionBlock::elidedText(const QString &text, int usedWidth) const
{
    if (m_mode == Qt::ElideNone)
        return text;
    return m_widget->fontMetrics().elidedText(text, m_mode, lineWidth() - usedWidth);
}
