// SPDX-License-Identifier: Apache-2.0
#include "OxaSplitter.h"

OxaSplitter::OxaSplitter(QWidget *parent) : QSplitter(parent) { m_themeBlock.followTheme(); }

OxaSplitter::OxaSplitter(Qt::Orientation orientation, QWidget *parent)
    : QSplitter(orientation, parent)
{
    m_themeBlock.followTheme();
}

void OxaSplitter::onThemeChanged() { }
