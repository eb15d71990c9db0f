// SPDX-License-Identifier: Apache-2.0
#include "OxaTextBrowser.h"

OxaTextBrowser::OxaTextBrowser(QWidget *parent) : QTextBrowser(parent)
{
    m_themeBlock.followTheme();
}

void OxaTextBrowser::onThemeChanged() { }
