// SPDX-License-Identifier: Apache-2.0
#include "ColorSetDelegate.h"

#include "ColorSetModel.h"
#include "looks/Metrics.h"

#include <QPainter>

namespace {

constexpr int swatchHeight = 24;
constexpr int swatchRadius = 4;
constexpr int checkSize = 4;

/// Paints a chequered background, which tells a translucent colour from an opaque one.
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

int ColorSetDelegate::rowHeight() const
{
    return swatchHeight + Metrics::tight + QFontMetrics(look().captionFont).height()
            + 2 * Metrics::small;
}

int ColorSetDelegate::swatchColumnWidth() const
{
    return QFontMetrics(look().captionFont).horizontalAdvance(QStringLiteral("#dddddddd"))
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
            paintName(painter, option, text);
        else
            paintSwatch(painter, option.rect, index);
    }
    painter->restore();
}

void ColorSetDelegate::paintName(QPainter *painter, const QStyleOptionViewItem &option,
                                 const QString &name) const
{
    painter->setFont(look().font);
    painter->setPen(look().text.normal);
    drawElided(painter, option.rect.adjusted(Metrics::spacing, 0, -Metrics::spacing, 0), name,
               option.direction, Qt::ElideMiddle);
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
    painter->setPen(look().line.normal);
    painter->drawRoundedRect(QRectF(swatch).adjusted(0.5, 0.5, -0.5, -0.5), swatchRadius,
                             swatchRadius);
    // A value is written from left to right in both directions.
    painter->setLayoutDirection(Qt::LeftToRight);
    painter->setFont(look().captionFont);
    painter->setPen(look().captionText.normal);
    painter->drawText(QRect(rect.left(), swatch.bottom() + Metrics::tight, rect.width(),
                            painter->fontMetrics().height()),
                      Qt::AlignHCenter, index.data().toString());
}
