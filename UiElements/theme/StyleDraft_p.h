// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "StyleTag_p.h"
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

    /// Cuts \a styleText.
    explicit StyleDraft(const QString &styleText);

    int pieceCount() const { return m_pieces.size(); }

    /// Makes room for all that will be written: \a length characters at most. To be called before
    /// the first of them.
    void reserve(int length) { m_written.reserve(length); }

    /// Finds the first \a tag, and what stands between it and the next ";", trimmed. A tag with no
    /// ";" after it is no directive.
    std::optional<Span> findDirective(StyleTag tag);

    /// Takes piece \a piece for the beginning of "$(…)", all of it on one line.
    std::optional<Span> reference(int piece);

    /// Replaces \a span by what \a write, a function of a TextWriter &, writes. The style language
    /// does not look into that again.
    template <typename Write>
    void replace(const Span &span, Write write)
    {
        cut(span);
        m_pieces[span.first].written = written(write);
    }

    /// Inserts what \a write, a function of a TextWriter &, writes at \a position, as
    /// QString::insert() does: a position behind the end is reached with blanks. Comes last, once.
    template <typename Write>
    void insert(int position, Write write)
    {
        m_insertion = written(write);
        m_insertionPosition = position;
    }

    /// Removes \a span. What stood around it may make up a tag now.
    void remove(const Span &span);

    /// Returns where in the text \a span begins.
    int positionOf(const Span &span) const { return lengthOf(span.first); }

    /// Returns the length of the text as it stands now.
    int length() const { return lengthOf(pieceCount()); }

    /// Returns the text as it stands now.
    QString text() const;

    /// Writes the text as it stands now, but of what was written into it only the first \a length
    /// characters each time.
    void writeBeginnings(TextWriter &writer, int length) const;

private:
    /// What was written in place of something, and what stands after it.
    struct Piece
    {
        qsizetype size() const { return written.size() + text.size(); }

        QStringView written;
        QStringView text;
    };

    template <typename Write>
    QStringView written(Write write)
    {
        QChar *const begin = m_written.data() + m_writtenLength;
        TextWriter writer(begin);
        write(writer);
        m_writtenLength += static_cast<int>(writer.end() - begin);
        Q_ASSERT(m_writtenLength <= m_written.capacity());
        return { begin, writer.end() };
    }

    std::optional<Span> spanUpTo(QChar end, int piece, int offset);
    int lengthOf(int pieceCount) const;
    void cut(const Span &span);
    void joinBefore(int piece);

    const QString m_text;
    QVarLengthArray<Piece, 32> m_pieces;
    QVarLengthArray<QChar, 2048> m_written; ///< What was written, one after the other.
    int m_writtenLength = 0;
    QStringView m_insertion; ///< What is yet to be inserted.
    int m_insertionPosition = 0;
    QStringList m_joined; ///< What has to be in one piece, although it isn't in the text.
    QString m_value;      ///< A value that is not in one piece.
};
