// SPDX-License-Identifier: Apache-2.0
#include "ColorSetDelegate.h"

#include "ColorSetModel.h"
#include "Metrics.h"

#include <UiElements/fonts/OxaFont.h>

#include <QPainter>

namespace {

constexpr int swatchHeight = 24;
constexpr int swatchRadius = 4;
constexpr int checkSize = 4;

/// Paints what tells a translucent colour from a solid one: a chequered ground.
void paintChecks(QPainter *painter, const QRect &rect)
{
    painter->fillRect(rect, Qt::white);
    for (int y = 0; y < rect.height(); y += checkSize) {
        for (int x = (y / checkSize % 2) * checkSize; x < rect.width(); x += 2 * checkSize)
            painter->fillRect(QRect(rect.topLeft() + QPoint(x, y), QSize(checkSize, checkSize))
                                      .intersected(rect),
                              Qt::lightGray);
    }
}

} // namespace

ColorSetDelegate::ColorSetDelegate(QObject *parent) : QStyledItemDelegate(parent) { }

void ColorSetDelegate::refresh(OxaThemeUtils::AppThemeType themeType)
{
    m_ground = OxaThemeUtils::getColorSet("gallery-list-item", themeType);
    m_headingText = OxaThemeUtils::getColorSet("gallery-heading-text", themeType);
    m_nameText = OxaThemeUtils::getColorSet("gallery-list-item-text", themeType);
    m_valueText = OxaThemeUtils::getColorSet("gallery-list-item-caption-text", themeType);
    m_line = OxaThemeUtils::getColorSet("gallery-card-border", themeType);
    m_focusBorder = OxaThemeUtils::getColorSet("gallery-focus-border", themeType);
    m_headingFont = OxaFont(OxaFont::Token::TagLabelPrimary);
    m_nameFont = OxaFont(OxaFont::Token::BodySecondary);
    m_valueFont = OxaFont(OxaFont::Token::RadioButtonLabelSecondary);
}

int ColorSetDelegate::rowHeight() const
{
    return swatchHeight + Metrics::tight + QFontMetrics(m_valueFont).height() + 2 * Metrics::small;
}

int ColorSetDelegate::headingHeight() const
{
    return QFontMetrics(m_headingFont).height() + Metrics::gap;
}

int ColorSetDelegate::swatchColumnWidth() const
{
    return QFontMetrics(m_valueFont).horizontalAdvance(QStringLiteral("#dddddddd"))
            + 2 * Metrics::small;
}

void ColorSetDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    painter->save();
    const QString text = index.data().toString();
    if (index.data(ColorSetModel::HeadingRole).toBool()) {
        paintHeading(painter, option.rect, text);
    } else {
        paintGround(painter, option);
        if (index.column() == 0)
            paintName(painter, option.rect, text);
        else
            paintSwatch(painter, option.rect, index);
    }
    painter->restore();
}

void ColorSetDelegate::paintGround(QPainter *painter, const QStyleOptionViewItem &option) const
{
    if (option.state.testFlag(QStyle::State_MouseOver))
        painter->fillRect(option.rect, m_ground.hovered);
    painter->setPen(m_line.normal);
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    if (!option.state.testFlag(QStyle::State_HasFocus))
        return;
    painter->setPen(QPen(m_focusBorder.normal, 2));
    painter->drawRect(option.rect.adjusted(1, 1, -1, -2));
}

void ColorSetDelegate::paintHeading(QPainter *painter, const QRect &rect, const QString &text) const
{
    painter->setFont(m_headingFont);
    painter->setPen(m_headingText.normal);
    painter->drawText(rect.adjusted(Metrics::spacing, 0, -Metrics::spacing, -Metrics::small),
                      Qt::AlignLeft | Qt::AlignBottom, text);
    painter->setPen(m_line.normal);
    painter->drawLine(rect.bottomLeft(), rect.bottomRight());
}

void ColorSetDelegate::paintName(QPainter *painter, const QRect &rect, const QString &name) const
{
    const QRect textRect = rect.adjusted(Metrics::spacing, 0, -Metrics::spacing, 0);
    painter->setFont(m_nameFont);
    painter->setPen(m_nameText.normal);
    painter->drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter,
                      painter->fontMetrics().elidedText(name, Qt::ElideMiddle, textRect.width()));
}

void ColorSetDelegate::paintSwatch(QPainter *painter, const QRect &rect,
                                   const QModelIndex &index) const
{
    const auto color = index.data(ColorSetModel::ColorRole).value<QColor>();
    const QRect swatch(rect.left() + Metrics::small, rect.top() + Metrics::small,
                       rect.width() - 2 * Metrics::small, swatchHeight);
    if (color.alpha() < 255)
        paintChecks(painter, swatch.adjusted(1, 1, -1, -1));
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(color);
    painter->setPen(m_line.normal);
    painter->drawRoundedRect(QRectF(swatch).adjusted(0.5, 0.5, -0.5, -0.5), swatchRadius,
                             swatchRadius);
    // A value reads from left to right in any interface.
    painter->setLayoutDirection(Qt::LeftToRight);
    painter->setFont(m_valueFont);
    painter->setPen(m_valueText.normal);
    painter->drawText(QRect(rect.left(), swatch.bottom() + Metrics::tight, rect.width(),
                            painter->fontMetrics().height()),
                      Qt::AlignHCenter, index.data().toString());
}
