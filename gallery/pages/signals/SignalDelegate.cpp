// SPDX-License-Identifier: Apache-2.0
#include "SignalDelegate.h"

#include "Metrics.h"
#include "SignalModel.h"

#include <UiElements/fonts/OxaFont.h>

#include <QPainter>

namespace {

const QColor &colorOf(const OxaColorSet &colorSet, QStyle::State state)
{
    if (state.testFlag(QStyle::State_Selected))
        return colorSet.checked;
    return state.testFlag(QStyle::State_MouseOver) ? colorSet.hovered : colorSet.normal;
}

/// Draws \a text where lines of the layout begin. A signature itself reads from left to right.
void drawElided(QPainter *painter, const QRect &rect, const QString &text,
                Qt::LayoutDirection direction)
{
    painter->setLayoutDirection(Qt::LeftToRight);
    const Qt::Alignment alignment = QStyle::visualAlignment(direction, Qt::AlignLeft)
            | Qt::AlignAbsolute | Qt::AlignVCenter;
    painter->drawText(rect, int(alignment),
                      painter->fontMetrics().elidedText(text, Qt::ElideRight, rect.width()));
}

} // namespace

SignalDelegate::SignalDelegate(QObject *parent) : QStyledItemDelegate(parent) { }

void SignalDelegate::refresh(OxaThemeUtils::AppThemeType themeType)
{
    const auto set = [themeType](const char *name) {
        return OxaThemeUtils::getColorSet(name, themeType);
    };
    m_ground = set("gallery-list-item");
    m_headingText = set("gallery-heading-text");
    m_nameText = set("gallery-list-item-text");
    m_parametersText = set("gallery-list-item-caption-text");
    m_line = set("gallery-divider");
    m_focusBorder = set("gallery-focus-border");
    m_badgeGround = set("oxa-unreadCountCircle-background");
    m_badgeText = set("oxa-unreadCountCircle-text");
    m_headingFont = OxaFont(OxaFont::Token::TagLabelPrimary);
    m_nameFont = OxaFont(OxaFont::Token::BodySecondary);
    m_parametersFont = OxaFont(OxaFont::Token::RadioButtonLabelSecondary);
}

QSize SignalDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const
{
    if (index.data(SignalModel::HeadingRole).toBool())
        return { 0, QFontMetrics(m_headingFont).height() + Metrics::gap };
    int height = QFontMetrics(m_nameFont).height();
    if (!index.data(SignalModel::ParametersRole).toString().isEmpty())
        height += QFontMetrics(m_parametersFont).height();
    return { 0, height + 2 * Metrics::small };
}

void SignalDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (index.data(SignalModel::HeadingRole).toBool()) {
        paintHeading(painter, option.rect, index.data().toString());
        painter->restore();
        return;
    }

    paintGround(painter, option);
    const QString count = QString::number(index.data(SignalModel::ReceiversRole).toInt());
    const QFontMetrics metrics(m_parametersFont);
    const int badgeWidth = qMax(metrics.height(),
                                metrics.horizontalAdvance(count) + 2 * Metrics::small);
    QRect texts = option.rect.adjusted(Metrics::spacing, Metrics::small, -Metrics::spacing,
                                       -Metrics::small);
    QRect badge(texts.right() + 1 - badgeWidth, texts.center().y() - metrics.height() / 2,
                badgeWidth, metrics.height());
    texts.setRight(badge.left() - 1 - Metrics::small);
    texts = QStyle::visualRect(option.direction, option.rect, texts);
    badge = QStyle::visualRect(option.direction, option.rect, badge);
    paintTexts(painter, option, index, texts);
    paintReceivers(painter, badge, count, option.state);
    painter->restore();
}

void SignalDelegate::paintHeading(QPainter *painter, const QRect &rect, const QString &text) const
{
    painter->setFont(m_headingFont);
    painter->setPen(m_headingText.normal);
    painter->drawText(rect.adjusted(Metrics::spacing, 0, -Metrics::spacing, -Metrics::small),
                      Qt::AlignLeft | Qt::AlignBottom, text);
    painter->fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), m_line.normal);
}

void SignalDelegate::paintGround(QPainter *painter, const QStyleOptionViewItem &option) const
{
    painter->fillRect(option.rect, colorOf(m_ground, option.state));
    painter->fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1),
                      m_line.normal);
    if (!option.state.testFlag(QStyle::State_HasFocus))
        return;
    painter->setPen(QPen(m_focusBorder.normal, 2));
    painter->drawRect(option.rect.adjusted(1, 1, -1, -2));
}

void SignalDelegate::paintTexts(QPainter *painter, const QStyleOptionViewItem &option,
                                const QModelIndex &index, const QRect &rect) const
{
    const QString parameters = index.data(SignalModel::ParametersRole).toString();
    QRect name = rect;
    if (!parameters.isEmpty())
        name.setHeight(QFontMetrics(m_nameFont).height());
    painter->setFont(m_nameFont);
    painter->setPen(colorOf(m_nameText, option.state));
    drawElided(painter, name, index.data(SignalModel::NameRole).toString(), option.direction);
    if (parameters.isEmpty())
        return;
    painter->setFont(m_parametersFont);
    painter->setPen(colorOf(m_parametersText, option.state));
    drawElided(painter, rect.adjusted(0, name.height(), 0, 0), parameters, option.direction);
}

void SignalDelegate::paintReceivers(QPainter *painter, const QRect &rect, const QString &count,
                                    QStyle::State state) const
{
    painter->setFont(m_parametersFont);
    if (count == QLatin1String("0")) {
        painter->setPen(colorOf(m_parametersText, state));
        painter->drawText(rect, Qt::AlignCenter, count);
        return;
    }
    // A chosen row may be as bright as a badge. There the badge is the row turned inside out.
    const bool isSelected = state.testFlag(QStyle::State_Selected);
    const qreal radius = rect.height() / 2.0;
    painter->setPen(Qt::NoPen);
    painter->setBrush(isSelected ? m_nameText.checked : m_badgeGround.normal);
    painter->drawRoundedRect(rect, radius, radius);
    painter->setPen(isSelected ? m_ground.checked : m_badgeText.normal);
    painter->drawText(rect, Qt::AlignCenter, count);
}
