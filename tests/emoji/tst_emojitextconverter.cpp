// SPDX-License-Identifier: Apache-2.0
#include "EmojiNotation.h"
#include "support/EmojiArtwork.h"
#include "support/RandomSeed.h"
#include "support/TestMain.h"

#include <UiElements/emoji/EmojiTextConverter.h>

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>

namespace {

using EmojiNotation::text;

constexpr uint face = 0x1F600;
constexpr uint unknownFace = 0x1F601; ///< There is no artwork for it.
constexpr uint man = 0x1F468;
constexpr uint woman = 0x1F469;
constexpr uint joiner = 0x200D;
constexpr uint selector = 0xFE0F;
constexpr uint keycap = 0x20E3;
constexpr uint tone = 0x1F3FD;
constexpr uint hair = 0x1F9B0;
constexpr uint heart = 0x2764;
constexpr uint indicatorD = 0x1F1E9;
constexpr uint indicatorE = 0x1F1EA;
constexpr uint flag = 0x1F3F4;
constexpr uint tagG = 0xE0067;
constexpr uint tagB = 0xE0062;
constexpr uint cancel = 0xE007F;

const QStringList stems = {
    QStringLiteral("1f600"),
    QStringLiteral("1f468"),
    QStringLiteral("1f468-200d-1f469"),
    QStringLiteral("1f469-1f3fd-200d-2642-fe0f"),
    QStringLiteral("1f469-1f9b0"),
    QStringLiteral("1f44d-1f3fd"),
    QStringLiteral("0031-fe0f-20e3"),
    QStringLiteral("0031-fe0f"),
    QStringLiteral("2764"),
    QStringLiteral("2764-fe0f"),
    QStringLiteral("2764-fe0f-200d-1f600"),
    QStringLiteral("2764-fe0f-20e3"),
    QStringLiteral("00a9"),
    QStringLiteral("1f1e9-1f1ea"),
    QStringLiteral("1f3f4"),
    QStringLiteral("1f3f4-e0067-e0062-e007f"),
    QStringLiteral("1f3f4-200d-1f600"),
};

void add(const char *name, std::initializer_list<uint> codePoints, const char *markup)
{
    QTest::newRow(name) << text(codePoints) << QString::fromLatin1(markup);
}

/// Returns the text that \a tag stands for, found one attribute after the other.
QString naivelyRestoredTag(const QString &tag)
{
    if (!tag.contains(QLatin1String("src=\"")))
        return tag;
    const QString source = tag.mid(tag.lastIndexOf(QLatin1String("src=\"")) + 5);
    if (source.contains(QLatin1Char('|')))
        return source.section(QLatin1Char('|'), 0, 0);
    if (!tag.contains(QLatin1String("alt=\"")))
        return tag;
    const QString alt = tag.mid(tag.lastIndexOf(QLatin1String("alt=\"")) + 5);
    return alt.contains(QLatin1Char('"')) ? alt.section(QLatin1Char('"'), 0, 0) : tag;
}

QString naivelyRestored(const QString &markup)
{
    static const QRegularExpression tags(QStringLiteral("<img src=.*?\\>"));
    QString text;
    int end = 0;
    auto matches = tags.globalMatch(markup);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        text += markup.midRef(end, match.capturedStart() - end);
        text += naivelyRestoredTag(match.captured());
        end = match.capturedEnd();
    }
    return text + markup.midRef(end);
}

} // namespace

/// How EmojiTextConverter converts a text to markup and back.
class tst_EmojiTextConverter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_artwork = std::make_unique<EmojiArtwork>(stems); }
    void cleanupTestCase() { m_artwork.reset(); }

    void convertsTexts_data();
    void convertsTexts();
    void convertsKeycaps_data();
    void convertsKeycaps() { convertsTexts(); }
    void convertsFlags_data();
    void convertsFlags() { convertsTexts(); }
    void convertsSelectors_data();
    void convertsSelectors() { convertsTexts(); }

    void returnsTheFilesInTheOrderOfTheText();
    void detectsPlainText_data();
    void detectsPlainText();
    void keepsNothingOfAnEarlierText();
    void listsSequencesWithAndWithoutArtwork();
    void restoresTags_data();
    void restoresTags();
    void agreesWithARegularExpressionOnRandomMarkup();
    void takesLinearTime();

private:
    std::unique_ptr<EmojiArtwork> m_artwork;
};

