// SPDX-License-Identifier: Apache-2.0
#include "OxaPushButton.h"

#include <UiElements/svg/DrawUtils.h>
#include <UiElements/theme/FocusFrame_p.h>
#include <UiElements/theme/StateColor_p.h>

#include <QPainter>
#include <QStyleOptionButton>

namespace {

constexpr int badgeRadius = 5;
constexpr QPoint badgeOffset(-4, 5); ///< From the top right corner to the badge's centre.

} // namespace

void OxaPushButton::initButtonStyleOption(QStyleOptionButton *option) const
{
    QPushButton::initStyleOption(option);
    option->text = getElidedText(option->text, 0, 0);
}

void OxaPushButton::paintEvent(QPaintEvent *) { paintButton(); }

void OxaPushButton::paintButton()
{
    QPainter painter(this);
    QStyleOptionButton option;
    initButtonStyleOption(&option);
    if (m_hasIcon || m_isBadgeVisible)
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    // Before the frame, so that the frame lies on top.
    if (!m_pixmap.isNull() && m_isPixmapIconVisible)
        painter.drawPixmap(option.rect.topLeft(), m_pixmap);
    style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
    paintFocusFrame(painter, option);
    if (m_isBadgeVisible)
        paintBadge(painter);
}

void OxaPushButton::paintFocusFrame(QPainter &painter, const QStyleOptionButton &option)
{
    if (!m_useGlobalFocusBorders) {
        const OxaColorSet &colors = m_focusRectColorSet.colors();
        if (colors.isValid())
            DrawUtils::drawLegacyFocusRect(&painter, option.state, option.rect, colors.normal);
        return;
    }

    const QRect customRect = property("customFocusRect").toRect();
    QStyleOptionFocusRect focusOption = FocusFrame::optionFor(this, customRect);
    if (customRect.isNull())
        focusOption.rect = option.rect;
    if (FocusFrame::isShown(focusOption.state))
        FocusFrame::draw(&painter, focusOption, this);
}

void OxaPushButton::paintBadge(QPainter &painter) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(orTransparent(
            OxaThemeUtils::getColorSet("badge-background", OxaThemeUtils::AppThemeType::Global)
                    .normal));
    painter.drawEllipse(rect().topRight() + badgeOffset, badgeRadius, badgeRadius);
}
