// SPDX-License-Identifier: Apache-2.0
#include "FontUtils.h"

using FontUtils::SupportedFontFamily;

namespace {

QStringList familiesOf(SupportedFontFamily family)
{
    switch (family) {
    case SupportedFontFamily::Brand:
        return { QStringLiteral("MarloSansTT") };
    case SupportedFontFamily::Monospace:
        return { QStringLiteral("Consolas"), QStringLiteral("Courier New"),
                 QStringLiteral("monospace") };
    case SupportedFontFamily::InterfaceWithEmoji:
        return { QStringLiteral("Segoe UI"), QStringLiteral("Segoe UI Emoji") };
    case SupportedFontFamily::Emoji:
        return { QStringLiteral("Segoe UI Emoji") };
    case SupportedFontFamily::Ethiopic:
        return { QStringLiteral("Ebrima") };
    case SupportedFontFamily::Interface:
        break;
    }
    return { QStringLiteral("Segoe UI") };
}

QString htmlTemplate(bool wrap)
{
    return wrap ? QStringLiteral("<html><head/><body><p style=\"font-family: %1;\">%2</p></body>"
                                 "</html>")
                : QStringLiteral("<html><head/><body><p style=\"font-family: %1;white-space: pre\">"
                                 "%2</p></body></html>");
}

} // namespace

QString FontUtils::toHtml(const QString &text, SupportedFontFamily family, bool wrap)
{
    if (text.isEmpty())
        return {};
    return htmlTemplate(wrap).arg(familiesOf(family).join(QLatin1Char(',')), text.toHtmlEscaped());
}

OxaFont FontUtils::getFontByPixelSize(int pixelSize, SupportedFontFamily family)
{
    OxaFont font(familiesOf(family), -1, -1);
    font.setPixelSize(pixelSize);
    return font;
}

double FontUtils::pixelSizeToPointSize(int pixelSize) { return pixelSize * 0.75; }

bool FontUtils::isMonospaceFont(const OxaFont &font)
{
    const QStringList monospace = familiesOf(SupportedFontFamily::Monospace);
    return monospace.contains(font.family()) || font.families() == monospace;
}

QFontMetrics FontUtils::fontMetrics(OxaFont::Token token)
{
    return QFontMetrics(OxaFont(token, false));
}