void tst_EmojiTextConverter::convertsTexts_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("markup");
    add("nothing", {}, "");
    add("a text", { 'H', 'i' }, "Hi");
    add("markup, as it is", { '<', 'b', '>', '&' }, "<b>&");
    add("a text and an emoji", { 'H', 'i', face }, "Hi[1f600]");
    add("an emoji without artwork", { 'H', 'i', unknownFace }, "Hi{1f601}");
    add("an emoji between texts", { 'a', face, 'b' }, "a[1f600]b");
    add("two emoji", { face, face }, "[1f600][1f600]");
    add("two, of which one has artwork", { unknownFace, face }, "{1f601}[1f600]");
    add("a stem of two digits", { 0xA9 }, "[00a9]");
    add("a letter beyond the base plane", { 0x10400, 'a' }, "{10400}a");
    add("joined emoji", { man, joiner, woman }, "[1f468-200d-1f469]");
    add("joined emoji without artwork", { man, joiner, man }, "{1f468}{200d}{1f468}");
    add("a joiner at the end", { man, joiner }, "{1f468}{200d}");
    add("a joiner before a text", { man, joiner, 'a' }, "{1f468}{200d}a");
    add("a joiner at the start", { joiner, face }, "{200d}{1f600}");
    add("a skin tone", { 0x1F44D, tone }, "[1f44d-1f3fd]");
    add("a skin tone by itself", { tone }, "{1f3fd}");
    add("a skin tone behind a text", { 'a', tone, 'b' }, "a{1f3fd}b");
    add("hair", { woman, hair }, "[1f469-1f9b0]");
    add("a gender", { woman, tone, joiner, 0x2642, selector }, "[1f469-1f3fd-200d-2642-fe0f]");
    add("an unpaired surrogate", { 'a', 0xD83D, 'b' }, "a{fffd}b");
}

void tst_EmojiTextConverter::convertsTexts()
{
    QFETCH(const QString, input);
    EmojiTextConverter converter(20, 1.0);
    QTEST(EmojiNotation::describe(converter.convert(input)), "markup");
}

void tst_EmojiTextConverter::convertsKeycaps_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("markup");
    add("a keycap", { '1', selector, keycap }, "[0031-fe0f-20e3]");
    add("a keycap in a text", { 'a', '1', selector, keycap, 'b' }, "a[0031-fe0f-20e3]b");
    add("two keycaps", { '1', selector, keycap, '1', selector, keycap },
        "[0031-fe0f-20e3][0031-fe0f-20e3]");
    add("a keycap without artwork", { '7', selector, keycap }, "7{fe0f}{20e3}");
    add("a keycap behind an emoji", { face, '1', selector, keycap }, "[1f600][0031-fe0f-20e3]");
    add("a keycap behind a digit", { '7', '1', selector, keycap }, "7[0031-fe0f-20e3]");
    add("a keycap without a selector", { '1', keycap }, "1{20e3}");
    add("a selected digit", { '1', selector }, "[0031-fe0f]");
    add("a selected digit before a text", { '1', selector, 'a' }, "[0031-fe0f]a");
    add("a digit before a text", { '7', 'a' }, "7a");
    add("a digit behind a text", { 'a', '7' }, "a7");
    add("a digit by itself", { '7' }, "7");
    add("several digits", { '1', '7', '3' }, "173");
    add("a digit before an emoji", { '7', face }, "7[1f600]");
    add("digits before an emoji", { '1', '7', face }, "17[1f600]");
    add("a digit behind an emoji", { face, '7' }, "[1f600]7");
    add("a digit between emoji", { face, '7', face }, "[1f600]7[1f600]");
    add("a digit before a flag", { '7', indicatorD, indicatorE }, "7[1f1e9-1f1ea]");
    add("a digit before a black flag", { '7', flag }, "7[1f3f4]");
    add("a digit before a skin tone", { '7', tone, 'a' }, "7{1f3fd}a");
    add("a number sign in markup", { '&', '#', '3', '9', ';' }, "&#39;");
}

