// SPDX-License-Identifier: Apache-2.0
#include "OxaStackedWidget.h"

OxaStackedWidget::OxaStackedWidget(QWidget *parent) : QStackedWidget(parent)
{
    m_themeBlock.followTheme();
}

void OxaStackedWidget::onThemeChanged() { }
