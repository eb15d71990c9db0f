// SPDX-License-Identifier: Apache-2.0
#include "LabelPictures.h"
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/TestApplication.h"

using namespace LabelPictures;

namespace {

/// A label that wraps and elides, in a font whose characters all have the same width.
class WrappingLabel : public OxaLabel
{
public:
    explicit WrappingLabel(const QString &text) : OxaLabel(text)
    {
        setFontToken(OxaFont::Token::CodeBlocks);
        setElideMode(Qt::ElideRight);
        setWordWrap(true);
        setIndent(0);
        setAlignment(Qt::AlignLeft | Qt::AlignTop);
    }

    int lineHeight() const { return fontMetrics().lineSpacing(); }

    /// Returns the width of \a columns characters, with a little to spare.
    int lineWidth(int columns) const
    {
        return fontMetrics().horizontalAdvance(QString(columns, QLatin1Char('x'))) + 2;
    }

    QString elided(const QString &text, int width) const
    {
        return fontMetrics().elidedText(text, Qt::ElideRight, width);
    }
};

/// Returns the picture of \a lines, one under the other in \a area.
QImage writtenLines(const WrappingLabel &label, QRect area, const QStringList &lines,
                    Qt::Alignment alignment = Qt::AlignLeft)
{
    QImage image = paper(label);
    QPainter painter(&image);
    takePen(painter, label);
    area.setHeight(label.lineHeight());
    const int flags = int(alignment | Qt::AlignAbsolute | Qt::AlignTop) | Qt::TextSingleLine;
    for (const QString &line : lines) {
        painter.drawText(area, flags, line);
        area.translate(0, label.lineHeight());
    }
    painter.end();
    return image;
}

/// Adds an offset to the position of the text.
class OffsetLabel : public WrappingLabel
{
public:
    using WrappingLabel::WrappingLabel;
    QPointF getTextOffset() const override { return { 11, 7 }; }
};

} // namespace

/// How OxaLabel breaks its text into lines when it elides.
class tst_OxaLabelWrapping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_stores = std::make_unique<StoreGuard>(store()); }
    void cleanupTestCase() { m_stores.reset(); }

    void breaksLinesByItsWrapMode_data();
    void breaksLinesByItsWrapMode();
    void breaksLinesBetweenParagraphs_data();
    void breaksLinesBetweenParagraphs();
    void elidesTheLastLineThatFits_data();
    void elidesTheLastLineThatFits();
    void elidesTheLastLineAtItsEndWhateverTheMode_data();
    void elidesTheLastLineAtItsEndWhateverTheMode();
    void paintsEachParagraphBelowTheLastLineAsOneElidedLine();
    void keepsItsMarginAndIndentFree();
    void countsItsMarginTwiceInTheHeight();
    void ignoresTheElidePadding();
    void beginsWhereItsTextOffsetSays_data();
    void beginsWhereItsTextOffsetSays();
    void beginsWhereADerivedClassSays();
    void alignsEachLine_data();
    void alignsEachLine();
    void standsOnTheSameSideAsASingleLineInARightToLeftSession_data();
    void standsOnTheSameSideAsASingleLineInARightToLeftSession();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaLabelWrapping::breaksLinesByItsWrapMode_data()
{
    QTest::addColumn<QTextOption::WrapMode>("mode");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("lines");
    const QString words = QStringLiteral("one two three four");
    const QString longWord = QStringLiteral("ab cdefghijklmn");
    QTest::newRow("between words")
            << QTextOption::WordWrap << words << QStringLiteral("one two|three|four");
    QTest::newRow("between words only, however long")
            << QTextOption::WordWrap << longWord << QStringLiteral("ab|cdefghijklmn");
    QTest::newRow("in long words too") << QTextOption::WrapAtWordBoundaryOrAnywhere << longWord
                                       << QStringLiteral("ab|cdefghij|klmn");
    QTest::newRow("anywhere") << QTextOption::WrapAnywhere << words
                              << QStringLiteral("one two |three fo|ur");
    QTest::newRow("never") << QTextOption::NoWrap << words << words;
    QTest::newRow("by hand only") << QTextOption::ManualWrap << words << words;
}

void tst_OxaLabelWrapping::breaksLinesByItsWrapMode()
{
    QFETCH(const QTextOption::WrapMode, mode);
    QFETCH(const QString, text);
    QFETCH(const QString, lines);
    WrappingLabel label(text);
    label.resize(label.lineWidth(8), 5 * label.lineHeight());
    label.updateWrapMode(mode);
    QCOMPARE(Pixels::render(label),
             writtenLines(label, label.rect(), lines.split(QLatin1Char('|'))));
}

