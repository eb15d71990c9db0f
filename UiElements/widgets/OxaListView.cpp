// SPDX-License-Identifier: Apache-2.0
#include "OxaListView.h"

OxaListView::OxaListView(QWidget *parent) : QListView(parent) { m_themeBlock.followTheme(); }

void OxaListView::onThemeChanged() { }
