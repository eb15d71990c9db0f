// SPDX-License-Identifier: Apache-2.0
#include "ArtworkDelegate.h"

#include "ArtworkModel.h"
#include "looks/Metrics.h"

#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace {

constexpr int pictureSize = 32;
constexpr int radius = 6;

/// Returns the picture at \a path from a cache: reading files would make scrolling slow.
QPixmap pictureOf(const QString &path, qreal pixelRatio)
{
    const int edge = int(pictureSize * pixelRatio);
    const QString key = QStringLiteral("%1@%2").arg(path).arg(edge);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = QPixmap(edge, edge);
        picture.fill(Qt::transparent);
        QSvgRenderer renderer(path);
        QPainter painter(&picture);
        renderer.render(&painter);
        painter.end();
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

} // namespace

QSize ArtworkDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    // As wide as the name of a flag, a usual length.
    const QFontMetrics metrics(look().captionFont);
    return { metrics.horizontalAdvance(QStringLiteral("1f1ea-1f1ea")) + 2 * Metrics::small,
             pictureSize + metrics.height() + Metrics::tight + 2 * Metrics::small };
}

void ArtworkDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    painter->save();
    paintTile(painter, option);
    const QRect inner = option.rect.adjusted(Metrics::tight, Metrics::small, -Metrics::tight,
                                             -Metrics::small);
    const QRect picture(inner.center().x() - pictureSize / 2 + 1, inner.top(), pictureSize,
                        pictureSize);
    painter->drawPixmap(picture,
                        pictureOf(index.data(ArtworkModel::PathRole).toString(),
                                  painter->device()->devicePixelRatioF()));
    // A name is written from left to right in both directions.
    painter->setLayoutDirection(Qt::LeftToRight);
    painter->setFont(look().captionFont);
    painter->setPen(colorFor(look().captionText, option.state & ~QStyle::State_Selected));
    painter->drawText(inner, Qt::AlignHCenter | Qt::AlignBottom,
                      painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideMiddle,
                                                        inner.width()));
    painter->restore();
}

void ArtworkDelegate::paintTile(QPainter *painter, const QStyleOptionViewItem &option) const
{
    const QRectF rect = QRectF(option.rect).adjusted(1, 1, -1, -1);
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter->setPen(option.state.testFlag(QStyle::State_HasFocus)
                            ? QPen(look().focusBorder.normal, 2)
                            : QPen(Qt::NoPen));
    painter->setBrush(option.state.testFlag(QStyle::State_MouseOver) ? look().ground.hovered
                                                                     : QColor(Qt::transparent));
    painter->drawRoundedRect(rect, radius, radius);
}
