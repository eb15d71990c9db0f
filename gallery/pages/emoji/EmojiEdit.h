// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QTextEdit>

/// A text field that shows emoji as artwork as soon as they are typed, pasted or inserted, whether
/// or not a font has them. Has no undo.
class EmojiEdit : public QTextEdit
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QTextEdit)
    UIELEMENTS_FONT_BLOCK

public:
    explicit EmojiEdit(QWidget *parent = nullptr);

    /// Returns the text as it was typed, with emoji as characters.
    QString text() const;

    /// Replaces the text. Emits textChanged().
    void setText(const QString &text);

protected:
    QMimeData *createMimeDataFromSelection() const override;

protected Q_SLOTS:
    virtual void onThemeChanged();

private:
    void showArtwork();
};
