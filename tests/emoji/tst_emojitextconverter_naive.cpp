// SPDX-License-Identifier: Apache-2.0
#include "EmojiNotation.h"
#include "support/RandomSeed.h"

#include <UiElements/emoji/EmojiTextConverter.h>

#include <QTest>

namespace {

using Type = EmojiCharType;

/// Reads sequences by one code point after the other and its class, with all code points in a
/// vector and nothing copied in runs: what EmojiTextConverter has to agree with.
class NaiveReader
{
public:
    explicit NaiveReader(const QString &text) : m_codePoints(text.toUcs4())
    {
        for (m_position = 0; m_position < m_codePoints.size(); ++m_position)
            step();
        flush();
    }

    QString result; ///< The text, as there is no artwork.
    QStringList stems;
    bool hasPlainText = false;

private:
    static QString character(uint codePoint) { return QString::fromUcs4(&codePoint, 1); }

    Type typeAt(int position) const
    {
        return position < m_codePoints.size() ? EmojiTextConverter::charType(m_codePoints[position])
                                              : Type::Other;
    }

    void append(const QString &separator, uint codePoint)
    {
        QString stem = QString::number(codePoint, 16);
        if (stem.size() == 2)
            stem.prepend(QLatin1String("00"));
        m_stem += separator + stem;
        m_text += character(codePoint);
    }

    /// Writes what is pending, if anything is.
    void flush()
    {
        if (m_stem.isEmpty())
            return;
        result += m_text;
        stems += m_stem;
    }

    void clear()
    {
        m_stem.clear();
        m_text.clear();
    }

    void step()
    {
        const uint codePoint = m_codePoints[m_position];
        const bool isLast = m_position == m_codePoints.size() - 1;
        m_previous = m_current;
        m_current = typeAt(m_position);
        const Type type = m_current;
        // Only a skin tone or hair adds to a text whose sequence is written already.
        if (m_stem.isEmpty() && type != Type::SkinTone && type != Type::HairComponent)
            m_text.clear();
        if ((type == Type::Base || type == Type::GenderSign) && m_previous != Type::Joiner)
            start(codePoint);
        else if ((type == Type::KeycapBase && !isLast)
                 || (m_previous == Type::KeycapBase && type == Type::VariationSelector)
                 || (m_previous == Type::VariationSelector && type == Type::Keycap))
            takeKeycap(codePoint);
        else if (type == Type::RegionalIndicator)
            takeRegionalIndicator(codePoint);
        else if (type == Type::BlackFlag)
            takeFlag(codePoint);
        else if (type == Type::VariationSelector)
            takeSelector(codePoint);
        else if (type >= Type::Base && type <= Type::HairComponent)
            append(QStringLiteral("-"), codePoint);
        else
            takePlain(codePoint);
    }

    void start(uint codePoint)
    {
        if (m_previous == Type::KeycapBase)
            result += m_text;
        else
            flush();
        clear();
        append({}, codePoint);
    }

    void takeKeycap(uint codePoint)
    {
        if (m_previous == Type::KeycapBase && m_current != Type::VariationSelector) {
            result += m_text;
            clear();
        }
        if (m_current == Type::KeycapBase) {
            flush();
            clear();
            append({}, codePoint);
        } else if (m_previous == Type::KeycapBase) {
            append(QStringLiteral("-"), codePoint);
        } else {
            append(QStringLiteral("-"), codePoint);
            flush();
            clear();
        }
    }

    void takeRegionalIndicator(uint codePoint)
    {
        if (m_previous != Type::RegionalIndicator) {
            flush();
            clear();
        }
        if (typeAt(m_position + 1) == Type::RegionalIndicator) {
            append({}, codePoint);
            append(QStringLiteral("-"), m_codePoints[m_position + 1]);
            flush();
            clear();
        }
        ++m_position;
    }

    void takeFlag(uint flag)
    {
        flush();
        clear();
        int end = m_position + 1;
        while (typeAt(end) == Type::TagCharacter)
            ++end;
        const bool hasTags = end > m_position + 1;
        if (end == m_codePoints.size() && hasTags) {
            m_position = end;
            return;
        }
        const bool isComplete = end < m_codePoints.size() && m_codePoints[end] == 0xE007F;
        if (isComplete) {
            append({}, flag);
            for (int i = m_position + 1; i <= end; ++i)
                append(QStringLiteral("-"), m_codePoints[i]);
            flush();
            clear();
        }
        m_position = isComplete ? end : end - 1;
        if (!isComplete || !hasTags)
            append({}, flag);
    }

    void takeSelector(uint codePoint)
    {
        append(QStringLiteral("-"), codePoint);
        const Type next = typeAt(m_position + 1);
        if (next == Type::Joiner || next == Type::Keycap)
            return;
        flush();
        m_stem.clear();
    }

    void takePlain(uint codePoint)
    {
        if (m_previous == Type::KeycapBase && !m_stem.isEmpty())
            result += character(m_codePoints[m_position - 1]);
        else
            flush();
        clear();
        hasPlainText = true;
        result += character(codePoint);
    }

    const QVector<uint> m_codePoints;
    QString m_stem;
    QString m_text;
    int m_position = 0;
    Type m_current = Type::Other;
    Type m_previous = Type::Other;
};

QString joinedStems(const QString &text)
{
    QStringList stems;
    const auto sequences = EmojiTextConverter::sequences(text);
    for (const EmojiSequence &sequence : sequences)
        stems += sequence.stem;
    return stems.join(QLatin1Char(' '));
}

} // namespace

/// EmojiTextConverter, which copies plain text in runs, beside a reader that does not.
class tst_EmojiTextConverterNaive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsRandomCodePointsAsANaiveReaderDoes();
};

void tst_EmojiTextConverterNaive::readsRandomCodePointsAsANaiveReaderDoes()
{
    // One or two of each class, more of those that mean something beside others.
    const QVector<uint> codePoints = { 'a',     '&',     '<',     0xFFFD,  0x10400, 0x1F600,
                                       0xA9,    0x2640,  0x2764,  0x200D,  0x200D,  0x1F3FD,
                                       0x1F9B0, 0xFE0F,  0xFE0F,  0xFE0F,  '#',     '1',
                                       '7',     '7',     0x20E3,  0x20E3,  0x1F1E9, 0x1F1EA,
                                       0x1F3F4, 0x1F3F4, 0xE0067, 0xE0062, 0xE0030, 0xE007F };
    auto generator = seededGenerator();
    for (int i = 0; i < 200000; ++i) {
        QVector<uint> chosen;
        for (int length = randomFrom(generator, 0, 9); length > 0; --length)
            chosen += codePoints[randomFrom(generator, 0, codePoints.size() - 1)];
        const QString text = QString::fromUcs4(chosen.constData(), chosen.size());
        const NaiveReader expected(text);
        EmojiTextConverter converter(20, 1.0);
        const QString markup = converter.convert(text);
        const auto reason = EmojiNotation::describe(text).toLatin1();
        QVERIFY2(markup == expected.result, reason.constData());
        QVERIFY2(converter.hasPlainText() == expected.hasPlainText, reason.constData());
        QVERIFY2(joinedStems(text) == expected.stems.join(QLatin1Char(' ')), reason.constData());
    }
}

QTEST_GUILESS_MAIN(tst_EmojiTextConverterNaive)
#include "tst_emojitextconverter_naive.moc"
