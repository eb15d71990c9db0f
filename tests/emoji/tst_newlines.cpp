// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"

#include <UiElements/emoji/Newlines_p.h>

#include <QTest>

/// The characters that end a line.
class tst_Newlines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasSixCharacters();
    void detectsNewlines_data();
    void detectsNewlines();
    void splitsTexts_data();
    void splitsTexts();
    void joinsTheCharactersInARegularExpression();
};

void tst_Newlines::hasSixCharacters()
{
    const QSet<QChar> expected = { QChar(0x0A), QChar(0x0C),   QChar(0x0D),
                                   QChar(0x0F), QChar(0x2028), QChar(0x2029) };
    QCOMPARE(Newlines::characters(), expected);
}

void tst_Newlines::detectsNewlines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isNewline");
    for (const ushort newline : { 0x0A, 0x0C, 0x0D, 0x0F, 0x2028, 0x2029 })
        QTest::addRow("U+%04X", newline) << QString(QChar(newline)) << true;
    for (const ushort other : { 0x09, 0x0B, 0x0E, 0x1C, 0x20, 0x85, 0x2027, 0x202A })
        QTest::addRow("U+%04X is no newline", other) << QString(QChar(other)) << false;
    QTest::newRow("one in a text") << QStringLiteral("a\nb") << true;
    QTest::newRow("a text without") << QStringLiteral("a b") << false;
    QTest::newRow("nothing") << QString() << false;
}

void tst_Newlines::detectsNewlines()
{
    QFETCH(const QString, text);
    QFETCH(const bool, isNewline);
    QCOMPARE(Newlines::isIn(text), isNewline);
    QCOMPARE(Newlines::expression().match(text).hasMatch(), isNewline);
}

void tst_Newlines::splitsTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("parts");
    QTest::newRow("one line") << QStringLiteral("a b") << QStringLiteral("a b");
    QTest::newRow("two lines") << QStringLiteral("a\nb") << QStringLiteral("a|b");
    QTest::newRow("an empty line is dropped") << QStringLiteral("a\n\nb") << QStringLiteral("a|b");
    QTest::newRow("empty lines at the ends are dropped")
            << QStringLiteral("\na\r\n") << QStringLiteral("a");
    QTest::newRow("all kinds") << QStringLiteral("a\fb\u000Fc\u2029d\u2028e\rf\ng")
                               << QStringLiteral("a|b|c|d|e|f|g");
    QTest::newRow("a vertical tab ends no line")
            << QStringLiteral("a\vb") << QStringLiteral("a\vb");
    QTest::newRow("a line of spaces stays") << QStringLiteral("a\n \nb") << QStringLiteral("a| |b");
}

void tst_Newlines::splitsTexts()
{
    QFETCH(const QString, text);
    QTEST(Newlines::split(text).join(QLatin1Char('|')), "parts");
}

void tst_Newlines::joinsTheCharactersInARegularExpression()
{
    const QString pattern = Newlines::expression().pattern();
    QCOMPARE(pattern.size(), 11);
    for (int i = 1; i < pattern.size(); i += 2)
        QCOMPARE(pattern[i], QChar(QLatin1Char('|')));
}

UIELEMENTS_TEST_MAIN_WITH(QCoreApplication, tst_Newlines)
#include "tst_newlines.moc"
