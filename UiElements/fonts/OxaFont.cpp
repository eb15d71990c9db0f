// SPDX-License-Identifier: Apache-2.0
#include "OxaFont.h"

#include <UiElements/app/ApplicationObject_p.h>
#include <UiElements/app/OxaApplication.h>

#include <QDebug>

#include <array>
#include <cmath>

namespace {

constexpr char invalidTokenWarning[] = "Invalid font token! This should never happen!";

struct TokenStyle
{
    int weight;
    int pixelSize;
    bool underline = false;
};

constexpr TokenStyle unknownTokenStyle = { QFont::Normal, 16 };

/// One row for each OxaFont::Token, in its order.
constexpr std::array<TokenStyle, 21> tokenStyles = { {
        { QFont::Normal, 16 },       // Default
        { QFont::DemiBold, 20 },     // Title
        { QFont::Bold, 16 },         // Header
        { QFont::DemiBold, 16 },     // SubheaderPrimary
        { QFont::DemiBold, 14 },     // SubheaderSecondary
        { QFont::Normal, 16 },       // BodyPrimary
        { QFont::Normal, 14 },       // BodySecondary
        { QFont::DemiBold, 12 },     // BodyTertiary
        { QFont::DemiBold, 26 },     // BannerPrimary
        { QFont::Normal, 26 },       // BannerSecondary
        { QFont::Bold, 26 },         // BannerTertiary
        { QFont::Bold, 16 },         // HighlightPrimary
        { QFont::Bold, 14 },         // HighlightSecondary
        { QFont::Bold, 12 },         // HighlightTertiary
        { QFont::Normal, 16, true }, // HyperlinkPrimary
        { QFont::Normal, 14, true }, // HyperlinkSecondary
        { QFont::DemiBold, 14 },     // TagLabelPrimary
        { QFont::DemiBold, 12 },     // TagLabelSecondary
        { QFont::Normal, 16 },       // CodeBlocks
        { QFont::Normal, 12 },       // RadioButtonLabelSecondary
        { QFont::DemiBold, 40 },     // Display
} };

TokenStyle styleOf(OxaFont::Token token)
{
    const auto index = static_cast<std::size_t>(token);
    if (index < tokenStyles.size())
        return tokenStyles[index];
    QMessageLogger().warning() << invalidTokenWarning;
    return unknownTokenStyle;
}

/// Returns \a pixelSize times \a factor. A NaN, which the application may store, does not scale.
int scaled(int pixelSize, float factor)
{
    return std::isnan(factor) ? pixelSize : qRound(float(pixelSize) * factor);
}

QStringList scriptFamilies()
{
    return { QStringLiteral("Ebrima"), QStringLiteral("Myanmar Text"),
             QStringLiteral("Nirmala UI") };
}

} // namespace

OxaFont::OxaFont(const QString &family, int pointSize, int weight)
    : QFont(family, pointSize, weight, false)
{
}

OxaFont::OxaFont(const QStringList &families, int pointSize, int weight)
{
    if (pointSize > 0)
        setPointSize(pointSize);
    if (weight >= 0)
        setWeight(weight);
    if (!families.isEmpty())
        setFamilies(families);
}

OxaFont::OxaFont(const QFont &font) : QFont(font) { }

OxaFont::OxaFont(Token token, bool useFallbackFamilies)
{
    const TokenStyle style = styleOf(token);
    setWeight(style.weight);
    setUnderline(style.underline);
    if (token == Token::CodeBlocks)
        setFamily(QStringLiteral("Consolas"));

    if (const auto *app = ApplicationObject::find<OxaApplication>()) {
        setPixelSize(scaled(style.pixelSize, app->getFontScaleFactor()));
        // Set last, so that the list replaces the monospace family, as the header says.
        if (useFallbackFamilies)
            setFamilies(QStringList(QStringLiteral("Segoe UI")) + scriptFamilies());
        return;
    }

    setPixelSize(style.pixelSize);
    QStringList families = { QStringLiteral("Segoe UI"), QStringLiteral("Segoe UI Emoji") };
    if (useFallbackFamilies)
        families += scriptFamilies();
    setFamilies(families);
}
