// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QFont>
#include <QMetaType>

/// A QFont that can be made from a token, so that widget code names type sizes instead of numbers.
///
/// The token determines weight, pixel size and underline. In a process with an OxaApplication the
/// size is multiplied by the application's font scale factor, once, when the font is made; a NaN
/// leaves it as it is.
class UIELEMENTS_EXPORT OxaFont : public QFont
{
    Q_GADGET

public:
    /// The steps of the type scale: size in pixels before the scale factor, and weight.
    enum class Token {
        Default = 0,                    ///< 16 pixels, normal.
        Title = 1,                      ///< 20, semi-bold.
        Header = 2,                     ///< 16, bold.
        SubheaderPrimary = 3,           ///< 16, semi-bold.
        SubheaderSecondary = 4,         ///< 14, semi-bold.
        BodyPrimary = 5,                ///< 16, normal.
        BodySecondary = 6,              ///< 14, normal.
        BodyTertiary = 7,               ///< 12, semi-bold.
        BannerPrimary = 8,              ///< 26, semi-bold.
        BannerSecondary = 9,            ///< 26, normal.
        BannerTertiary = 10,            ///< 26, bold.
        HighlightPrimary = 11,          ///< 16, bold.
        HighlightSecondary = 12,        ///< 14, bold.
        HighlightTertiary = 13,         ///< 12, bold.
        HyperlinkPrimary = 14,          ///< 16, normal, underlined.
        HyperlinkSecondary = 15,        ///< 14, normal, underlined.
        TagLabelPrimary = 16,           ///< 14, semi-bold.
        TagLabelSecondary = 17,         ///< 12, semi-bold.
        CodeBlocks = 18,                ///< 16, normal, monospace.
        RadioButtonLabelSecondary = 19, ///< 12, normal.
        Display = 20,                   ///< 40, semi-bold.
    };
    Q_ENUM(Token)

    /// Makes the application's default font.
    OxaFont() = default;

    /// Makes an upright font of one family; \a pointSize and \a weight as in QFont.
    OxaFont(const QString &family, int pointSize, int weight);

    /// Makes a default font and applies what is given: a \a pointSize above 0, a \a weight of 0 or
    /// more, a list of \a families that isn't empty.
    OxaFont(const QStringList &families, int pointSize, int weight);

    /// Makes a copy of \a font.
    OxaFont(const QFont
                    &font); // NOLINT(google-explicit-constructor): a QFont is an OxaFont's whole

    /// Makes the font of \a token. With \a useFallbackFamilies it also names families for scripts
    /// that the first one lacks. That list replaces the monospace family of CodeBlocks, and so does
    /// the list of a process without an OxaApplication. A value outside of the enumeration logs a
    /// warning and gives a plain font of 16 pixels.
    explicit OxaFont(Token token, bool useFallbackFamilies = false);
};
