// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "TextWriter_p.h"

#include <QStringList>
#include <QVarLengthArray>

#include <optional>

/// A style text on its way to a style sheet.
///
/// The text is cut before each "$", so that whatever the style language knows begins a piece: to
/// find it is to look at a few beginnings, and to replace it moves no text. The pieces are put
/// together once, at the end.
class StyleDraft
{
public:
    /// A stretch of the text, from the beginning of a piece on.
    struct Span
    {
        int first = 0;     ///< The piece that it begins.
        int last = 0;      ///< The piece in which it ends.
        int end = 0;       ///< Where in that piece.
        QStringView value; ///< What it holds. Good until the next look-up.
    };

    /// Cuts \a styleText. Nothing longer than \a room characters in all will be written into it.
    explicit StyleDraft(const QString &styleText, int room = 0);

    int pieceCount() const { return m_pieces.size(); }

    /// Finds the first \a tag, and what stands between it and the next ";", trimmed. A tag with no
    /// ";" after it is no directive.
    std::optional<Span> findDirective(QStringView tag);

    /// Takes piece \a piece for the beginning of "$(…)", all of it on one line.
    std::optional<Span> reference(int piece);

    /// Replaces \a span by what \a write, a function of a TextWriter &, writes. The style language
    /// does not look into that again.
    template <typename Write>
    void replace(const Span &span, Write write)
    {
        m_written.reserve(m_room); // Once: pieces point there.
        TextWriter writer(m_written.data() + m_writtenLength);
        write(writer);
        const QStringView replacement(m_written.data() + m_writtenLength, writer.end());
        m_writtenLength += static_cast<int>(replacement.size());
        Q_ASSERT(m_writtenLength <= m_room);
        replacePieces(span, replacement);
    }

    /// Removes \a span and returns its position. What stood around it may make up a tag now.
    int remove(const Span &span);

    /// Returns the text as it stands now, with capacity for \a room characters more.
    QString text(int room = 0) const;

    /// Returns the text as it stands now, but of each replacement only the first \a length
    /// characters.
    QString textWithBeginnings(int length) const;

private:
    std::optional<Span> spanUpTo(QChar end, int piece, int offset);
    void replacePieces(const Span &span, QStringView replacement);
    int length() const;
    bool isWritten(QStringView piece) const;

    const QString m_text;
    const int m_room;
    int m_writtenLength = 0;
    QVarLengthArray<QChar, 2048> m_written; ///< The replacements, one after the other.
    QStringList m_joined; ///< What has to be in one piece, although it isn't in the text.
    QString m_value;      ///< A value that is not in one piece.
    QVarLengthArray<QStringView, 32> m_pieces;
};
