// SPDX-License-Identifier: Apache-2.0
#include "ButtonLooks.h"

#include <UiElements/widgets/OxaPushButton.h>

namespace {

QString look(const char *background, const char *border, const char *text)
{
    return QStringLiteral("$backgroundColors: %1; $borderColors: %2; $textColors: %3;"
                          "$borderRadius: 6;"
                          "OxaPushButton { padding: 6px 16px; }")
            .arg(QLatin1String(background), QLatin1String(border), QLatin1String(text));
}

} // namespace

QString ButtonLooks::plain()
{
    return look("gallery-button-background", "gallery-button-border", "gallery-button-text");
}

QString ButtonLooks::accent()
{
    return look("gallery-accent-button-background", "gallery-accent-button-border",
                "gallery-accent-button-text");
}

QString ButtonLooks::quiet()
{
    return look("gallery-quiet-button-background", "gallery-quiet-button-border",
                "gallery-quiet-button-text");
}

QString ButtonLooks::leave()
{
    return look("gallery-leave-button-background", "gallery-accent-button-border",
                "gallery-leave-button-text");
}

QString ButtonLooks::toggle()
{
    return look("gallery-toggle-background", "gallery-toggle-border", "gallery-toggle-text");
}

QString ButtonLooks::steady()
{
    return look("gallery-field-background", "gallery-button-border", "gallery-body-text");
}

void ButtonLooks::apply(OxaPushButton &button)
{
    button.setFontToken(OxaFont::Token::TagLabelPrimary);
    button.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    button.setCSS(plain());
}
