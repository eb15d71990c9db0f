// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QTextEdit>

/// A field for rich text that takes part in theming. Tab leaves it instead of entering a tab, what
/// AltGr types reaches the text instead of firing a shortcut, and its context menu has the theme's
/// colours.
///
/// While it has the focus, by keyboard or by mouse, the application's style is asked for a focus
/// frame under the text. Fusion fills it while the focus came by keyboard: see docs/focus.md.
///
/// The placeholder has no colour set. It takes the text colours of a style text: to have others,
/// set QPalette::PlaceholderText in a slot of cssChanged(), and where style sheets of parents
/// change, too, at QEvent::PaletteChange: Qt sets it again with each of them. Links: see
/// OxaTextBrowser.
class UIELEMENTS_EXPORT OxaTextEdit : public QTextEdit
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QTextEdit)
    UIELEMENTS_FONT_BLOCK

public:
    /// Makes an empty field.
    explicit OxaTextEdit(QWidget *parent = nullptr);

    /// Makes a field with \a text, which is read as QTextEdit reads it: rich where it looks so.
    explicit OxaTextEdit(const QString &text, QWidget *parent = nullptr);

protected Q_SLOTS:
    /// Paints the focus frame, over the whole field, and then the text.
    void paintEvent(QPaintEvent *e) override;

    /// Runs at each change of the theme type, for subclasses to fetch what they paint with.
    virtual void onThemeChanged();

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
};
