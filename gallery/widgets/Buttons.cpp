// SPDX-License-Identifier: Apache-2.0
#include "Buttons.h"

namespace {

QString look(const char *background, const char *border, const char *text,
             const char *focus = "gallery-focus-border.normal")
{
    // The focus border is wider than others, so that it differs from a checked one, and is shown
    // under the pointer as well.
    return QStringLiteral("$backgroundColors: %1; $borderColors: %2; $textColors: %3;"
                          "$borderRadius: 6;"
                          "OxaPushButton { padding: 6px 16px; }"
                          "OxaPushButton:focus { border: 2px solid $(%4); padding: 5px 15px; }"
                          "OxaPushButton:focus:checked {"
                          " border-color: $(gallery-focus-border.checked); }")
            .arg(QLatin1String(background), QLatin1String(border), QLatin1String(text),
                 QLatin1String(focus));
}

} // namespace

QString Buttons::plain()
{
    return look("gallery-button-background", "gallery-button-border", "gallery-button-text");
}

QString Buttons::accent()
{
    return look("gallery-accent-button-background", "gallery-accent-button-border",
                "gallery-accent-button-text", "gallery-focus-border.checked");
}

QString Buttons::quiet()
{
    return look("gallery-quiet-button-background", "gallery-quiet-button-border",
                "gallery-quiet-button-text");
}

QString Buttons::leave()
{
    return look("gallery-leave-button-background", "gallery-accent-button-border",
                "gallery-leave-button-text", "gallery-focus-border.checked");
}

QString Buttons::toggle()
{
    return look("gallery-toggle-background", "gallery-toggle-border", "gallery-toggle-text");
}

void Buttons::setUp(OxaPushButton &button)
{
    button.setFontToken(OxaFont::Token::TagLabelPrimary);
    button.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    button.setCursor(Qt::PointingHandCursor);
    button.setFocusPolicy(Qt::TabFocus);
    button.setCSS(plain());
}

OxaPushButton *Buttons::make(const QString &text, QWidget *parent)
{
    auto *button = new OxaPushButton(text, parent);
    setUp(*button);
    button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    return button;
}

OxaToggleButton *Buttons::makeChoice(const QString &text, const QString &unchecked,
                                     const QString &checked, QWidget *parent)
{
    auto *button = new OxaToggleButton(parent);
    button->setText(text);
    button->setCursor(Qt::PointingHandCursor);
    button->setAutoExclusive(true);
    const auto show = [button, unchecked, checked](bool isChecked) {
        button->setCSS(isChecked ? checked : unchecked);
        button->setFocusPolicy(isChecked ? Qt::TabFocus : Qt::NoFocus);
    };
    QObject::connect(button, &QAbstractButton::toggled, button, show);
    show(false);
    return button;
}
