// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaColorSet.h>

#include <QStyle>

/// Returns \a color, or a transparent one if it is not valid: Qt would paint that in black.
inline QColor orTransparent(const QColor &color)
{
    return color.isValid() ? color : Qt::transparent;
}

/// Returns the colour of \a set for a widget in \a state. The strongest state wins: disabled before
/// pressed, hovered, focused and checked.
inline QColor colorForStyleState(const OxaColorSet &set, QStyle::State state)
{
    if (!state.testFlag(QStyle::State_Enabled))
        return set.disabled;
    if (state.testFlag(QStyle::State_Sunken))
        return set.pressed;
    if (state.testFlag(QStyle::State_MouseOver))
        return set.hovered;
    if (state.testFlag(QStyle::State_HasFocus) && set.focused != set.normal)
        return set.focused;
    if (state & (QStyle::State_Selected | QStyle::State_On))
        return set.checked;
    return set.normal;
}
