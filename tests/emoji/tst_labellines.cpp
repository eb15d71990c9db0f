// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"

#include <UiElements/emoji/LabelLines_p.h>

#include <QElapsedTimer>
#include <QFont>
#include <QFontMetrics>
#include <QTest>

namespace {

constexpr int anyHeight = 16777215;

QFont font() { return QFont(QStringLiteral("DejaVu Sans Mono"), 10); }

/// Returns the width of \a count characters, and of half a one.
int widthOf(int count)
{
    const QFontMetrics metrics(font());
    return metrics.horizontalAdvance(QString(count, QLatin1Char('x')))
            + metrics.horizontalAdvance(QLatin1Char('x')) / 2;
}

/// Returns \a lines as one text: a bar behind each line, an arrow behind one that is to be elided,
/// and dots when paragraphs are left out.
QString describe(const LabelLines::Lines &lines)
{
    QString described;
    for (const LabelLines::Line &line : lines.lines)
        described += line.text + QLatin1Char(line.isElided ? '>' : '|');
    return lines.lacksParagraphs ? described + QLatin1String("...") : described;
}

LabelLines::Lines breakText(const QString &paragraphs, int characters, int maximumHeight)
{
    return LabelLines::breakParagraphs(paragraphs.split(QLatin1Char('/')), font(),
                                       widthOf(characters), maximumHeight);
}

} // namespace

/// How a label breaks its text into lines.
class tst_LabelLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void breaksParagraphs_data();
    void breaksParagraphs();
    void makesTwentyLinesAtMost_data();
    void makesTwentyLinesAtMost();
    void endsInAnEllipsis_data();
    void endsInAnEllipsis();
    void cutsALongLineAtTheLastCharacterThatFits_data();
    void cutsALongLineAtTheLastCharacterThatFits();
    void cutsALineOfManyTagsQuickly();
};

void tst_LabelLines::breaksParagraphs_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("maximumLines");
    QTest::addColumn<QString>("lines");
    const auto add = [](const char *name, const char *text, int maximumLines, const char *lines) {
        QTest::newRow(name) << QString::fromLatin1(text) << maximumLines
                            << QString::fromLatin1(lines);
    };
    add("one line", "aaaa", 10, "aaaa|");
    add("a line for each word", "aaaa bbbb cccc", 10, "aaaa |bbbb |cccc|");
    add("words that fit together", "aa bb cc", 10, "aa bb |cc|");
    add("a word that is too long", "aaaaaaaaaa b", 10, "aaaaaaaaaa |b|");
    add("paragraphs", "aaaa/bbbb", 10, "aaaa|bbbb|");
    // A line is broken only if there is room for one more.
    add("room for one line takes all into it", "aaaa bbbb cccc", 1, "aaaa bbbb cccc>");
    add("room for two lines", "aaaa bbbb cccc", 2, "aaaa |bbbb cccc>");
    add("room for three lines, all of them needed", "aaaa bbbb cccc", 3, "aaaa |bbbb |cccc>");
    add("room for more than is needed", "aaaa bbbb cccc", 4, "aaaa |bbbb |cccc|");
    add("no room", "aaaa bbbb", 0, "aaaa bbbb>");
    add("paragraphs that there is no room for", "aaaa/bbbb/cccc", 2, "aaaa|bbbb>...");
    add("the last paragraph is cut", "aaaa/bbbb cccc", 2, "aaaa|bbbb cccc>");
}

void tst_LabelLines::breaksParagraphs()
{
    QFETCH(const QString, text);
    QFETCH(const int, maximumLines);
    const int height = maximumLines * QFontMetrics(font()).height();
    QTEST(describe(breakText(text, 6, height)), "lines");
}

void tst_LabelLines::makesTwentyLinesAtMost_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::newRow("twenty lines") << QStringLiteral("aaaa ").repeated(20) << 20;
    QTest::newRow("thirty lines") << QStringLiteral("aaaa ").repeated(30) << 20;
    QTest::newRow("paragraphs, whose ends count too")
            << QStringLiteral("aaaa/").repeated(30).chopped(1) << 10;
    QTest::newRow("paragraphs of three lines")
            << QStringLiteral("aaaa aaaa aaaa/").repeated(30).chopped(1) << 15;
}

