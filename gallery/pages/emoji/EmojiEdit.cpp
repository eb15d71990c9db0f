// SPDX-License-Identifier: Apache-2.0
#include "EmojiEdit.h"

#include "widgets/Fields.h"

#include <UiElements/emoji/EmojiTextConverter.h>

#include <QMimeData>
#include <QSignalBlocker>
#include <QTextDocumentFragment>

namespace {

/// Returns the plain text of \a markup, with emoji instead of pictures.
QString plainText(const QString &markup)
{
    return QTextDocumentFragment::fromHtml(EmojiTextConverter::restore(markup)).toPlainText();
}

} // namespace

EmojiEdit::EmojiEdit(QWidget *parent) : OxaTextEdit(parent)
{
    setFontToken(OxaFont::Token::BodyPrimary);
    setAcceptRichText(false);
    // Undo would restore the characters, which would become pictures again.
    setUndoRedoEnabled(false);
    setCSS(Fields::look("EmojiEdit", { 4, 4 }));
    connect(this, &QTextEdit::textChanged, this, &EmojiEdit::showArtwork);
}

QString EmojiEdit::text() const { return plainText(toHtml()); }

void EmojiEdit::setText(const QString &text) { setPlainText(text); }

QMimeData *EmojiEdit::createMimeDataFromSelection() const
{
    auto *mimeData = new QMimeData;
    mimeData->setText(plainText(textCursor().selection().toHtml()));
    return mimeData;
}

/// Replaces emoji that are still characters by pictures.
void EmojiEdit::showArtwork()
{
    const QString characters = toPlainText();
    const QSignalBlocker blocker(this);
    EmojiTextConverter converter(fontMetrics().height(), devicePixelRatioF());
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    int end = 0;
    int replaced = 0;
    const auto sequences = EmojiTextConverter::sequences(characters);
    for (const EmojiSequence &sequence : sequences) {
        const int start = characters.indexOf(sequence.text, end);
        end = start + sequence.text.size();
        const QString markup = converter.convert(sequence.text);
        if (converter.svgFiles().isEmpty())
            continue;
        cursor.setPosition(start - replaced);
        cursor.setPosition(end - replaced, QTextCursor::KeepAnchor);
        cursor.insertHtml(markup);
        // A picture is one character.
        replaced += sequence.text.size() - 1;
    }
    converter.insertImages(document());
    cursor.endEditBlock();
}
