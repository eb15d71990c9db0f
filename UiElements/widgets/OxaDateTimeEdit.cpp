// SPDX-License-Identifier: Apache-2.0
#include "OxaDateTimeEdit.h"

OxaDateTimeEdit::OxaDateTimeEdit(QWidget *parent) : QDateTimeEdit(parent)
{
    m_themeBlock.followTheme();
}

OxaDateTimeEdit::OxaDateTimeEdit(const QDateTime &dateTime, QWidget *parent)
    : QDateTimeEdit(dateTime, parent)
{
    m_themeBlock.followTheme();
}

OxaDateTimeEdit::OxaDateTimeEdit(const QDate &date, QWidget *parent) : QDateTimeEdit(date, parent)
{
    m_themeBlock.followTheme();
}

OxaDateTimeEdit::OxaDateTimeEdit(const QTime &time, QWidget *parent) : QDateTimeEdit(time, parent)
{
    m_themeBlock.followTheme();
}

void OxaDateTimeEdit::onThemeChanged() { }