void tst_EmojiTextConverter::convertsFlags_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("markup");
    add("two regional indicators", { indicatorD, indicatorE }, "[1f1e9-1f1ea]");
    add("two without artwork", { indicatorE, indicatorD }, "{1f1ea}{1f1e9}");
    add("two flags", { indicatorD, indicatorE, indicatorD, indicatorE },
        "[1f1e9-1f1ea][1f1e9-1f1ea]");
    add("a flag behind an emoji", { face, indicatorD, indicatorE }, "[1f600][1f1e9-1f1ea]");
    add("a flag behind a selected emoji", { heart, selector, indicatorE, indicatorD },
        "[2764-fe0f]{1f1ea}{1f1e9}");
    add("a single indicator vanishes, as does what follows", { 'a', indicatorD, 'b', 'c' }, "ac");
    add("a single indicator swallows an emoji", { indicatorD, face, 'c' }, "c");
    add("a single indicator at the end vanishes", { 'a', indicatorD }, "a");
    add("the third of three vanishes", { indicatorD, indicatorE, indicatorD, 'b', 'c' },
        "[1f1e9-1f1ea]c");
    add("a black flag at the end", { 'a', flag }, "a[1f3f4]");
    add("a black flag before a text", { flag, 'a' }, "[1f3f4]a");
    add("a black flag behind an emoji", { face, flag }, "[1f600][1f3f4]");
    add("a black flag behind a selected emoji", { heart, selector, flag }, "[2764-fe0f][1f3f4]");
    add("a black flag, joined", { flag, joiner, face }, "[1f3f4-200d-1f600]");
    add("a region", { flag, tagG, tagB, cancel }, "[1f3f4-e0067-e0062-e007f]");
    add("a region before a text", { flag, tagG, tagB, cancel, 'a' }, "[1f3f4-e0067-e0062-e007f]a");
    add("a region behind an emoji", { face, flag, tagG, tagB, cancel },
        "[1f600][1f3f4-e0067-e0062-e007f]");
    add("a region without artwork", { flag, tagB, cancel }, "{1f3f4}{e0062}{e007f}");
    add("tags that a text interrupts vanish", { flag, tagG, tagB, 'a' }, "[1f3f4]a");
    add("tags that an emoji interrupts vanish", { flag, tagG, face }, "[1f3f4][1f600]");
    add("tags at the end vanish with their flag", { 'a', flag, tagG, tagB }, "a");
    add("no tags, but their end", { flag, cancel, 'a' }, "{1f3f4}{e007f}[1f3f4]a");
    add("no tags, but their end at the end", { flag, cancel }, "{1f3f4}{e007f}[1f3f4]");
    add("tags without a flag", { tagG, cancel }, "{e0067}{e007f}");
}

void tst_EmojiTextConverter::convertsSelectors_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("markup");
    add("a selected emoji", { heart, selector }, "[2764-fe0f]");
    add("an emoji that is not selected", { heart }, "[2764]");
    add("a selected emoji before a text", { heart, selector, 'a' }, "[2764-fe0f]a");
    add("two selected emoji", { heart, selector, heart, selector }, "[2764-fe0f][2764-fe0f]");
    add("a selected emoji, joined", { heart, selector, joiner, face }, "[2764-fe0f-200d-1f600]");
    add("a selected emoji on a key", { heart, selector, keycap }, "[2764-fe0f-20e3]");
    add("a selector behind a text", { 'a', selector, 'b' }, "a{fe0f}b");
    add("a selector by itself", { selector }, "{fe0f}");
    // A selector ends a sequence. Its text is kept, so that a part after it is shown with it.
    add("a skin tone behind a selector", { heart, selector, tone },
        "[2764-fe0f]{2764}{fe0f}{1f3fd}");
    add("hair behind a selector", { heart, selector, hair, 'a' },
        "[2764-fe0f]{2764}{fe0f}{1f9b0}a");
    add("a skin tone behind a selector and a text", { heart, selector, 'a', tone },
        "[2764-fe0f]a{1f3fd}");
    add("two selectors", { heart, selector, selector }, "[2764-fe0f]{fe0f}");
    add("a selector behind a text behind an emoji", { heart, selector, 'a', selector },
        "[2764-fe0f]a{fe0f}");
}

void tst_EmojiTextConverter::returnsTheFilesInTheOrderOfTheText()
{
    EmojiTextConverter converter(20, 1.0);
    converter.convert(text({ heart, 'a', face, unknownFace, face }));
    const QVector<QString> files = { QStringLiteral(":/emojis/2764.svg"),
                                     QStringLiteral(":/emojis/1f600.svg"),
                                     QStringLiteral(":/emojis/1f600.svg") };
    QCOMPARE(converter.svgFiles(), files);
}

void tst_EmojiTextConverter::detectsPlainText_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<bool>("hasPlainText");
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("emoji alone") << text({ face, heart, selector }) << false;
    QTest::newRow("an emoji without artwork") << text({ unknownFace }) << false;
    QTest::newRow("a letter among emoji") << text({ face, 'a', face }) << true;
    QTest::newRow("a digit at the end") << text({ face, '7' }) << true;
    QTest::newRow("a digit that an emoji follows") << text({ '7', face }) << false;
}

void tst_EmojiTextConverter::detectsPlainText()
{
    QFETCH(const QString, input);
    EmojiTextConverter converter(20, 1.0);
    QVERIFY(!converter.hasPlainText());
    converter.convert(input);
    QTEST(converter.hasPlainText(), "hasPlainText");
}

void tst_EmojiTextConverter::keepsNothingOfAnEarlierText()
{
    EmojiTextConverter converter(20, 1.0);
    converter.convert(text({ 'a', face }));
    converter.convert(text({ heart }));
    QCOMPARE(converter.svgFiles(), QVector<QString> { QStringLiteral(":/emojis/2764.svg") });
    QVERIFY(!converter.hasPlainText());
}

