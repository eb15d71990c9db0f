// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"
#include "support/EmojiArtwork.h"
#include "support/EmojiTestFile.h"

#include <UiElements/emoji/EmojiTextConverter.h>

#include <QSvgRenderer>

#include <vector>

namespace {

constexpr int emojiSize = 20;

/// All of emoji-test.txt: its sequences are in comments, among code points and names.
const QString &text()
{
    static const QString content = QString::fromUtf8(EmojiTestFile::content());
    return content;
}

QString converted()
{
    EmojiTextConverter converter(emojiSize, 1.0);
    return converter.convert(text());
}

/// The lower bound: a pass over the code points with a byte for each in a table. The tags and their
/// positions are found beforehand, so that only decoding and writing remain.
class TablePass
{
public:
    explicit TablePass(const QString &markup)
    {
        int position = 0;
        int written = 0;
        for (int tag = nextTag(markup, 0); tag >= 0; tag = nextTag(markup, written)) {
            position += codePointsIn(markup.mid(written, tag - written));
            const int end = markup.indexOf(QLatin1Char('>'), tag) + 1;
            const QString tagText = markup.mid(tag, end - tag);
            const int length = codePointsIn(EmojiTextConverter::restore(tagText));
            m_tags.push_back({ tagText, length });
            m_starts.resize(std::size_t(position), 0);
            m_starts.push_back(1);
            position += length;
            written = end;
        }
        m_starts.resize(std::size_t(text().size()), 0);
    }

    QString run() const
    {
        const QVector<uint> codePoints = text().toUcs4();
        QString markup;
        markup.reserve(text().size());
        auto tag = m_tags.begin();
        for (int i = 0; i < codePoints.size(); ++i) {
            if (m_starts[std::size_t(i)]) {
                markup += tag->text;
                i += tag->length - 1;
                ++tag;
            } else if (QChar::requiresSurrogates(codePoints[i])) {
                markup += QChar(QChar::highSurrogate(codePoints[i]));
                markup += QChar(QChar::lowSurrogate(codePoints[i]));
            } else {
                markup += QChar(ushort(codePoints[i]));
            }
        }
        return markup;
    }

private:
    struct Tag
    {
        QString text;
        int length; ///< Of the sequence, in code points.
    };

    static int nextTag(const QString &markup, int from)
    {
        return markup.indexOf(QLatin1String("<img src="), from);
    }

    static int codePointsIn(const QString &text) { return text.toUcs4().size(); }

    std::vector<Tag> m_tags;
    std::vector<char> m_starts; ///< For each code point, whether a tag begins there.
};

/// Returns a drawing of usual size.
QByteArray drawing()
{
    QFile file(QStringLiteral(EMOJI_DRAWING));
    if (!file.open(QFile::ReadOnly))
        qFatal("Cannot read %s.", EMOJI_DRAWING);
    return file.readAll();
}

/// Artwork for every sequence, all found once.
class KnownArtwork
{
public:
    KnownArtwork() : m_artwork(EmojiTestFile::stemsOf(EmojiTestFile::entries()), drawing())
    {
        converted();
    }

private:
    EmojiArtwork m_artwork;
};

void againstFloor(benchmark::State &state)
{
    const KnownArtwork artwork;
    const TablePass floor(converted());
    if (floor.run() != converted())
        state.SkipWithError("the floor writes another text");

    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([] { benchmark::DoNotOptimize(converted()); },
                         [&floor] { benchmark::DoNotOptimize(floor.run()); });
    comparison.ratioAtMost(2.0);
}
BENCHMARK(againstFloor)
        ->Name("convert emoji-test.txt/a pass that only decodes and writes")
        ->Iterations(200)
        ->UseManualTime();

/// The same work, but each file is searched and read for each emoji.
QString convertedAskingForFiles(const QVector<EmojiSequence> &sequences)
{
    for (const EmojiSequence &sequence : sequences) {
        const QString path = QStringLiteral(":/emojis/%1.svg").arg(sequence.stem);
        benchmark::DoNotOptimize(QFile::exists(path) && QSvgRenderer(path).isValid());
    }
    return converted();
}

void againstAsking(benchmark::State &state)
{
    const KnownArtwork artwork;
    QVector<EmojiSequence> sequences;
    const auto all = EmojiTextConverter::sequences(text());
    for (const EmojiSequence &sequence : all) {
        if (QFile::exists(QStringLiteral(":/emojis/%1.svg").arg(sequence.stem)))
            sequences += sequence;
    }

    Comparison comparison(state);
    for (auto _ : state) {
        comparison.round([] { benchmark::DoNotOptimize(converted()); },
                         [&sequences] {
                             benchmark::DoNotOptimize(convertedAskingForFiles(sequences));
                         });
    }
    comparison.gainAtLeast(25);
}
BENCHMARK(againstAsking)
        ->Name("convert emoji-test.txt/asking for each file")
        ->Iterations(5)
        ->UseManualTime();

} // namespace
