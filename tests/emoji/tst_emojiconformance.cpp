// SPDX-License-Identifier: Apache-2.0
#include "support/EmojiArtwork.h"
#include "support/EmojiTestFile.h"
#include "support/TestMain.h"

#include <UiElements/emoji/EmojiTextConverter.h>

#include <QTest>

#include <map>

namespace {

using EmojiTestFile::Entry;

/// Returns the known cause why \a entry does not give exactly one tag; empty when it has to.
QString knownCause(const Entry &entry)
{
    if (entry.status == QLatin1String("component"))
        return QStringLiteral("a skin tone or hair needs an emoji before it");
    if (entry.codePoints.contains(0x26A7))
        return QStringLiteral("U+26A7, the transgender symbol, is not among the emoji");
    if (entry.codePoints.size() == 2 && entry.codePoints.last() == 0x20E3)
        return QStringLiteral("a keycap needs the variation selector");
    return {};
}

/// Returns whether \a entry gives exactly one tag, with the stem of its code points.
bool givesItsTag(const Entry &entry)
{
    EmojiTextConverter converter(20, 1.0);
    const QString markup = converter.convert(entry.text);
    return !converter.hasPlainText() && EmojiTextConverter::restore(markup) == entry.text
            && converter.svgFiles()
            == QVector<QString> { QStringLiteral(":/emojis/%1.svg").arg(entry.stem) };
}

/// How many sequences there are of a status, and how many give their tag.
struct Tally
{
    int all = 0;
    int given = 0;
};

} // namespace

/// Each sequence of Unicode's list, with artwork for all of them.
class tst_EmojiConformance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void givesEachSequenceItsOneTag();
    void namesNoCauseForSequencesThatGiveTheirTag();
    void findsEachSequenceInAText();

private:
    const QVector<Entry> m_entries = EmojiTestFile::entries();
    std::unique_ptr<EmojiArtwork> m_artwork;
};

void tst_EmojiConformance::initTestCase()
{
    QVERIFY(m_entries.size() > 4000);
    m_artwork = std::make_unique<EmojiArtwork>(EmojiTestFile::stemsOf(m_entries));
}

void tst_EmojiConformance::givesEachSequenceItsOneTag()
{
    std::map<QString, Tally> tallies;
    std::map<QString, int> causes;
    QStringList unexplained;
    for (const Entry &entry : m_entries) {
        Tally &tally = tallies[entry.status];
        ++tally.all;
        const QString cause = knownCause(entry);
        if (givesItsTag(entry))
            ++tally.given;
        else if (cause.isEmpty())
            unexplained += entry.stem;
        else
            ++causes[entry.status + QLatin1String(": ") + cause];
    }
    for (const auto &[status, tally] : tallies)
        qInfo("%s: %d of %d", qPrintable(status), tally.given, tally.all);
    for (const auto &[cause, count] : causes)
        qInfo("%d %s", count, qPrintable(cause));
    QCOMPARE(unexplained.join(QLatin1Char('\n')), QString());
}

void tst_EmojiConformance::namesNoCauseForSequencesThatGiveTheirTag()
{
    QStringList given;
    for (const Entry &entry : m_entries) {
        if (!knownCause(entry).isEmpty() && givesItsTag(entry))
            given += entry.stem;
    }
    QCOMPARE(given.join(QLatin1Char('\n')), QString());
}

void tst_EmojiConformance::findsEachSequenceInAText()
{
    QStringList missed;
    for (const Entry &entry : m_entries) {
        if (!knownCause(entry).isEmpty())
            continue;
        EmojiTextConverter converter(20, 1.0);
        const QString text = QLatin1Char('a') + entry.text + QLatin1String("b7") + entry.text
                + entry.text + QLatin1Char('7');
        const QString markup = converter.convert(text);
        if (converter.svgFiles().size() != 3 || EmojiTextConverter::restore(markup) != text)
            missed += entry.stem;
    }
    QCOMPARE(missed.join(QLatin1Char('\n')), QString());
}

UIELEMENTS_TEST_MAIN_WITH(QCoreApplication, tst_EmojiConformance)
#include "tst_emojiconformance.moc"
