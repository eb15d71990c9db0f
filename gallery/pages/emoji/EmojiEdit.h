// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaTextEdit.h>

/// A text field that shows emoji as artwork as soon as they are typed, pasted or inserted, whether
/// or not a font has them. Has no undo.
class EmojiEdit : public OxaTextEdit
{
    Q_OBJECT

public:
    explicit EmojiEdit(QWidget *parent = nullptr);

    /// Returns the text as it was typed, with emoji as characters.
    QString text() const;

    /// Replaces the text. Emits textChanged().
    void setText(const QString &text);

protected:
    QMimeData *createMimeDataFromSelection() const override;

private:
    void showArtwork();
};
