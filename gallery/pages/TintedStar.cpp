// SPDX-License-Identifier: Apache-2.0
#include "TintedStar.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

namespace {

constexpr int starSize = 96;
constexpr int pixelRatio = 2;

QPainterPath starPath(const QPointF &centre, qreal radius)
{
    constexpr int points = 5;
    constexpr qreal innerRadius = 0.45;
    QPainterPath path;
    for (int i = 0; i < 2 * points; ++i) {
        const qreal angle = i * M_PI / points - M_PI_2;
        const qreal length = radius * (i % 2 == 0 ? 1.0 : innerRadius);
        const QPointF point = centre + length * QPointF(qCos(angle), qSin(angle));
        i == 0 ? path.moveTo(point) : path.lineTo(point);
    }
    path.closeSubpath();
    return path;
}

QPixmap starPixmap()
{
    QPixmap pixmap(starSize * pixelRatio, starSize * pixelRatio);
    pixmap.setDevicePixelRatio(pixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(starPath({ starSize / 2.0, starSize / 2.0 }, starSize / 2.0), Qt::black);
    return pixmap;
}

} // namespace

TintedStar::TintedStar(QWidget *parent) : AlignedLabel(QString(), parent, Place::Centre)
{
    setPixmap(starPixmap());
}

void TintedStar::setColorSetName(const QString &name)
{
    m_colorSetName = name;
    setPixmapColor(OxaThemeUtils::getColorSet(name.toStdString(), getThemeType()).normal);
}

void TintedStar::onThemeChanged()
{
    AlignedLabel::onThemeChanged();
    setColorSetName(m_colorSetName);
}
