// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QRect>
#include <QStyle>

class QColor;
class QPainter;
class QWidget;

/// Painting that several widgets share. GUI thread only; the functions keep no state.
namespace DrawUtils {

/// Shrinks \a rect in place to \a aspectRatio, its width divided by its height, around the same
/// centre.
UIELEMENTS_EXPORT void fitRectangle(QRectF &rect, double aspectRatio);

/// Draws the frame of keyboard focus for \a widget, which may be null.
///
/// Nothing is drawn unless \a state has both QStyle::State_HasFocus and
/// QStyle::State_KeyboardFocusChange: focus by mouse shows no frame. Where the application's
/// property "useGlobalFocusBorders" is true and there is a widget, the application's style draws
/// the frame, around \a rect unless that is null; a chosen rectangle is told to the style by the
/// property "hasCustomRect" of the widget. Otherwise the frame is the dotted one of
/// drawLegacyFocusRect().
UIELEMENTS_EXPORT void drawFocusRect(QPainter *painter, const QFlags<QStyle::StateFlag> &state,
                                     const QRect &rect, const QColor &color, const QWidget *widget);

/// Draws a dotted frame, one pixel wide, inside \a rect, in the inverse of \a color.
///
/// Nothing is drawn unless \a state has both flags of drawFocusRect(), and nothing where the
/// application's property "useGlobalFocusBorders" is true.
UIELEMENTS_EXPORT void drawLegacyFocusRect(QPainter *painter,
                                           const QFlags<QStyle::StateFlag> &state,
                                           const QRect &rect, const QColor &color);

} // namespace DrawUtils
