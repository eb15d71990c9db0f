// SPDX-License-Identifier: Apache-2.0
#include "OxaSvgLabel.h"

#include <UiElements/svg/DrawUtils.h>

#include <QPainter>
#include <QStyleOptionFrame>

OxaSvgLabel::OxaSvgLabel(QWidget *parent, QAccessible::Role role, Qt::WindowFlags flags)
    : OxaSvgLabel(QString(), parent, role, flags)
{
}

OxaSvgLabel::OxaSvgLabel(const QString &text, QWidget *parent, QAccessible::Role role,
                         Qt::WindowFlags flags)
    : OxaLabel(text, parent, role, flags), m_iconBlock(this, textColors())
{
    connect(this, &OxaSvgLabel::cssChanged, this, &OxaSvgLabel::onStyleTextChanged);
}

QSize OxaSvgLabel::sizeHint() const
{
    QSize size = QLabel::sizeHint(); // NOLINT(bugprone-parent-virtual-call)
    size.rwidth() += getTextLeftPadding() + getTextRightPadding();
    if (m_iconBlock.icon()) {
        const QMargins padding = getSvgIconPadding();
        size += QSize(padding.left() + padding.right(), padding.top() + padding.bottom())
                + getSvgIconSize();
    }
    return size;
}

void OxaSvgLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QStyleOptionFrame option;
    initStyleOption(&option);
    DrawUtils::drawSvgIconText(&painter, this, option, m_iconBlock.icon(), textColors());
}

void OxaSvgLabel::onThemeChanged()
{
    OxaLabel::onThemeChanged();
    refreshSvgIconColorSet();
}

void OxaSvgLabel::onStyleTextChanged()
{
    if (getSvgIconColorSet().isEmpty() && m_iconBlock.icon())
        m_iconBlock.icon()->setColorSet(textColors());
}
