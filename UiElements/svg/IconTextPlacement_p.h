// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaEnum.h>

#include <QMargins>
#include <QPointF>
#include <QRect>
#include <QSize>

/// An icon and a text that are placed together, as a widget describes them.
struct IconAndText
{
    QSize iconSize;
    QSize textSize;
    QMargins iconMargins;
    QMargins textMargins;
    OxaEnum::Alignment alignment = OxaEnum::Alignment::Left;     ///< The icon's side.
    OxaEnum::HorAlign horAlign = OxaEnum::HorAlign::CenterAlign; ///< Of both, in the widget.
};

/// Where an icon and a text are placed. A widget moves its painter by `block`, and from there by
/// `icon` or by `text`.
struct IconTextPlacement
{
    /// Places \a parts in \a rect, in the application's layout direction. An alignment outside of
    /// OxaEnum::HorAlign logs a warning and leaves the block at (0, 0).
    static IconTextPlacement in(const QRect &rect, const IconAndText &parts);

    /// Returns the rectangle of both, with its size truncated to whole pixels.
    QRect blockRect() const { return { block, QSize(int(total.x()), int(total.y())) }; }

    QPoint block;  ///< The top left corner of both.
    QPointF icon;  ///< The icon's offset in the block.
    QPointF text;  ///< The text's offset in the block.
    QPointF total; ///< The size of the block.
};
