// SPDX-License-Identifier: Apache-2.0
#include "OxaScaledFonts.h"

using Token = OxaFont::Token;
using FontScalingFactor = FontManagerEnum::FontScalingFactor;

namespace {

/// Pixel sizes at the factors other than Regular; 0 leaves a font as it is.
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

OxaScaledFonts::OxaScaledFonts(QObject *parent) : QObject(parent) { initializeTokens(); }

QFont OxaScaledFonts::getFont(OxaFont::Token token) const
{
    switch (token) {
    case Token::Title:
        return m_title;
    case Token::Header:
        return m_headerPrimary;
    case Token::SubheaderPrimary:
        return m_subheaderPrimary;
    case Token::SubheaderSecondary:
    case Token::TagLabelPrimary:
        return m_subheaderSecondary;
    case Token::BodyPrimary:
        return m_bodyPrimary;
    case Token::BodySecondary:
        return m_bodySecondary;
    case Token::BodyTertiary:
        return m_bodyCompact;
    case Token::BannerPrimary:
        return m_bannerPrimary;
    case Token::BannerSecondary:
        return m_bannerSecondary;
    case Token::BannerTertiary:
        return m_bannerTertiary;
    case Token::HighlightPrimary:
        return m_highlightPrimary;
    case Token::HighlightSecondary:
        return m_highlightSecondary;
    case Token::HighlightTertiary:
        return m_highlightCompact;
    case Token::HyperlinkPrimary:
        return m_hyperlinkPrimary;
    case Token::HyperlinkSecondary:
        return m_hyperlinkSecondary;
    case Token::TagLabelSecondary:
        return m_labelCompact;
    case Token::CodeBlocks:
        return m_codeBlocks;
    case Token::Display:
        return m_display;
    case Token::Default:
    case Token::RadioButtonLabelSecondary: // No entry of its own, though the token has a size.
        break;
    }
    return m_default;
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