void tst_EmojiTextConverter::listsSequencesWithAndWithoutArtwork()
{
    const auto sequences = EmojiTextConverter::sequences(
            text({ 'a', '7', face, unknownFace, tone, 'b', '1', selector, keycap }));
    QStringList described;
    for (const EmojiSequence &sequence : sequences)
        described += sequence.stem + QLatin1Char('=') + EmojiNotation::describe(sequence.text);
    QCOMPARE(described.join(QLatin1Char(' ')),
             QStringLiteral("1f600={1f600} 1f601-1f3fd={1f601}{1f3fd} "
                            "0031-fe0f-20e3=1{fe0f}{20e3}"));
}

void tst_EmojiTextConverter::restoresTags_data()
{
    QTest::addColumn<QString>("markup");
    QTest::addColumn<QString>("text");
    const auto add = [](const char *name, const char *markup, const char *text) {
        QTest::newRow(name) << QString::fromUtf8(markup) << QString::fromUtf8(text);
    };
    add("nothing", "", "");
    add("a text", "Hi &amp; bye", "Hi &amp; bye");
    add("a placeholder", "a<img src=\"svgFile=:/emojis/1f600.svgxunicode\" alt=\"x\">b", "axb");
    add("a tag that Qt can display", "<img src=\"qrc:/a.svg\" width=\"20\" alt=\"x\">", "x");
    add("a picture's name", "<img src=\"x|17\" width=\"20\" />", "x");
    add("a picture's name counts before its alternative text", "<img src=\"x|17\" alt=\"y\">", "x");
    add("a bar behind the source counts too", "<img src=\"a\" alt=\"x|y\">", "a\" alt=\"x");
    add("several tags", "<img src=\"x|1\"><img src=\"y|2\">-<img src=\"\" alt=\"z\">", "xy-z");
    add("the last of two sources", "<img src=\"x|1\" src=\"y|2\">", "y");
    add("the last of two alternatives", "<img src=\"a\" alt=\"x\" alt=\"y\">", "y");
    add("an alternative before the source", "<img src= alt=\"x\" src=\"a\">", "x");
    add("a source that is not quoted stays", "<img src=a alt=\"x\">", "<img src=a alt=\"x\">");
    add("no alternative stays", "<img src=\"a\">", "<img src=\"a\">");
    add("an alternative without an end stays", "<img src=\"a\" alt=\"x>",
        "<img src=\"a\" alt=\"x>");
    add("an empty alternative", "a<img src=\"a\" alt=\"\">b", "ab");
    add("a tag without an end stays", "a<img src=\"x|1\"", "a<img src=\"x|1\"");
    add("a tag over two lines stays", "<img src=\"x\n|1\">", "<img src=\"x\n|1\">");
    add("a tag on the next line", "<img src=\"x\n<img src=\"y|1\">", "<img src=\"x\ny");
    add("a tag inside of a tag", "<img src=<img src=\"x|1\">", "x");
    add("a tag with another attribute first stays", "<img alt=\"x\" src=\"a\">",
        "<img alt=\"x\" src=\"a\">");
    add("an empty source stays", "<img src=>", "<img src=>");
}

void tst_EmojiTextConverter::restoresTags()
{
    QFETCH(const QString, markup);
    QTEST(EmojiTextConverter::restore(markup), "text");
    QTEST(naivelyRestored(markup), "text");
}

void tst_EmojiTextConverter::agreesWithARegularExpressionOnRandomMarkup()
{
    const QStringList pieces = { QStringLiteral("<img src="), QStringLiteral("src=\""),
                                 QStringLiteral("alt=\""),    QStringLiteral("|"),
                                 QStringLiteral("\""),        QStringLiteral(">"),
                                 QStringLiteral("\n"),        QStringLiteral("x"),
                                 QStringLiteral("<img ") };
    auto generator = seededGenerator();
    for (int i = 0; i < 20000; ++i) {
        QString markup;
        for (int length = randomFrom(generator, 0, 20); length > 0; --length)
            markup += pieces[randomFrom(generator, 0, pieces.size() - 1)];
        QCOMPARE(EmojiTextConverter::restore(markup), naivelyRestored(markup));
    }
}

void tst_EmojiTextConverter::takesLinearTime()
{
    // In quadratic time this would take hours.
    const QString start = QStringLiteral("<img src=");
    const QString endless = start.repeated(500000);
    const QString lines = (start + QLatin1Char('\n')).repeated(500000) + QLatin1Char('>');
    const QString tags = QStringLiteral("<img src=\"x|1\">").repeated(500000);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(EmojiTextConverter::restore(endless), endless);
    QCOMPARE(EmojiTextConverter::restore(lines), lines);
    QCOMPARE(EmojiTextConverter::restore(tags), QStringLiteral("x").repeated(500000));
    QVERIFY(timer.elapsed() < 20000);
}

UIELEMENTS_TEST_MAIN_WITH(QCoreApplication, tst_EmojiTextConverter)
#include "tst_emojitextconverter.moc"