void tst_OxaLabelWrapping::breaksLinesBetweenParagraphs_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("lines");
    QTest::newRow("two") << QStringLiteral("one\u2028two") << QStringLiteral("one|two");
    QTest::newRow("two, the first of several lines")
            << QStringLiteral("one two three\u2028four") << QStringLiteral("one two|three|four");
    QTest::newRow("empty ones are skipped")
            << QStringLiteral("\u2028one\u2028\u2028two\u2028") << QStringLiteral("one|two");
    QTest::newRow("a blank one is not")
            << QStringLiteral("one\u2028 \u2028two") << QStringLiteral("one| |two");
    QTest::newRow("none") << QString() << QString();
}

void tst_OxaLabelWrapping::breaksLinesBetweenParagraphs()
{
    QFETCH(const QString, text);
    QFETCH(const QString, lines);
    WrappingLabel label(text);
    label.resize(label.lineWidth(8), 5 * label.lineHeight());
    QCOMPARE(Pixels::render(label),
             writtenLines(label, label.rect(), lines.split(QLatin1Char('|'))));
}

void tst_OxaLabelWrapping::elidesTheLastLineThatFits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("heightInLines");
    QTest::addColumn<int>("missingPixels");
    QTest::addColumn<QString>("lines");
    const QString words = QStringLiteral("one two three four");
    QTest::newRow("as many lines as there are")
            << words << 3.0 << 0 << QStringLiteral("one two|three|four");
    QTest::newRow("one line less") << words << 2.0 << 0 << QStringLiteral("one two|three f\u2026");
    QTest::newRow("a pixel too low for the last line")
            << words << 3.0 << 1 << QStringLiteral("one two|three f\u2026");
    QTest::newRow("one line only") << words << 1.0 << 0 << QStringLiteral("one two\u2026");
    QTest::newRow("not even one line") << words << 0.5 << 0 << QStringLiteral("one two\u2026");
    QTest::newRow("the rest fits")
            << QStringLiteral("one two three") << 2.0 << 0 << QStringLiteral("one two|three");
    QTest::newRow("a long word") << QStringLiteral("abcdefghijkl") << 1.0 << 0
                                 << QStringLiteral("abcdefg\u2026");
    QTest::newRow("a paragraph that has its last line before")
            << QStringLiteral("one\u2028two three four") << 2.0 << 0
            << QStringLiteral("one|two thr\u2026");
}

void tst_OxaLabelWrapping::elidesTheLastLineThatFits()
{
    QFETCH(const QString, text);
    QFETCH(const double, heightInLines);
    QFETCH(const int, missingPixels);
    QFETCH(const QString, lines);
    WrappingLabel label(text);
    label.resize(label.lineWidth(8), int(heightInLines * label.lineHeight()) - missingPixels);
    QCOMPARE(Pixels::render(label),
             writtenLines(label, label.rect(), lines.split(QLatin1Char('|'))));
}

void tst_OxaLabelWrapping::elidesTheLastLineAtItsEndWhateverTheMode_data()
{
    QTest::addColumn<Qt::TextElideMode>("mode");
    QTest::newRow("left") << Qt::ElideLeft;
    QTest::newRow("middle") << Qt::ElideMiddle;
    QTest::newRow("right") << Qt::ElideRight;
}

void tst_OxaLabelWrapping::elidesTheLastLineAtItsEndWhateverTheMode()
{
    QFETCH(const Qt::TextElideMode, mode);
    WrappingLabel label(QStringLiteral("one two three four"));
    label.resize(label.lineWidth(8), 2 * label.lineHeight());
    label.setElideMode(mode);
    QCOMPARE(Pixels::render(label),
             writtenLines(label, label.rect(),
                          { QStringLiteral("one two"), QStringLiteral("three f\u2026") }));
}

void tst_OxaLabelWrapping::paintsEachParagraphBelowTheLastLineAsOneElidedLine()
{
    // The second line is partly visible; with an offset at the top nothing of the third one is.
    WrappingLabel label(QStringLiteral("one two three\u2028four five six\u2028seven"));
    label.resize(label.lineWidth(8), label.lineHeight() * 7 / 4);
    const QImage image = Pixels::render(label);
    QCOMPARE(image,
             writtenLines(label, label.rect(),
                          { QStringLiteral("one two\u2026"), QStringLiteral("four fi\u2026") }));
    QVERIFY(image != writtenLines(label, label.rect(), { QStringLiteral("one two\u2026") }));
}

void tst_OxaLabelWrapping::keepsItsMarginAndIndentFree()
{
    WrappingLabel label(QStringLiteral("one two three four"));
    const int width = label.lineWidth(8);
    label.setMargin(6);
    label.setIndent(9);
    label.setContentsMargins(3, 3, 3, 3);
    label.resize(6 + 9 + width + 6, 2 * 6 + 2 * label.lineHeight());
    label.setAlignment(Qt::AlignRight | Qt::AlignTop);
    QCOMPARE(Pixels::render(label),
             writtenLines(label, QRect(9 + 6, 6, width, 0),
                          { QStringLiteral("one two"), QStringLiteral("three f\u2026") },
                          Qt::AlignRight));
}

