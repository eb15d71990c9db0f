// SPDX-License-Identifier: Apache-2.0
#include "SignalDelegate.h"

#include "SignalModel.h"
#include "looks/Metrics.h"

#include <QPainter>

QSize SignalDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const
{
    if (index.data(SignalModel::HeadingRole).toBool())
        return { 0, headingHeight() };
    int height = QFontMetrics(look().font).height();
    if (!index.data(SignalModel::ParametersRole).toString().isEmpty())
        height += QFontMetrics(look().captionFont).height();
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
    const QSize size = badgeSize(count);
    QRect texts = option.rect.adjusted(Metrics::spacing, Metrics::small, -Metrics::spacing,
                                       -Metrics::small);
    QRect badge(QPoint(texts.right() + 1 - size.width(), texts.center().y() - size.height() / 2),
                size);
    texts.setRight(badge.left() - 1 - Metrics::small);
    texts = QStyle::visualRect(option.direction, option.rect, texts);
    badge = QStyle::visualRect(option.direction, option.rect, badge);
    paintTexts(painter, option, index, texts);
    paintReceivers(painter, badge, count, option.state);
    painter->restore();
}

void SignalDelegate::paintTexts(QPainter *painter, const QStyleOptionViewItem &option,
                                const QModelIndex &index, const QRect &rect) const
{
    const QString parameters = index.data(SignalModel::ParametersRole).toString();
    QRect name = rect;
    if (!parameters.isEmpty())
        name.setHeight(QFontMetrics(look().font).height());
    painter->setFont(look().font);
    painter->setPen(colorFor(look().text, option.state));
    drawElided(painter, name, index.data(SignalModel::NameRole).toString(), option.direction);
    if (parameters.isEmpty())
        return;
    painter->setFont(look().captionFont);
    painter->setPen(colorFor(look().captionText, option.state));
    drawElided(painter, rect.adjusted(0, name.height(), 0, 0), parameters, option.direction);
}

void SignalDelegate::paintReceivers(QPainter *painter, const QRect &rect, const QString &count,
                                    QStyle::State state) const
{
    if (count != QLatin1String("0")) {
        paintBadge(painter, rect, count, state);
        return;
    }
    painter->setFont(look().captionFont);
    painter->setPen(colorFor(look().captionText, state));
    painter->drawText(rect, Qt::AlignCenter, count);
}
