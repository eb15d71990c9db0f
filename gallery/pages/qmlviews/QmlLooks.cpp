// SPDX-License-Identifier: Apache-2.0
#include "QmlLooks.h"

#include <UiElements/fonts/OxaFont.h>
#include <UiElements/theme/OxaThemeUtils.h>

QVariantMap QmlLooks::of(const QString &text, const QWidget *widget)
{
    const auto color = [widget](const char *set) {
        return OxaThemeUtils::getColorSet(set, widget).normal;
    };
    return { { QStringLiteral("text"), text },
             { QStringLiteral("background"), color("gallery-note-background") },
             { QStringLiteral("border"), color("gallery-note-border") },
             { QStringLiteral("color"), color("gallery-note-text") },
             { QStringLiteral("pixelSize"), OxaFont(OxaFont::Token::Default).pixelSize() } };
}
