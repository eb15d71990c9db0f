// SPDX-License-Identifier: Apache-2.0
#include "LibraryColorSets.h"

namespace {

constexpr const char *names[] = {
    "alertBackground-error",
    "alertBackground-warning",
    "alertText-error",
    "alertText-warning",
    "background-primary",
    "badge-background",
    "button-hyperlink-text",
    "checkbox-checked-background",
    "checkbox-unchecked-background",
    "legacy-separator-primary",
    "listitem-background",
    "listitem-textprimary",
    "mainList-item",
    "menulistbackground-secondary-background",
    "oxa-contentTabViewButton-text",
    "oxa-contentTabViewButtonChecked-text",
    "oxa-default-border",
    "oxa-default-text",
    "oxa-defaultBorderForButton",
    "oxa-footer-warning-icon",
    "oxa-menuItemButton-text",
    "oxa-percentage-indicator-possessive",
    "oxa-popupDropShadow",
    "oxa-progressbar",
    "oxa-reaction-list-item-gradient-background-end-color",
    "oxa-recorder-comboBox-border",
    "oxa-rills-combobox-background",
    "oxa-rills-combobox-border",
    "oxa-rills-combobox-dropdown-arrow",
    "oxa-rills-combobox-text",
    "oxa-spaceTabs-text",
    "oxa-underlineButton-background",
    "oxa-underlineButton-text",
    "oxa-unreadCountCircle-background",
    "oxa-unreadCountCircle-text",
    "separator-primary",
    "text-primary",
    "text-secondary",
    "theme-gradient-dialog-secondary-0-background",
    "theme-gradient-dialog-secondary-1-background",
    "theme-gradient-primary-0-background",
    "theme-gradient-primary-1-background",
    "theme-gradient-secondary-0-background",
    "theme-gradient-secondary-1-background",
};

} // namespace

QStringList libraryColorSetNames()
{
    QStringList result;
    for (const char *name : names)
        result.append(QString::fromLatin1(name));
    return result;
}
