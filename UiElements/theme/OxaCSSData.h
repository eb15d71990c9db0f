// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// The structured form of a style text: what its directives say, and the plain rest.
///
/// OxaThemeUtils::parseCSS() fills one, OxaThemeUtils::convertToOxaCSS() writes it back as a style
/// text, and themed widgets take one in their setCSS().
struct OxaCSSData
{
    QString backgroundColorSetName; ///< Name of the background set; empty for none.
    QString borderColorSetName;     ///< Name of the border set; empty for none.
    QString textColorSetName;       ///< Name of the text set; empty for none.
    QString plainStyleSheet;        ///< The style text with its directives removed.
    bool borderTop = false;         ///< The top side has a border.
    bool borderRight = false;       ///< The right side has a border.
    bool borderBottom = false;      ///< The bottom side has a border.
    bool borderLeft = false;        ///< The left side has a border.
    bool noBorder = false;          ///< Only a corner radius is wanted, no border line.
    quint8 borderRadius = 0;        ///< Radius in pixels, 0 to 255.
    quint8 borderWidth = 1;         ///< Border width in pixels, 0 to 255.

    /// Corners that stay square: bit 0 top-left, 1 top-right, 2 bottom-left, 3 bottom-right.
    quint8 rectangularCornerMask = 0;

    /// Where the radius applies: 0 all corners, 1 top-left, 2 top-right, 3 bottom-left,
    /// 4 bottom-right, 5 the two top corners.
    int radiusCorner = 0;
};

/// True when \a a and \a b agree in every field.
inline bool operator==(const OxaCSSData &a, const OxaCSSData &b)
{
    return a.backgroundColorSetName == b.backgroundColorSetName
            && a.borderColorSetName == b.borderColorSetName
            && a.textColorSetName == b.textColorSetName && a.plainStyleSheet == b.plainStyleSheet
            && a.borderTop == b.borderTop && a.borderRight == b.borderRight
            && a.borderBottom == b.borderBottom && a.borderLeft == b.borderLeft
            && a.noBorder == b.noBorder && a.borderRadius == b.borderRadius
            && a.borderWidth == b.borderWidth && a.rectangularCornerMask == b.rectangularCornerMask
            && a.radiusCorner == b.radiusCorner;
}

/// True when \a a and \a b differ in a field.
inline bool operator!=(const OxaCSSData &a, const OxaCSSData &b) { return !(a == b); }