void tst_LabelLines::makesTwentyLinesAtMost()
{
    QFETCH(const QString, text);
    const LabelLines::Lines broken = breakText(text, 6, anyHeight);
    QTEST(broken.lines.size(), "count");
    // The lines beyond the limit are dropped without an ellipsis.
    QVERIFY(!broken.lacksParagraphs);
    for (const LabelLines::Line &line : broken.lines)
        QVERIFY(!line.isElided);
}

void tst_LabelLines::endsInAnEllipsis_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("ending");
    const auto add = [](const char *name, const char *line, const char *ending) {
        QTest::newRow(name) << QString::fromUtf8(line) << QString::fromUtf8(ending);
    };
    add("a short line", "aaa", "aaa\u00A0\u2026");
    add("a line that ends in an ellipsis", "aaaaaaaaaaaaaaaaaa\u2026", "aaaaaaaaaaaaaaaaaa\u2026");
    add("a line that just fits", "aaaaaaaa", "aaaaaaaa\u00A0\u2026");
    add("a line that is too long", "aaaaaaaaaa", "aaaaaaaa\u00A0\u2026");
    add("a line that ends in a space", "aaaa ", "aaaa \u2026");
    add("a line that just fits with its space", "aaaaaaaa ", "aaaaaaaa \u2026");
    add("markup is measured as plain text", "<img src=\"x\">", "<img src\u00A0\u2026");
    add("nothing", "", "\u00A0\u2026");
}

void tst_LabelLines::endsInAnEllipsis()
{
    QFETCH(const QString, line);
    QTEST(LabelLines::endingInEllipsis(line, font(), widthOf(10)), "ending");
    // Not even the ellipsis fits.
    if (!line.endsWith(QChar(0x2026)))
        QCOMPARE(LabelLines::endingInEllipsis(line, font(), 1), QStringLiteral("\u00A0\u2026"));
}

void tst_LabelLines::cutsALongLineAtTheLastCharacterThatFits_data()
{
    QTest::addColumn<QFont>("lineFont");
    QTest::addColumn<QString>("words");
    QFont proportional(QStringLiteral("DejaVu Sans"));
    proportional.setPixelSize(16);
    QTest::newRow("words and tags") << font() << QStringLiteral("some words and <img src=\"x\"> ");
    QTest::newRow("kerned letters and ligatures")
            << proportional << QStringLiteral("AVAToffice fire ");
    QTest::newRow("letters that join those before them")
            << proportional << QStringLiteral("\u0628\u0628\u0628\u0633\u0628\u0633\u0628\u0628 ");
}

void tst_LabelLines::cutsALongLineAtTheLastCharacterThatFits()
{
    QFETCH(const QFont, lineFont);
    QFETCH(const QString, words);
    const QFontMetrics metrics(lineFont);
    const QString line = words.repeated(10);
    for (int width = 1; width < metrics.horizontalAdvance(line) + 40; width += 7) {
        QString expected = line;
        const auto ending = [&expected] {
            return expected.endsWith(QLatin1Char(' ')) ? QStringLiteral("\u2026")
                                                       : QStringLiteral("\u00A0\u2026");
        };
        while (!expected.isEmpty()
               && metrics.horizontalAdvance(expected) + metrics.horizontalAdvance(ending()) > width)
            expected.chop(1);
        QCOMPARE(LabelLines::endingInEllipsis(line, lineFont, width), expected + ending());
    }
}

void tst_LabelLines::cutsALineOfManyTagsQuickly()
{
    const QString line = QStringLiteral("<img src=\"svgFile=:/emojis/1f600.svgunicode\">")
                                 .repeated(2000);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(LabelLines::endingInEllipsis(line, font(), widthOf(10)),
             QStringLiteral("<img src\u00A0\u2026"));
    const QString narrow(30000, QChar(0x200B));
    QCOMPARE(LabelLines::endingInEllipsis(narrow + line, font(), widthOf(10)),
             narrow + QStringLiteral("<img src\u00A0\u2026"));
    QVERIFY(timer.elapsed() < 5000);
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_LabelLines)
#include "tst_labellines.moc"
