// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaColorSet.h>

/// Stores of colour sets for benchmarks.
namespace Stores {

/// Returns \a count sets "set-0", "set-1" and so on, whose states all differ, and those that
/// widgets ask for themselves. Stores of different \a shade differ in every colour.
inline OxaColorSetMap make(int count, int shade = 0)
{
    OxaColorSetMap store;
    store.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i) {
        OxaColorSet set(QStringLiteral("set-%1").arg(i), QColor());
        int blue = shade;
        for (QColor *color :
             { &set.normal, &set.hovered, &set.pressed, &set.disabled, &set.focused, &set.checked })
            *color = QColor(i % 256, i / 256, blue++);
        store.emplace(set.name.toStdString(), set);
    }
    for (const char *name :
         { "background-primary", "button-hyperlink-text", "checkbox-checked-background",
           "checkbox-unchecked-background", "legacy-separator-primary", "oxa-default-border",
           "oxa-default-text", "oxa-percentage-indicator-possessive", "oxa-popupDropShadow",
           "oxa-progressbar", "oxa-reaction-list-item-gradient-background-end-color",
           "oxa-recorder-comboBox-border", "oxa-rills-combobox-background",
           "oxa-rills-combobox-border", "oxa-rills-combobox-dropdown-arrow",
           "oxa-rills-combobox-text" })
        store.emplace(name, OxaColorSet(QString::fromLatin1(name), QColor(0, 0, shade)));
    return store;
}

} // namespace Stores