void tst_OxaLabelWrapping::countsItsMarginTwiceInTheHeight()
{
    WrappingLabel label(QStringLiteral("one two three four"));
    const int width = label.lineWidth(8);
    label.setMargin(6);
    label.resize(6 + width + 6, 2 * 6 + 2 * label.lineHeight() - 1);
    QCOMPARE(Pixels::render(label),
             writtenLines(label, QRect(6, 6, width, 0), { QStringLiteral("one two\u2026") }));
}

void tst_OxaLabelWrapping::ignoresTheElidePadding()
{
    WrappingLabel label(QStringLiteral("one two three four"));
    label.resize(label.lineWidth(8), 2 * label.lineHeight());
    const QImage before = Pixels::render(label);
    label.setElidePadding(40);
    QCOMPARE(Pixels::render(label), before);
}

void tst_OxaLabelWrapping::beginsWhereItsTextOffsetSays_data()
{
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::addColumn<int>("numerator");
    QTest::newRow("at the top") << Qt::Alignment(Qt::AlignTop) << 0;
    QTest::newRow("in the middle") << Qt::Alignment(Qt::AlignVCenter) << 1;
    QTest::newRow("at the bottom") << Qt::Alignment(Qt::AlignBottom) << 2;
}

void tst_OxaLabelWrapping::beginsWhereItsTextOffsetSays()
{
    QFETCH(const Qt::Alignment, alignment);
    QFETCH(const int, numerator);
    WrappingLabel label(QStringLiteral("one two three"));
    label.setAlignment(Qt::AlignLeft | alignment);
    label.resize(label.lineWidth(8), 200);
    const int offset = int(label.getTextOffset().y());
    const int expectedOffset = (200 - 2 * label.lineHeight()) * numerator / 2;
    QVERIFY(qAbs(offset - expectedOffset) <= 1);
    QCOMPARE(Pixels::render(label),
             writtenLines(label, label.rect().translated(0, offset),
                          { QStringLiteral("one two"), QStringLiteral("three") }));
}

void tst_OxaLabelWrapping::beginsWhereADerivedClassSays()
{
    OffsetLabel label(QStringLiteral("one two three"));
    label.resize(label.lineWidth(8), 100);
    QCOMPARE(Pixels::render(label),
             writtenLines(label, label.rect().translated(11, 7),
                          { QStringLiteral("one two"), QStringLiteral("three") }));
}

void tst_OxaLabelWrapping::alignsEachLine_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::addColumn<Qt::Alignment>("onScreen");
    const Qt::Alignment left = Qt::AlignLeft;
    const Qt::Alignment centre = Qt::AlignHCenter;
    const Qt::Alignment right = Qt::AlignRight;
    QTest::newRow("left") << Qt::LeftToRight << left << left;
    QTest::newRow("centred") << Qt::LeftToRight << centre << centre;
    QTest::newRow("right") << Qt::LeftToRight << right << right;
    QTest::newRow("left, right to left") << Qt::RightToLeft << left << left;
    QTest::newRow("centred, right to left") << Qt::RightToLeft << centre << centre;
    QTest::newRow("right, right to left") << Qt::RightToLeft << right << right;
}

void tst_OxaLabelWrapping::alignsEachLine()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const Qt::Alignment, alignment);
    QFETCH(const Qt::Alignment, onScreen);
    const LayoutDirectionGuard guard(direction);
    WrappingLabel label(QStringLiteral("one two three four"));
    label.resize(label.lineWidth(9), 2 * label.lineHeight());
    label.setAlignment(alignment | Qt::AlignTop);
    QCOMPARE(Pixels::render(label),
             writtenLines(label, label.rect(),
                          { QStringLiteral("one two"), QStringLiteral("three fo\u2026") },
                          onScreen));
}

void tst_OxaLabelWrapping::standsOnTheSameSideAsASingleLineInARightToLeftSession_data()
{
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::newRow("as it starts") << Qt::Alignment();
    QTest::newRow("left") << Qt::Alignment(Qt::AlignLeft);
    QTest::newRow("right") << Qt::Alignment(Qt::AlignRight);
}

void tst_OxaLabelWrapping::standsOnTheSameSideAsASingleLineInARightToLeftSession()
{
    QFETCH(const Qt::Alignment, alignment);
    const LayoutDirectionGuard guard(Qt::RightToLeft);
    WrappingLabel label(QStringLiteral("one"));
    const Qt::Alignment first = OxaLabel().alignment() & Qt::AlignHorizontal_Mask;
    label.setAlignment((alignment ? alignment : first) | Qt::AlignTop);
    label.resize(label.lineWidth(9), label.lineHeight());
    const QImage wrapped = Pixels::render(label);
    label.setWordWrap(false);
    QCOMPARE(wrapped, Pixels::render(label));
}

UIELEMENTS_TEST_MAIN(tst_OxaLabelWrapping)
#include "tst_oxalabel_wrapping.moc"
