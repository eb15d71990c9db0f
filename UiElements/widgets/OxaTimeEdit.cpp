// SPDX-License-Identifier: Apache-2.0
#include "OxaTimeEdit.h"

OxaTimeEdit::OxaTimeEdit(QWidget *parent) : QTimeEdit(parent) { m_themeBlock.followTheme(); }

OxaTimeEdit::OxaTimeEdit(const QTime &time, QWidget *parent) : QTimeEdit(time, parent)
{
    m_themeBlock.followTheme();
}

void OxaTimeEdit::onThemeChanged() { }
