// SPDX-License-Identifier: Apache-2.0
#include "support/RandomSeed.h"

#include <UiElements/emoji/EmojiTextConverter.h>

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>

namespace {

/// Returns \a tag with its text in its place, worked out one attribute after the other.
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

/// How EmojiTextConverter turns image tags back into text.
class tst_EmojiTextConverterRestore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void restoresTags_data();
    void restoresTags();
    void agreesWithAnExpressionOnRandomMarkup();
    void takesTimeByTheLengthOfItsText();
};

void tst_EmojiTextConverterRestore::restoresTags_data()
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

void tst_EmojiTextConverterRestore::restoresTags()
{
    QFETCH(const QString, markup);
    QTEST(EmojiTextConverter::restore(markup), "text");
    QTEST(naivelyRestored(markup), "text");
}

void tst_EmojiTextConverterRestore::agreesWithAnExpressionOnRandomMarkup()
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

void tst_EmojiTextConverterRestore::takesTimeByTheLengthOfItsText()
{
    // By its square, this would be hours.
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

QTEST_GUILESS_MAIN(tst_EmojiTextConverterRestore)
#include "tst_emojitextconverter_restore.moc"
