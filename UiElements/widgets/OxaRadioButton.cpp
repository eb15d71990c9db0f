// SPDX-License-Identifier: Apache-2.0
#include "OxaRadioButton.h"

#include <UiElements/svg/DrawUtils.h>

#include <QPainter>
#include <QStyleOptionButton>

OxaRadioButton::OxaRadioButton(QWidget *parent) : OxaRadioButton(QString(), parent) { }

OxaRadioButton::OxaRadioButton(const QString &text, QWidget *parent) : QRadioButton(parent)
{
    // Not by QRadioButton's constructor: Qt would take this for one of its own from then on.
    setText(text);
    m_themeBlock.followTheme();
}

void OxaRadioButton::onThemeChanged()
{
    m_focusColorSet = OxaThemeUtils::getColorSet("background-primary", this);
}

void OxaRadioButton::paintEvent(QPaintEvent *event)
{
    QRadioButton::paintEvent(event);
    if (!m_focusColorSet.isValid())
        return;
    QPainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    DrawUtils::drawLegacyFocusRect(&painter, option.state, option.rect, m_focusColorSet.normal);
}
