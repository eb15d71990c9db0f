// SPDX-License-Identifier: Apache-2.0
#include "EmojiNotation.h"
#include "support/RandomSeed.h"

#include <UiElements/emoji/EmojiTextConverter.h>

#include <QTest>

namespace {

/// A text, and the stems of the sequences in it.
struct Text
{
    QVector<uint> codePoints;
    QStringList stems;
    bool hasPlainText = false;
};

/// Derives texts at random from the grammar
///
///     text     = { plain | sequence }
///     sequence = person { U+200D person } | keycap | flag | region
///     person   = base [ tone | hair | U+FE0F ]
///     keycap   = digit U+FE0F U+20E3
///     flag     = indicator indicator
///     region   = U+1F3F4 tag { tag } U+E007F
///
/// so that what has to be found in them is known without reading them.
class Grammar
{
public:
    Text text()
    {
        m_text = {};
        for (int length = number(0, 8); length > 0; --length)
            number(0, 1) == 0 ? plain() : sequence();
        return m_text;
    }

private:
    int number(int lowest, int highest) { return randomFrom(m_generator, lowest, highest); }

    uint oneOf(const QVector<uint> &codePoints)
    {
        return codePoints[number(0, codePoints.size() - 1)];
    }

    void add(uint codePoint) { m_sequence += codePoint; }

    void plain()
    {
        // A digit is plain where no selector follows it.
        m_text.codePoints += oneOf({ '#', '7', 'a', '<', 0xE4, 0x627, 0xFFFC, 0x10400 });
        m_text.codePoints += oneOf({ ' ', '&', 'z', 0x329A });
        m_text.hasPlainText = true;
    }

    void sequence()
    {
        m_sequence.clear();
        switch (number(0, 3)) {
        case 0:
            person();
            for (int others = number(0, 3); others > 0; --others) {
                add(0x200D);
                person();
            }
            break;
        case 1:
            add(oneOf({ '#', '*', '0', '9' }));
            add(0xFE0F);
            add(0x20E3);
            break;
        case 2:
            add(oneOf({ 0x1F1E6, 0x1F1F0, 0x1F1FF }));
            add(oneOf({ 0x1F1E6, 0x1F1F0, 0x1F1FF }));
            break;
        default:
            region();
        }
        finish();
    }

    void person()
    {
        add(oneOf({ 0xA9, 0x2640, 0x2764, 0x3299, 0x1F000, 0x1F468, 0x1FFFD }));
        if (number(0, 1) == 0)
            add(oneOf({ 0xFE0F, 0x1F3FB, 0x1F3FF, 0x1F9B0, 0x1F9B3 }));
    }

    void region()
    {
        add(0x1F3F4);
        for (int tags = number(1, 6); tags > 0; --tags)
            add(oneOf({ 0xE0030, 0xE0039, 0xE0061, 0xE007A }));
        add(0xE007F);
    }

    void finish()
    {
        QStringList names;
        for (const uint codePoint : qAsConst(m_sequence)) {
            const QString digits = QString::number(codePoint, 16);
            names += digits.size() == 2 ? QLatin1String("00") + digits : digits;
        }
        m_text.stems += names.join(QLatin1Char('-'));
        m_text.codePoints += m_sequence;
    }

    std::mt19937 m_generator = seededGenerator();
    QVector<uint> m_sequence;
    Text m_text;
};

} // namespace

/// EmojiTextConverter against texts that a grammar makes.
class tst_EmojiTextConverterGrammar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheSequencesThatTextsAreMadeOf();
};

void tst_EmojiTextConverterGrammar::findsTheSequencesThatTextsAreMadeOf()
{
    Grammar grammar;
    for (int i = 0; i < 20000; ++i) {
        const Text made = grammar.text();
        const QString text = QString::fromUcs4(made.codePoints.constData(), made.codePoints.size());
        const auto reason = EmojiNotation::describe(text).toLatin1();
        QStringList stems;
        const auto sequences = EmojiTextConverter::sequences(text);
        for (const EmojiSequence &sequence : sequences)
            stems += sequence.stem;
        QVERIFY2(stems == made.stems, reason.constData());

        EmojiTextConverter converter(20, 1.0);
        QVERIFY2(converter.convert(text) == text, reason.constData()); // There is no artwork.
        QVERIFY2(converter.hasPlainText() == made.hasPlainText, reason.constData());
    }
}

QTEST_GUILESS_MAIN(tst_EmojiTextConverterGrammar)
#include "tst_emojitextconverter_grammar.moc"
