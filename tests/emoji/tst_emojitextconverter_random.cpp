// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/EmojiArtwork.h"
#include "support/EmojiTestFile.h"
#include "support/Guards.h"
#include "support/RandomSeed.h"
#include "support/TestApplication.h"

#include <UiElements/emoji/EmojiTextConverter.h>
#include <UiElements/emoji/OxaEmojiLabel.h>

#include <QRegularExpression>

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

} // namespace

/// Texts at random: what was written comes back.
class tst_EmojiTextConverterRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_artwork.reset(); }
    void restoresRandomTexts();
    void showsRandomTextsAsTheyWereWritten();

private:
    const QVector<Entry> m_entries = EmojiTestFile::entries();
    std::unique_ptr<EmojiArtwork> m_artwork;
};

void tst_EmojiTextConverterRandom::initTestCase()
{
    // Every other sequence, so that emoji stand beside ones that stay text.
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
        // A text that is an image tag by chance is one.
        if (EmojiTextConverter::restore(text) != text)
            continue;
        label.setText(text);
        QCOMPARE(label.getElidedText(),
                 text.toHtmlEscaped().replace(newlines, QStringLiteral("<br>")));
    }
}

UIELEMENTS_TEST_MAIN(tst_EmojiTextConverterRandom)
#include "tst_emojitextconverter_random.moc"
