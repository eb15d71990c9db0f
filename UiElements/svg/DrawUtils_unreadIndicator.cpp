// SPDX-License-Identifier: Apache-2.0
#include "DrawUtils.h"

#include <UiElements/fonts/FontUtils.h>
#include <UiElements/theme/OxaThemeUtils.h>
#include <UiElements/theme/StateColor_p.h>

#include <QDebug>
#include <QPainter>
#include <QPixmap>

namespace {

constexpr char outOfBoundsWarning[] = "unreadIndicatorTopLeft out of bounds!";
constexpr unsigned maximumCount = 99;

QColor normalColor(const char *colorSetName)
{
    return OxaThemeUtils::getColorSet(colorSetName, OxaThemeUtils::AppThemeType::Global).normal;
}

/// Returns the rectangle from \a topLeft to the pixmap's corner. If \a topLeft is outside the
/// pixmap, the rectangle starts at the pixmap's centre and extends beyond the pixmap.
QRectF badgeRect(const QPixmap &pixmap, const QPointF &topLeft)
{
    QRectF rect(pixmap.rect());
    if (topLeft.x() > rect.x() + rect.width() || topLeft.y() > rect.y() + rect.height()) {
        QMessageLogger().warning() << outOfBoundsWarning;
        rect.moveTopLeft(rect.center());
    } else {
        rect.setTopLeft(topLeft);
    }
    return rect;
}

} // namespace

void DrawUtils::drawUnreadIndicator(QPixmap &pixmap, const QPointF &unreadIndicatorTopLeft,
                                    unsigned int count)
{
    const QRectF rect = badgeRect(pixmap, unreadIndicatorTopLeft);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(orTransparent(normalColor("oxa-unreadCountCircle-background")));
    const double radius = rect.height() * 0.5;
    painter.drawRoundedRect(rect, radius, radius);
    if (count == 0)
        return;

    painter.setFont(FontUtils::getFontByPixelSize(static_cast<int>(pixmap.width() / 1.6),
                                                  FontUtils::SupportedFontFamily::Interface));
    painter.setPen(orTransparent(normalColor("oxa-unreadCountCircle-text")));
    // Centred horizontally only: the number is at the top of the badge.
    painter.drawText(rect, Qt::AlignHCenter, QString::number(qMin(count, maximumCount)));
}
