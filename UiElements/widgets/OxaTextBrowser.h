// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaThemeBlock.h>
#include <UiElements/widgets/OxaElementBlock.h>

#include <QTextBrowser>

/// A reader of rich text with links that takes part in theming. Otherwise as QTextBrowser.
///
/// Links keep the colour that they had when the text was read, from the palette or the document's
/// default style sheet. For those of another theme, set the original HTML again in a slot of
/// themeTypeChanged(): that of toHtml() has the old colours in it.
class UIELEMENTS_EXPORT OxaTextBrowser : public QTextBrowser
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QTextBrowser)
    UIELEMENTS_FONT_BLOCK
    UIELEMENTS_ACCESSIBLE_ROLE_BLOCK

public:
    /// Makes an empty reader.
    explicit OxaTextBrowser(QWidget *parent = nullptr);

protected Q_SLOTS:
    /// Runs at each change of the theme type, for subclasses to fetch what they paint with.
    virtual void onThemeChanged();
};
