// SPDX-License-Identifier: Apache-2.0
#include "StyleDraft_p.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <numeric>

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

StyleDraft::StyleDraft(const QString &styleText, int room) : m_text(styleText), m_room(room)
{
    const QStringView text(m_text);
    for (qsizetype begin = 0; begin < text.size();) {
        const qsizetype end = find(text, sign, begin + 1);
        m_pieces.append(text.mid(begin, end - begin));
        begin = end;
    }
}

std::optional<StyleDraft::Span> StyleDraft::findDirective(QStringView tag)
{
    for (int piece = 0; piece < m_pieces.size(); ++piece) {
        if (!beginsWith(m_pieces[piece], tag))
            continue;
        const auto span = spanUpTo(QLatin1Char(';'), piece, static_cast<int>(tag.size()));
        if (!span)
            return std::nullopt;
        return Span { span->first, span->last, span->end, span->value.trimmed() };
    }
    return std::nullopt;
}

std::optional<StyleDraft::Span> StyleDraft::reference(int piece)
{
    constexpr QStringView opening = u"$(";
    const QStringView begin = m_pieces[piece];
    if (begin.size() < 2 || begin[0] != opening[0] || begin[1] != opening[1])
        return std::nullopt;
    const auto span = spanUpTo(QLatin1Char(')'), piece, static_cast<int>(opening.size()));
    return span && !span->value.contains(QLatin1Char('\n')) ? span : std::nullopt;
}

/// Returns what runs from the beginning of \a piece through the first \a end at or after \a offset.
std::optional<StyleDraft::Span> StyleDraft::spanUpTo(QChar end, int piece, int offset)
{
    const QStringView begin = m_pieces[piece].mid(offset);
    const qsizetype position = find(begin, end);
    if (position < begin.size())
        return Span { piece, piece, offset + static_cast<int>(position) + 1, begin.left(position) };

    m_value = begin.toString();
    for (int last = piece + 1; last < m_pieces.size(); ++last) {
        const qsizetype lastPosition = find(m_pieces[last], end);
        m_value.append(m_pieces[last].left(lastPosition));
        if (lastPosition < m_pieces[last].size())
            return Span { piece, last, static_cast<int>(lastPosition) + 1, m_value };
    }
    return std::nullopt;
}

void StyleDraft::replacePieces(const Span &span, QStringView replacement)
{
    const QStringView rest = m_pieces[span.last].mid(span.end);
    m_pieces[span.first] = replacement;
    m_pieces.erase(m_pieces.begin() + span.first + 1, m_pieces.begin() + span.last + 1);
    m_pieces.insert(m_pieces.begin() + span.first + 1, rest);
}

int StyleDraft::remove(const Span &span)
{
    qsizetype position = 0;
    for (int piece = 0; piece < span.first; ++piece)
        position += m_pieces[piece].size();

    QStringView &rest = m_pieces[span.last];
    rest = rest.mid(span.end);
    int first = span.first;
    if (first > 0 && isUnfinishedTag(m_pieces[first - 1])) {
        --first;
        m_joined.append(m_pieces[first].toString() + rest.toString());
        rest = m_joined.constLast();
    }
    m_pieces.erase(m_pieces.begin() + first,
                   m_pieces.begin() + span.last + (rest.isEmpty() ? 1 : 0));
    return static_cast<int>(position);
}

int StyleDraft::length() const
{
    return static_cast<int>(std::accumulate(m_pieces.begin(), m_pieces.end(), qsizetype(0),
                                            [](qsizetype length, QStringView piece) {
                                                return length + piece.size();
                                            }));
}

QString StyleDraft::text(int room) const
{
    const int length = this->length();
    QString text;
    text.reserve(length + room);
    text.resize(length);
    TextWriter writer(text.data());
    for (const QStringView piece : m_pieces)
        writer << piece;
    return text;
}

QString StyleDraft::textWithBeginnings(int length) const
{
    return writtenText(this->length(), [&](TextWriter &text) {
        for (const QStringView piece : m_pieces)
            text << (isWritten(piece) ? piece.left(length) : piece);
    });
}

bool StyleDraft::isWritten(QStringView piece) const
{
    const std::less_equal<const QChar *> notAfter;
    return notAfter(m_written.data(), piece.begin())
            && notAfter(piece.end(), m_written.data() + m_writtenLength);
}
