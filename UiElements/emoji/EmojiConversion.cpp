// SPDX-License-Identifier: Apache-2.0
#include "EmojiCharTypes_p.h"
#include "EmojiConversion_p.h"

namespace {

using Type = EmojiCharType;

constexpr uint cancelTag = 0xE007F;

void appendCodePoint(QString &text, uint codePoint)
{
    if (QChar::requiresSurrogates(codePoint)) {
        text += QChar(QChar::highSurrogate(codePoint));
        text += QChar(QChar::lowSurrogate(codePoint));
    } else {
        text += QChar(ushort(codePoint));
    }
}

/// Adds the hexadecimal digits of \a codePoint; two digits get "00" in front.
void appendName(QString &stem, uint codePoint)
{
    if (codePoint >= 0x10 && codePoint <= 0xFF)
        stem += QLatin1String("00");
    int shift = 20;
    while (shift > 0 && codePoint >> shift == 0)
        shift -= 4;
    for (; shift >= 0; shift -= 4)
        stem += QLatin1Char("0123456789abcdef"[codePoint >> shift & 0xF]);
}

void append(EmojiSequence &sequence, uint codePoint)
{
    appendName(sequence.stem, codePoint);
    appendCodePoint(sequence.text, codePoint);
}

void appendWithDash(EmojiSequence &sequence, uint codePoint)
{
    sequence.stem += QLatin1Char('-');
    append(sequence, codePoint);
}

bool isKeycapBase(QChar unit) { return EmojiCharTypes::typeOf(unit.unicode()) == Type::KeycapBase; }

/// Returns whether the character at \a unit is not part of a sequence. A digit isn't either if a
/// letter or another digit follows it.
bool isPlain(const QChar *unit, const QChar *end)
{
    if (EmojiCharTypes::isPlain(unit->unicode()))
        return true;
    const QChar *const next = unit + 1;
    return isKeycapBase(*unit) && next != end
            && (EmojiCharTypes::isPlain(next->unicode()) || isKeycapBase(*next));
}

} // namespace

EmojiConversion::EmojiConversion(const QString &text, const SequenceWriter &writer)
    : m_text(text), m_writer(writer)
{
    // Room for the longest sequences, so that appending to them does not allocate.
    m_pending.stem.reserve(64);
    m_pending.text.reserve(32);
    m_markup.reserve(text.size());
}

QString EmojiConversion::run()
{
    while (!isAtEnd())
        step();
    if (!m_pending.stem.isEmpty())
        flush();
    return m_markup;
}

void EmojiConversion::step()
{
    const CodePoint current = codePointAt(m_next);
    m_next += current.length;
    m_previousType = m_currentType;
    m_currentType = EmojiCharTypes::typeOf(current.value);

    const Type type = m_currentType;
    const bool isEmoji = type == Type::Base || type == Type::GenderSign;
    if (isEmoji && m_previousType != Type::Joiner)
        start(current.value);
    else if ((type == Type::KeycapBase && !isAtEnd())
             || (m_previousType == Type::KeycapBase && type == Type::VariationSelector)
             || (m_previousType == Type::VariationSelector && type == Type::Keycap))
        takeKeycap(current.value);
    else if (type == Type::RegionalIndicator)
        takeRegionalIndicator(current.value);
    else if (type == Type::BlackFlag)
        takeFlag(current.value);
    else if (type == Type::VariationSelector)
        takeSelector(current.value);
    else if (type >= Type::Base && type <= Type::HairComponent)
        appendWithDash(m_pending, current.value);
    else
        takePlain(current.value);
    m_previous = current.value;
}

/// Starts a sequence with an emoji. What was pending is complete; a lone digit is plain text.
void EmojiConversion::start(uint codePoint)
{
    if (m_previousType == Type::KeycapBase)
        m_markup += m_pending.text;
    else if (!m_pending.stem.isEmpty())
        flush();
    clear();
    append(m_pending, codePoint);
}

