// SPDX-License-Identifier: Apache-2.0
#include "StyleDraft_p.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr QChar sign = u'$';

/// The character by which alone all tags can be told apart.
constexpr int distinctiveIndex = 7;

bool beginsWith(QStringView piece, QStringView tag)
{
    return piece.size() >= tag.size() && piece[distinctiveIndex] == tag[distinctiveIndex]
            && std::memcmp(piece.data(), tag.data(), std::size_t(tag.size()) * sizeof(QChar)) == 0;
}

/// True when \a piece may be the beginning of a tag that the text cuts short.
bool isUnfinishedTag(QStringView piece)
{
    return piece.startsWith(sign) && !piece.contains(QLatin1Char(':'));
}

/// Returns the index of the first \a character from \a from on, or the size. Most are near, where
/// QStringView::indexOf() takes longer to begin than to search.
qsizetype find(QStringView text, QChar character, qsizetype from = 0)
{
    return std::find(text.begin() + from, text.end(), character) - text.begin();
}

} // namespace

StyleDraft::StyleDraft(const QString &styleText) : m_text(styleText)
{
    const QStringView text(m_text);
    for (qsizetype begin = 0; begin < text.size();) {
        const qsizetype end = find(text, sign, begin + 1);
        m_pieces.append({ {}, text.mid(begin, end - begin) });
        begin = end;
    }
}

std::optional<StyleDraft::Span> StyleDraft::findDirective(StyleTag tag)
{
    const QStringView tagText = textOf(tag);
    for (int piece = 0; piece < m_pieces.size(); ++piece) {
        if (!beginsWith(m_pieces[piece].text, tagText))
            continue;
        const auto span = spanUpTo(QLatin1Char(';'), piece, static_cast<int>(tagText.size()));
        if (!span)
            return std::nullopt;
        return Span { span->first, span->last, span->end, span->value.trimmed() };
    }
    return std::nullopt;
}

std::optional<StyleDraft::Span> StyleDraft::reference(int piece)
{
    constexpr QStringView opening = u"$(";
    const QStringView begin = m_pieces[piece].text;
    if (begin.size() < 2 || begin[0] != opening[0] || begin[1] != opening[1])
        return std::nullopt;
    const auto span = spanUpTo(QLatin1Char(')'), piece, static_cast<int>(opening.size()));
    return span && find(span->value, QLatin1Char('\n')) == span->value.size() ? span : std::nullopt;
}

/// Returns what runs from the beginning of \a piece through the first \a end at or after \a offset.
std::optional<StyleDraft::Span> StyleDraft::spanUpTo(QChar end, int piece, int offset)
{
    const QStringView begin = m_pieces[piece].text.mid(offset);
    const qsizetype position = find(begin, end);
    if (position < begin.size())
        return Span { piece, piece, offset + static_cast<int>(position) + 1, begin.left(position) };

    m_value = begin.toString();
    for (int last = piece + 1; last < m_pieces.size(); ++last) {
        int before = 0;
        for (const QStringView part : { m_pieces[last].written, m_pieces[last].text }) {
            const qsizetype partPosition = find(part, end);
            m_value.append(part.left(partPosition));
            if (partPosition < part.size())
                return Span { piece, last, before + static_cast<int>(partPosition) + 1, m_value };
            before = static_cast<int>(part.size());
        }
    }
    return std::nullopt;
}

/// Takes \a span out.
void StyleDraft::cut(const Span &span)
{
    for (int piece = span.first; piece < span.last; ++piece)
        m_pieces[piece] = {};
    Piece &last = m_pieces[span.last];
    const auto writtenLength = std::min(last.written.size(), qsizetype(span.end));
    last.written = last.written.mid(writtenLength);
    last.text = last.text.mid(span.end - writtenLength);
}

void StyleDraft::remove(const Span &span)
{
    cut(span);
    joinBefore(span.last);
}

/// Joins piece \a piece with the last one before it where the two may make up a tag.
void StyleDraft::joinBefore(int piece)
{
    Piece &end = m_pieces[piece];
    int before = piece - 1;
    while (before >= 0 && m_pieces[before].size() == 0)
        --before;
    if (before < 0 || !isUnfinishedTag(m_pieces[before].text) || !end.written.isEmpty())
        return;
    m_joined.append(m_pieces[before].text.toString() + end.text.toString());
    m_pieces[before].text = m_joined.constLast();
    end = {};
}

/// Returns the length of the first \a pieceCount pieces.
int StyleDraft::lengthOf(int pieceCount) const
{
    qsizetype length = 0;
    for (int piece = 0; piece < pieceCount; ++piece)
        length += m_pieces[piece].size();
    return static_cast<int>(length);
}

QString StyleDraft::text() const
{
    const auto writePieces = [this](TextWriter &writer) {
        for (const Piece &piece : m_pieces)
            writer << piece.written << piece.text;
    };
    const int insertionLength = static_cast<int>(m_insertion.size());
    QString text = writtenText(length() + insertionLength, writePieces);
    if (insertionLength > 0)
        text.insert(m_insertionPosition, m_insertion.data(), insertionLength);
    return text;
}

void StyleDraft::writeBeginnings(TextWriter &writer, int length) const
{
    for (const Piece &piece : m_pieces)
        writer << piece.written.left(length) << piece.text;
}
