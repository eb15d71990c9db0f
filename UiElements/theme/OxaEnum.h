// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QObject>

/// Enumerations that widgets and QML items share.
namespace OxaEnum {
Q_NAMESPACE_EXPORT(UIELEMENTS_EXPORT)

/// The side on which one thing is placed relative to another, such as an icon beside its text.
enum class Alignment {
    Left = 0,
    Right = 1,
    Top = 2,
    Bottom = 3,
};
Q_ENUM_NS(Alignment)

/// Where a block is placed horizontally in a widget.
enum class HorAlign {
    LeftAlign = 0,
    CenterAlign = 1,
    RightAlign = 2,
};
Q_ENUM_NS(HorAlign)

/// Which ends of a border are rounded.
enum class BorderStyle {
    None = 0,
    RoundLeft = 1,
    RoundRight = 2,
    Round = 3,
};
Q_ENUM_NS(BorderStyle)

} // namespace OxaEnum
