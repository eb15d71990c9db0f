// SPDX-License-Identifier: Apache-2.0
#include "OxaFrame.h"

OxaFrame::OxaFrame(QWidget *parent, Qt::WindowFlags flags) : QFrame(parent, flags)
{
    m_themeBlock.followTheme();
}

void OxaFrame::onThemeChanged() { }
