// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/svg/OxaSvgIcon.h>

#include <QByteArray>
#include <QPainterPath>
#include <QTransform>

#include <memory>
#include <vector>

/// An icon of one node, and what it is made of.
struct IconShape
{
    std::unique_ptr<OxaSvgIcon> icon;
    QByteArray file;   ///< The text of the icon's file.
    QPainterPath path; ///< The node's shape, in the units of the file.
    QTransform place;  ///< From those units to the icon's place, the painter's origin.
};

/// The icons that benchmarks paint.
namespace IconShapes {

/// Returns the gallery's icons whose file names match \a names, at \a size by \a size pixels.
std::vector<IconShape> load(const QString &names, int size);

} // namespace IconShapes
