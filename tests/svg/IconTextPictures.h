// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/Faces.h"

#include <UiElements/svg/OxaSvgIcon.h>

#include <QPainter>
#include <QStyleOption>

#include <functional>
#include <memory>

/// Pictures of an icon beside a text.
namespace IconTextPictures {

const QRect area(10, 20, 200, 60);
const OxaColorSet iconColors = Faces::colors(QStringLiteral("icon"), 220);
const OxaColorSet textColors = Faces::colors(QStringLiteral("text"), 130);

/// Returns an option of the area.
inline QStyleOption optionFor(QStyle::State state = QStyle::State_Enabled)
{
    QStyleOption option;
    option.rect = area;
    option.state = state;
    return option;
}

/// Returns what \a draw paints on white paper in the font of \a widget.
inline QImage drawing(const QWidget &widget, const std::function<void(QPainter *)> &draw)
{
    return Pixels::drawing(QSize(240, 100), [&](QPainter *painter) {
        painter->setFont(widget.font());
        draw(painter);
    });
}

/// Returns the icon at \a path in the icon's colours.
inline std::unique_ptr<OxaSvgIcon> makeIcon(const QString &path)
{
    auto icon = std::make_unique<OxaSvgIcon>(path);
    icon->setColorSet(iconColors);
    return icon;
}

} // namespace IconTextPictures
