// SPDX-License-Identifier: Apache-2.0
#include "ItemDelegate.h"

#include "looks/Metrics.h"

#include <UiElements/fonts/OxaFont.h>

#include <QAbstractItemView>
#include <QPainter>

ItemLook::ItemLook(OxaThemeUtils::AppThemeType themeType)
    : ground(OxaThemeUtils::getColorSet("gallery-list-item", themeType)),
      headingText(OxaThemeUtils::getColorSet("gallery-heading-text", themeType)),
      text(OxaThemeUtils::getColorSet("gallery-list-item-text", themeType)),
      captionText(OxaThemeUtils::getColorSet("gallery-list-item-caption-text", themeType)),
      line(OxaThemeUtils::getColorSet("gallery-divider", themeType)),
      focusBorder(OxaThemeUtils::getColorSet("gallery-focus-border", themeType)),
      badgeGround(OxaThemeUtils::getColorSet("oxa-unreadCountCircle-background", themeType)),
      badgeText(OxaThemeUtils::getColorSet("oxa-unreadCountCircle-text", themeType)),
      headingFont(OxaFont(OxaFont::Token::TagLabelPrimary)),
      font(OxaFont(OxaFont::Token::BodySecondary)),
      captionFont(OxaFont(OxaFont::Token::RadioButtonLabelSecondary))
{
}

ItemDelegate::ItemDelegate(QObject *parent)
    : QStyledItemDelegate(parent), m_look(OxaThemeUtils::AppThemeType::Global)
{
}

void ItemDelegate::refresh(OxaThemeUtils::AppThemeType themeType) { m_look = ItemLook(themeType); }

void ItemDelegate::ensureCurrent(QAbstractItemView &view)
{
    if (!view.currentIndex().isValid())
        view.setCurrentIndex(firstEnabled(*view.model()));
}

QModelIndex ItemDelegate::firstEnabled(const QAbstractItemModel &model)
{
    int row = 0;
    while (row < model.rowCount() && !model.index(row, 0).flags().testFlag(Qt::ItemIsEnabled))
        ++row;
    return model.index(row, 0);
}

int ItemDelegate::headingHeight() const
{
    return QFontMetrics(m_look.headingFont).height() + Metrics::gap;
}

QSize ItemDelegate::badgeSize(const QString &text) const
{
    const QFontMetrics metrics(m_look.captionFont);
    return { qMax(metrics.height(), metrics.horizontalAdvance(text) + 2 * Metrics::tight),
             metrics.height() };
}

void ItemDelegate::paintGround(QPainter *painter, const QStyleOptionViewItem &option) const
{
    painter->fillRect(option.rect, colorFor(m_look.ground, option.state));
    paintLine(painter, option.rect);
    if (option.state.testFlag(QStyle::State_HasFocus))
        paintFocusFrame(painter, option.rect, option.state);
}

void ItemDelegate::paintLine(QPainter *painter, const QRect &rect) const
{
    painter->fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), m_look.line.normal);
}

void ItemDelegate::paintFocusFrame(QPainter *painter, const QRect &rect, QStyle::State state) const
{
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(colorFor(m_look.focusBorder, state), 2));
    painter->drawRect(rect.adjusted(1, 1, -1, -2));
}

void ItemDelegate::paintHeading(QPainter *painter, const QRect &rect, const QString &text) const
{
    painter->setFont(m_look.headingFont);
    painter->setPen(m_look.headingText.normal);
    painter->drawText(rect.adjusted(Metrics::spacing, 0, -Metrics::spacing, -Metrics::small),
                      Qt::AlignLeft | Qt::AlignBottom, text);
    paintLine(painter, rect);
}

void ItemDelegate::paintBadge(QPainter *painter, const QRect &rect, const QString &text,
                              QStyle::State state) const
{
    // A chosen row may be as bright as a badge, which has the row's colours exchanged then.
    const bool isSelected = state.testFlag(QStyle::State_Selected);
    const qreal radius = rect.height() / 2.0;
    painter->setPen(Qt::NoPen);
    painter->setBrush(isSelected ? m_look.text.checked : m_look.badgeGround.normal);
    painter->drawRoundedRect(rect, radius, radius);
    painter->setFont(m_look.captionFont);
    painter->setPen(isSelected ? m_look.ground.checked : m_look.badgeText.normal);
    painter->drawText(rect, Qt::AlignCenter, text);
}

const QColor &ItemDelegate::colorFor(const OxaColorSet &colorSet, QStyle::State state)
{
    if (state.testFlag(QStyle::State_Selected))
        return colorSet.checked;
    return state.testFlag(QStyle::State_MouseOver) ? colorSet.hovered : colorSet.normal;
}

void ItemDelegate::drawElided(QPainter *painter, const QRect &rect, const QString &text,
                              Qt::LayoutDirection direction, Qt::TextElideMode mode)
{
    painter->setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    const Qt::Alignment alignment = QStyle::visualAlignment(direction, Qt::AlignLeft)
            | Qt::AlignAbsolute | Qt::AlignVCenter;
    painter->drawText(rect, int(alignment),
                      painter->fontMetrics().elidedText(text, mode, rect.width()));
}
