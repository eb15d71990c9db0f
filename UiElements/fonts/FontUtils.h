// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/OxaFont.h>

#include <QFontMetrics>
#include <QString>

/// Font families by purpose, and small calculations with fonts.
namespace FontUtils {

/// A list of families, the preferred one first. Any other value means Interface.
enum class SupportedFontFamily {
    Brand = 0,              ///< The brand's own family, which the outer application loads.
    Monospace = 1,          ///< Code.
    InterfaceWithEmoji = 2, ///< The interface's family with emoji as fall-back.
    Emoji = 3,              ///< Emoji only.
    Interface = 4,          ///< The interface's family.
    Ethiopic = 5,           ///< Scripts of the Horn of Africa and their neighbours.
};

/// Returns \a text, escaped, as an HTML paragraph in \a family. With \a wrap lines may break;
/// without it white space is kept. An empty text gives an empty string.
UIELEMENTS_EXPORT QString toHtml(const QString &text, SupportedFontFamily family, bool wrap);

/// Returns a font of \a pixelSize pixels in \a family.
UIELEMENTS_EXPORT OxaFont getFontByPixelSize(int pixelSize, SupportedFontFamily family);

/// Returns \a pixelSize in points, at 96 pixels to the inch.
UIELEMENTS_EXPORT double pixelSizeToPointSize(int pixelSize);

/// True when \a font names a family for code, or exactly the list of them.
UIELEMENTS_EXPORT bool isMonospaceFont(const OxaFont &font);

/// Returns the metrics of the font of \a token.
UIELEMENTS_EXPORT QFontMetrics fontMetrics(OxaFont::Token token);

} // namespace FontUtils
