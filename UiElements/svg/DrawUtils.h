// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/theme/OxaEnum.h>

#include <QPixmap>
#include <QRect>
#include <QStyle>

#include <memory>
#include <tuple>

class OxaCheckBox;
class OxaColorSet;
class OxaSvgIcon;
class OxaSvgLabel;
class OxaSvgPushButton;
class QColor;
class QMargins;
class QPainter;
class QStyleOption;
class QSvgNode;
class QTextDocument;
class QWidget;
struct QSvgExtraStates;

/// Painting that several widgets share. GUI thread only; the functions keep no state.
namespace DrawUtils {

/// Shrinks \a rect in place to \a aspectRatio, its width divided by its height, around the same
/// centre. Leaves it unchanged if the result would not be finite: for a rectangle of 0 by 0, and
/// for infinity and NaN in either.
UIELEMENTS_EXPORT void fitRectangle(QRectF &rect, double aspectRatio);

/// Returns \a pixmap scaled, in its proportions, to fill \a rect at \a devicePixelRatio. Shrinks
/// \a rect to those proportions. A null pixmap leaves \a rect unchanged and gives a null one, and
/// so does a size in device pixels that is empty, not finite, or too large for an int.
UIELEMENTS_EXPORT QPixmap adjustPixmapToRect(const QPixmap &pixmap, QRectF &rect,
                                             double devicePixelRatio);

// Icon and text

/// Returns where an icon and a text are placed relative to each other: the icon's offset, the
/// text's offset, and the size of both together as a point. The icon comes first at the top, and at
/// the side where a line starts; the left margin of each is on that side as well.
UIELEMENTS_EXPORT std::tuple<QPointF, QPointF, QPointF> calculateIconTextOffset(
        const QSize &iconSize, const QSize &textSize, const QMargins &textMargins,
        const QMargins &iconMargins, OxaEnum::Alignment alignment);

/// Paints \a icon, which may be null, beside the elided text of \a label, in the colours for the
/// option's state. Returns the rectangle of the two.
UIELEMENTS_EXPORT QRect drawSvgIconText(QPainter *painter, const OxaSvgLabel *label,
                                        const QStyleOption &option,
                                        const std::unique_ptr<OxaSvgIcon> &icon,
                                        const OxaColorSet &textColors);

/// Does the same for a button. Paints \a document instead of a rich text, if it is not null.
UIELEMENTS_EXPORT QRect drawSvgIconText(QPainter *painter, const OxaSvgPushButton *button,
                                        QTextDocument *document, const QStyleOption &option,
                                        const std::unique_ptr<OxaSvgIcon> &icon,
                                        const OxaColorSet &textColors);

/// Does the same with \a pixmap as the icon, in the button's icon size.
UIELEMENTS_EXPORT QRect drawPixmapIconText(QPainter *painter, const OxaSvgPushButton *button,
                                           QTextDocument *document, const QStyleOption &option,
                                           const QPixmap &pixmap, const OxaColorSet &textColors);

/// Paints box, tick and text of \a checkBox, and its focus frame, in the colours for the option's
/// state. \a icon is the tick, null for none; \a rounded gives the box corners of \a radius. The
/// painter stays moved to the place of box and text.
UIELEMENTS_EXPORT void drawCheckbox(QPainter *painter, const OxaCheckBox *checkBox,
                                    const QStyleOption &option,
                                    const std::unique_ptr<OxaSvgIcon> &icon,
                                    const OxaColorSet &text, const OxaColorSet &border,
                                    const OxaColorSet &background, const OxaColorSet &focus,
                                    bool rounded, int radius);

// SVG

/// Paints \a node into \a rect, as large as its proportions allow and centred, with \a opacity.
/// Shapes without a fill of their own are filled with \a color; those without a stroke have none.
UIELEMENTS_EXPORT void drawSVG(QPainter *painter, QSvgNode *node, QSvgExtraStates &states,
                               const QRectF &rect, const QColor &color, double opacity);

/// Returns a pixmap of \a pixmapSize device pixels, filled with \a backgroundColor, with \a node in
/// \a color inside \a iconRect. A null node gives a null pixmap.
UIELEMENTS_EXPORT QPixmap renderPixmap(QSvgNode *node, const QRectF &iconRect,
                                       const QSize &pixmapSize, double devicePixelRatio,
                                       const QColor &color, const QColor &backgroundColor);

// Badges

/// Paints a badge on \a pixmap, from \a unreadIndicatorTopLeft to the bottom right corner, in the
/// colours of the "oxa-unreadCountCircle-" sets: a plain dot for a \a count of 0, else the number,
/// 99 at most. A point outside the pixmap logs a warning; the badge then starts at the centre.
UIELEMENTS_EXPORT void drawUnreadIndicator(QPixmap &pixmap, const QPointF &unreadIndicatorTopLeft,
                                           unsigned int count);

// Focus frames

/// Draws the frame of keyboard focus for \a widget, which may be null.
///
/// Draws nothing unless \a state has both QStyle::State_HasFocus and
/// QStyle::State_KeyboardFocusChange: focus by mouse shows no frame. If the application's property
/// "useGlobalFocusBorders" is true and there is a widget, the application's style draws the frame,
/// around \a rect or, if that is null, around the widget; the widget's property "hasCustomRect"
/// tells the style which. Otherwise the frame is the dotted one of drawLegacyFocusRect().
UIELEMENTS_EXPORT void drawFocusRect(QPainter *painter, const QFlags<QStyle::StateFlag> &state,
                                     const QRect &rect, const QColor &color, const QWidget *widget);

/// Draws a dotted frame, one pixel wide, inside \a rect, in the inverse of \a color.
///
/// Draws nothing unless \a state has both flags of drawFocusRect(), and nothing if the
/// application's property "useGlobalFocusBorders" is true.
UIELEMENTS_EXPORT void drawLegacyFocusRect(QPainter *painter,
                                           const QFlags<QStyle::StateFlag> &state,
                                           const QRect &rect, const QColor &color);

} // namespace DrawUtils
