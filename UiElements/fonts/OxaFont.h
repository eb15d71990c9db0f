// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QFont>
#include <QMetaType>

/// A QFont that can be made from a token: type sizes are named, not numbered, in widget code.
///
/// The token fixes weight, pixel size and underline. In a process with an OxaApplication the size
/// is multiplied by the application's font scale factor, once, when the font is made.
class UIELEMENTS_EXPORT OxaFont : public QFont
{
    Q_GADGET

public:
    /// The steps of the type scale.
    enum class Token {
        Default = 0,
        Title = 1,
        Header = 2,
        SubheaderPrimary = 3,
        SubheaderSecondary = 4,
        BodyPrimary = 5,
        BodySecondary = 6,
        BodyTertiary = 7,
        BannerPrimary = 8,
        BannerSecondary = 9,
        BannerTertiary = 10,
        HighlightPrimary = 11,
        HighlightSecondary = 12,
        HighlightTertiary = 13,
        HyperlinkPrimary = 14,
        HyperlinkSecondary = 15,
        TagLabelPrimary = 16,
        TagLabelSecondary = 17,
        CodeBlocks = 18,
        RadioButtonLabelSecondary = 19,
        Display = 20,
    };
    Q_ENUM(Token)

    /// Makes the application's default font.
    OxaFont() = default;

    /// Makes an upright font of one family; \a pointSize and \a weight as in QFont.
    OxaFont(const QString &family, int pointSize, int weight);

    /// Makes a default font and changes what is given: a \a pointSize above 0, a \a weight of 0 or
    /// more, a list of \a families that isn't empty.
    OxaFont(const QStringList &families, int pointSize, int weight);

    /// Makes a copy of \a font.
    OxaFont(const QFont
                    &font); // NOLINT(google-explicit-constructor): a QFont is an OxaFont's whole

    /// Makes the font of \a token. With \a useFallbackFamilies it names the families for scripts
    /// that the first one lacks; a CodeBlocks font then loses its monospace family to that list. A
    /// value outside the enumeration logs a warning and gives a plain font of 16 pixels.
    explicit OxaFont(Token token, bool useFallbackFamilies = false);
};
