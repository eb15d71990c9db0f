// SPDX-License-Identifier: Apache-2.0
#include "IconTextPlacement_p.h"

#include <UiElements/svg/DrawUtils.h>

#include <QDebug>
#include <QGuiApplication>

namespace {

constexpr char unsupportedAlignWarning[] = "Unsupported OxaEnum::HorAlign!";

/// Returns where a block of size \a total is placed in \a rect.
QPoint blockIn(const QRect &rect, OxaEnum::HorAlign align, const QPointF &total)
{
    const double left = rect.x();
    const double right = rect.width() + rect.x() - total.x();
    const bool isMirrored = QGuiApplication::isRightToLeft();
    double x = 0.0;
    switch (align) {
    case OxaEnum::HorAlign::LeftAlign:
        x = isMirrored ? right : left;
        break;
    case OxaEnum::HorAlign::CenterAlign:
        x = rect.width() * 0.5 + rect.x() - total.x() * 0.5;
        break;
    case OxaEnum::HorAlign::RightAlign:
        x = isMirrored ? left : right;
        break;
    default:
        QMessageLogger().warning() << unsupportedAlignWarning;
        return {};
    }
    return QPointF(x, rect.height() * 0.5 + rect.y() - total.y() * 0.5).toPoint();
}

} // namespace

IconTextPlacement IconTextPlacement::in(const QRect &rect, const IconAndText &parts)
{
    const auto [icon, text,
                total] = DrawUtils::calculateIconTextOffset(parts.iconSize, parts.textSize,
                                                            parts.textMargins, parts.iconMargins,
                                                            parts.alignment);
    return { blockIn(rect, parts.horAlign, total), icon, text, total };
}

std::tuple<QPointF, QPointF, QPointF> DrawUtils::calculateIconTextOffset(
        const QSize &iconSize, const QSize &textSize, const QMargins &textMargins,
        const QMargins &iconMargins, OxaEnum::Alignment alignment)
{
    using OxaEnum::Alignment;

    const auto iconW = float(iconSize.width() + iconMargins.left() + iconMargins.right());
    const auto iconH = float(iconSize.height() + iconMargins.top() + iconMargins.bottom());
    const auto textW = float(textSize.width() + textMargins.left() + textMargins.right());
    const auto textH = float(textSize.height() + textMargins.top() + textMargins.bottom());
    const bool isMirrored = QGuiApplication::isRightToLeft();
    const bool iconFirst = alignment == Alignment::Top
            || alignment == (isMirrored ? Alignment::Right : Alignment::Left);

    if (alignment == Alignment::Top || alignment == Alignment::Bottom) {
        const float half = qMax(iconW * 0.5F, textW * 0.5F);
        return { QPointF(double(half - iconW * 0.5F),
                         double(float(iconMargins.top()) + (iconFirst ? 0.0F : textH))),
                 QPointF(double(half - textW * 0.5F),
                         double(float(textMargins.top()) + (iconFirst ? iconH : 0.0F))),
                 QPointF(double(2.0F * half), double(iconH + textH)) };
    }
    const float half = qMax(iconH * 0.5F, textH * 0.5F);
    const auto iconLead = float(isMirrored ? iconMargins.right() : iconMargins.left());
    const auto textLead = float(isMirrored ? textMargins.right() : textMargins.left());
    return { QPointF(double(iconLead + (iconFirst ? 0.0F : textW)), double(half - iconH * 0.5F)),
             QPointF(double(textLead + (iconFirst ? iconW : 0.0F)), double(half - textH * 0.5F)),
             QPointF(double(iconW + textW), double(2.0F * half)) };
}
