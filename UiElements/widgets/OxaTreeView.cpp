// SPDX-License-Identifier: Apache-2.0
#include "OxaTreeView.h"

OxaTreeView::OxaTreeView(QWidget *parent) : QTreeView(parent) { m_themeBlock.followTheme(); }

void OxaTreeView::onThemeChanged() { }