/// Takes one of the three code points of a keycap: "1", U+FE0F, U+20E3.
void EmojiConversion::takeKeycap(uint codePoint)
{
    if (m_previousType == Type::KeycapBase && m_currentType != Type::VariationSelector) {
        m_markup += m_pending.text;
        clear();
    }
    if (m_currentType == Type::KeycapBase) {
        flushAndClear();
        append(m_pending, codePoint);
    } else {
        appendWithDash(m_pending, codePoint);
        if (m_currentType == Type::Keycap)
            flushAndClear();
    }
}

/// Takes a flag by reading two code points: a single indicator disappears with the second one.
void EmojiConversion::takeRegionalIndicator(uint codePoint)
{
    flushAndClear();
    if (isAtEnd())
        return;
    const CodePoint second = codePointAt(m_next);
    m_next += second.length;
    if (EmojiCharTypes::typeOf(second.value) == Type::RegionalIndicator) {
        append(m_pending, codePoint);
        appendWithDash(m_pending, second.value);
        flushAndClear();
    }
}

/// Takes a black flag, which is an emoji by itself unless tags follow it. Tags without an end
/// disappear, and at the end of the text so does their flag.
void EmojiConversion::takeFlag(uint codePoint)
{
    flushAndClear();
    if (isAtEnd() || takeTags(codePoint))
        append(m_pending, codePoint);
}

/// Takes the tags after \a flag and writes their sequence once it is complete. Returns whether the
/// flag is then still an emoji by itself.
bool EmojiConversion::takeTags(uint flag)
{
    EmojiSequence gathered;
    append(gathered, flag);
    bool hasTag = false;
    while (!isAtEnd()) {
        const CodePoint next = codePointAt(m_next);
        appendWithDash(gathered, next.value);
        if (next.value == cancelTag) {
            m_next += next.length;
            m_pending = gathered;
            flushAndClear();
            return !hasTag;
        }
        if (EmojiCharTypes::typeOf(next.value) != Type::TagCharacter)
            return true;
        m_next += next.length;
        hasTag = true;
    }
    return false;
}

/// Takes a variation selector, which ends a sequence unless a joiner or a keycap follows.
void EmojiConversion::takeSelector(uint codePoint)
{
    if (m_pending.stem.isEmpty())
        clear();
    appendWithDash(m_pending, codePoint);
    const Type next = nextType();
    if (next == Type::Joiner || next == Type::Keycap)
        return;
    flush();
    // The text is kept: a skin tone or hair right after the selector comes too late and shows it
    // again. Anything else clears it.
    m_pending.stem.resize(0);
}

void EmojiConversion::takePlain(uint codePoint)
{
    if (!m_pending.stem.isEmpty()) {
        if (m_previousType == Type::KeycapBase)
            appendCodePoint(m_markup, m_previous);
        else
            flush();
    }
    clear();
    m_hasPlainText = true;
    appendCodePoint(m_markup, codePoint);
    copyPlainRun();
}

/// Copies the plain characters that follow, which are most of any text, at once.
void EmojiConversion::copyPlainRun()
{
    const QChar *const begin = m_text.constData() + m_next;
    const QChar *const end = m_text.constData() + m_text.size();
    const QChar *last = begin;
    while (last != end && isPlain(last, end))
        ++last;
    if (last == begin)
        return;
    m_markup.append(begin, int(last - begin));
    m_next += int(last - begin);
    m_currentType = Type::Other;
}

EmojiConversion::CodePoint EmojiConversion::codePointAt(int position) const
{
    const QChar unit = m_text.at(position);
    if (!unit.isSurrogate())
        return { unit.unicode(), 1 };
    if (unit.isHighSurrogate() && position + 1 < m_text.size()
        && m_text.at(position + 1).isLowSurrogate())
        return { QChar::surrogateToUcs4(unit, m_text.at(position + 1)), 2 };
    return { QChar::ReplacementCharacter, 1 };
}

EmojiCharType EmojiConversion::nextType() const
{
    return isAtEnd() ? Type::Other : EmojiCharTypes::typeOf(codePointAt(m_next).value);
}

void EmojiConversion::flush() { m_writer(m_pending, m_markup); }

void EmojiConversion::flushAndClear()
{
    if (!m_pending.stem.isEmpty())
        flush();
    clear();
}

void EmojiConversion::clear()
{
    m_pending.stem.resize(0);
    m_pending.text.resize(0);
}
