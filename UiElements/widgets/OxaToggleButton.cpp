// SPDX-License-Identifier: Apache-2.0
#include "OxaToggleButton.h"

OxaToggleButton::OxaToggleButton(QWidget *parent) : OxaPushButton(parent, QAccessible::PushButton)
{
    setCheckable(true);
    setFlat(true);
    setStyleSheet(QStringLiteral("QPushButton{ border: none; }"));
}

void OxaToggleButton::setToolTip(const QString &checkedTip, const QString &uncheckedTip)
{
    m_checkedToolTip = checkedTip;
    m_uncheckedToolTip = uncheckedTip;
    QWidget::setToolTip(currentToolTip());
}

void OxaToggleButton::setChecked(bool checked)
{
    QAbstractButton::setChecked(checked);
    QWidget::setToolTip(currentToolTip());
    setAccessibleName(currentToolTip());
}

QString OxaToggleButton::currentToolTip() const
{
    return isChecked() ? m_checkedToolTip : m_uncheckedToolTip;
}
