// SPDX-License-Identifier: Apache-2.0
#include "EmojiNotation.h"
#include "support/ColorSets.h"
#include "support/EmojiArtwork.h"
#include "support/EmojiTestFile.h"
#include "support/Guards.h"
#include "support/RandomSeed.h"
#include "support/TestApplication.h"

#include <UiElements/emoji/EmojiTextConverter.h>
#include <UiElements/emoji/OxaEmojiLabel.h>

#include <QRegularExpression>
#include <QTest>

namespace {

using EmojiTestFile::Entry;

/// Puts texts together from emoji, words, digits, markup and newlines.
class TextMaker
{
public:
    explicit TextMaker(const QVector<Entry> &entries)
    {
        for (const Entry &entry : entries) {
            // A skin tone by itself would belong to the emoji before it.
            if (entry.status != QLatin1String("component"))
                m_emoji += entry.text;
        }
    }

    QString make()
    {
        QString text;
        for (int length = randomFrom(m_generator, 1, 12); length > 0; --length)
            text += piece();
        return text;
    }

private:
    QString piece()
    {
        const QStringList &pieces = randomFrom(m_generator, 0, 1) == 0 ? m_emoji : m_others;
        return pieces[randomFrom(m_generator, 0, pieces.size() - 1)];
    }

    std::mt19937 m_generator = seededGenerator();
    QStringList m_emoji;
    const QStringList m_others = {
        QStringLiteral("a"),         QStringLiteral(" "),        QStringLiteral("1"),
        QStringLiteral("7"),         QStringLiteral("#"),        QStringLiteral("*"),
        QStringLiteral("\n"),        QStringLiteral("\r\n"),     QStringLiteral("\u2028"),
        QStringLiteral("<br>"),      QStringLiteral("<b>x</b>"), QStringLiteral("&amp;"),
        QStringLiteral("\""),        QStringLiteral("<img"),     QStringLiteral(".svg"),
        QStringLiteral("unicode"),   QStringLiteral("|"),        QStringLiteral("svgFile="),
        QStringLiteral("\u00E4"),    QStringLiteral("\u0627"),   QStringLiteral("\U00010400"),
        QStringLiteral("src=\"x\""), QStringLiteral(">"),        QStringLiteral("<"),
    };
};

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
/// so that the expected sequences are known without parsing the text.
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

/// Converts random texts, finds their sequences, and restores them.
class tst_EmojiTextConverterRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_artwork.reset(); }
    void restoresRandomTexts();
    void showsRandomTextsAsTheyWereWritten();
    void findsTheSequencesThatTextsAreMadeOf();

private:
    const QVector<Entry> m_entries = EmojiTestFile::entries();
    std::unique_ptr<EmojiArtwork> m_artwork;
};

void tst_EmojiTextConverterRandom::initTestCase()
{
    // Artwork for every other sequence, so that pictures and text emoji are mixed.
    QStringList stems = EmojiTestFile::stemsOf(m_entries);
    for (int i = stems.size() - 1; i > 0; i -= 2)
        stems.removeAt(i);
    m_artwork = std::make_unique<EmojiArtwork>(stems);
}

void tst_EmojiTextConverterRandom::restoresRandomTexts()
{
    TextMaker maker(m_entries);
    int emojiCount = 0;
    for (int i = 0; i < 20000; ++i) {
        const QString escaped = maker.make().toHtmlEscaped();
        EmojiTextConverter converter(20, 1.0);
        QCOMPARE(EmojiTextConverter::restore(converter.convert(escaped)), escaped);
        emojiCount += converter.svgFiles().size();
    }
    QVERIFY(emojiCount > 20000);
}

void tst_EmojiTextConverterRandom::showsRandomTextsAsTheyWereWritten()
{
    const StoreGuard stores(ColorSets::storeOf(
            { ColorSets::make(QStringLiteral("button-hyperlink-text"), { "#112233" }) }));
    TextMaker maker(m_entries);
    OxaEmojiLabel label;
    label.setAlignment(Qt::AlignTop | Qt::AlignLeft);
    const QRegularExpression newlines(QStringLiteral("[\f\u000F\u2029\u2028\r\n]"));
    for (int i = 0; i < 300; ++i) {
        const QString text = maker.make();
        // A text that happens to be an image tag is treated as one.
        if (EmojiTextConverter::restore(text) != text)
            continue;
        label.setText(text);
        QCOMPARE(label.getElidedText(),
                 text.toHtmlEscaped().replace(newlines, QStringLiteral("<br>")));
    }
}

void tst_EmojiTextConverterRandom::findsTheSequencesThatTextsAreMadeOf()
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
        QVERIFY2(EmojiTextConverter::restore(converter.convert(text)) == text, reason.constData());
        QVERIFY2(converter.hasPlainText() == made.hasPlainText, reason.constData());
    }
}

UIELEMENTS_TEST_MAIN(tst_EmojiTextConverterRandom)
#include "tst_emojitextconverter_random.moc"
