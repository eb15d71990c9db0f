// SPDX-License-Identifier: Apache-2.0
#include "OxaScaledFonts.h"

#include <iterator>

using Token = OxaFont::Token;
using FontScalingFactor = FontManagerEnum::FontScalingFactor;

namespace {

/// Pixel sizes at the factors other than Regular; 0 leaves a font unchanged.
struct ScaledSizes
{
    int small = 0;
    int medium = 0;
    int large = 0;
};

int sizeAt(FontScalingFactor factor, const ScaledSizes &sizes)
{
    switch (factor) {
    case FontScalingFactor::Small:
        return sizes.small;
    case FontScalingFactor::Medium:
        return sizes.medium;
    case FontScalingFactor::Large:
        return sizes.large;
    case FontScalingFactor::Regular:
        break;
    }
    return 0;
}

QFont smallHeading(int pixelSize)
{
    QFont font = OxaFont(Token::Default, false);
    font.setPixelSize(pixelSize);
    font.setWeight(QFont::DemiBold);
    return font;
}

} // namespace

struct OxaScaledFonts::Entry
{
    QFont OxaScaledFonts::*font;
    Token token;
    ScaledSizes sizes = {};
};

const OxaScaledFonts::Entry OxaScaledFonts::entries[] = {
    { &OxaScaledFonts::m_display, Token::Display },
    { &OxaScaledFonts::m_h1, Token::BannerTertiary, { 20, 32, 40 } },
    { &OxaScaledFonts::m_bannerTertiary, Token::BannerTertiary },
    { &OxaScaledFonts::m_bannerPrimary, Token::BannerPrimary },
    { &OxaScaledFonts::m_bannerSecondary, Token::BannerSecondary },
    { &OxaScaledFonts::m_h2, Token::Title, { 16, 26, 32 } },
    { &OxaScaledFonts::m_title, Token::Title },
    { &OxaScaledFonts::m_headerPrimary, Token::Header },
    { &OxaScaledFonts::m_highlightPrimary, Token::HighlightPrimary, { 14, 20, 26 } },
    { &OxaScaledFonts::m_h3, Token::SubheaderPrimary, { 14, 20, 26 } },
    { &OxaScaledFonts::m_subheaderPrimary, Token::SubheaderPrimary },
    { &OxaScaledFonts::m_bodyPrimary, Token::BodyPrimary, { 14, 20, 26 } },
    { &OxaScaledFonts::m_hyperlinkPrimary, Token::HyperlinkPrimary, { 14, 20, 26 } },
    { &OxaScaledFonts::m_subheaderSecondary, Token::SubheaderSecondary },
    { &OxaScaledFonts::m_highlightSecondary, Token::HighlightSecondary, { 12, 16, 20 } },
    { &OxaScaledFonts::m_headerSecondary, Token::HighlightSecondary },
    { &OxaScaledFonts::m_bodySecondary, Token::BodySecondary, { 12, 16, 20 } },
    { &OxaScaledFonts::m_hyperlinkSecondary, Token::HyperlinkSecondary, { 12, 16, 20 } },
    { &OxaScaledFonts::m_highlightCompact, Token::HighlightTertiary },
    { &OxaScaledFonts::m_bodyCompact, Token::BodyTertiary },
    { &OxaScaledFonts::m_labelCompact, Token::TagLabelSecondary },
    { &OxaScaledFonts::m_codeBlocks, Token::CodeBlocks, { 14, 20, 26 } },
    { &OxaScaledFonts::m_default, Token::Default },
    { &OxaScaledFonts::m_h4, Token::SubheaderSecondary, { 12, 16, 20 } },
    { &OxaScaledFonts::m_h5, Token::Default, { 10, 14, 16 } },
    { &OxaScaledFonts::m_h6, Token::Default },
};

/// One row for each OxaFont::Token, in its order. Several tokens share a font.
QFont OxaScaledFonts::*const OxaScaledFonts::tokenFonts[] = {
    &OxaScaledFonts::m_default,            // Default
    &OxaScaledFonts::m_title,              // Title
    &OxaScaledFonts::m_headerPrimary,      // Header
    &OxaScaledFonts::m_subheaderPrimary,   // SubheaderPrimary
    &OxaScaledFonts::m_subheaderSecondary, // SubheaderSecondary
    &OxaScaledFonts::m_bodyPrimary,        // BodyPrimary
    &OxaScaledFonts::m_bodySecondary,      // BodySecondary
    &OxaScaledFonts::m_bodyCompact,        // BodyTertiary
    &OxaScaledFonts::m_bannerPrimary,      // BannerPrimary
    &OxaScaledFonts::m_bannerSecondary,    // BannerSecondary
    &OxaScaledFonts::m_bannerTertiary,     // BannerTertiary
    &OxaScaledFonts::m_highlightPrimary,   // HighlightPrimary
    &OxaScaledFonts::m_highlightSecondary, // HighlightSecondary
    &OxaScaledFonts::m_highlightCompact,   // HighlightTertiary
    &OxaScaledFonts::m_hyperlinkPrimary,   // HyperlinkPrimary
    &OxaScaledFonts::m_hyperlinkSecondary, // HyperlinkSecondary
    &OxaScaledFonts::m_subheaderSecondary, // TagLabelPrimary
    &OxaScaledFonts::m_labelCompact,       // TagLabelSecondary
    &OxaScaledFonts::m_codeBlocks,         // CodeBlocks
    &OxaScaledFonts::m_default,            // RadioButtonLabelSecondary: has no font of its own
    &OxaScaledFonts::m_display,            // Display
};

OxaScaledFonts::OxaScaledFonts(QObject *parent) : QObject(parent) { initializeTokens(); }

QFont OxaScaledFonts::getFont(OxaFont::Token token) const
{
    const auto index = static_cast<std::size_t>(token);
    return index < std::size(tokenFonts) ? this->*tokenFonts[index] : m_default;
}

void OxaScaledFonts::setScalingFactor(FontScalingFactor factor)
{
    if (factor == FontScalingFactor::Regular)
        initializeTokens();
    for (const Entry &entry : entries) {
        if (const int size = sizeAt(factor, entry.sizes))
            (this->*entry.font).setPixelSize(size);
    }
    Q_EMIT fontTokenChanged();
}

void OxaScaledFonts::initializeTokens()
{
    for (const Entry &entry : entries)
        this->*entry.font = OxaFont(entry.token, false);
    m_h5 = smallHeading(12);
    m_h6 = smallHeading(10);
}
