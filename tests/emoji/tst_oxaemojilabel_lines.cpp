// SPDX-License-Identifier: Apache-2.0
#include "EmojiLabelParts.h"
#include "support/TestApplication.h"

namespace {

using namespace EmojiLabelParts;

/// A label that wraps at about \a characters, and has room for \a maximumLines at most.
class WrappingLabel : public EmojiLabel
{
public:
    explicit WrappingLabel(int characters, int maximumLines = 100)
    {
        setWordWrap(true);
        setElideMode(Qt::ElideRight);
        setMaximumHeight(maximumLines * fontMetrics().height());
        resize(fontMetrics().horizontalAdvance(QString(characters, QLatin1Char('n'))), 20);
    }
};

} // namespace

/// The lines of an OxaEmojiLabel with word wrap.
class tst_OxaEmojiLabelLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_surroundings = std::make_unique<Surroundings>(); }
    void cleanupTestCase() { m_surroundings.reset(); }

    void wrapsItsText_data();
    void wrapsItsText();
    void elidesTheLastLineThatThereIsRoomFor();
    void endsInAnEllipsisWhenParagraphsAreLeftOut();
    void endsWithoutAnEllipsisWhenNothingIsElided();
    void cutsATagLikeAnyOtherText();
    void joinsLinesByAnySeparator();
    void leavesRoomForPaddingIndentAndMargin();
    void showsTwentyLinesOfALongText();
    void showsEmojiInTheFontWhenItIsCentred();
    void showsEmojiInTheFontWhenACentredLineHasANewline();
    void showsTagsAsEmojiAgainAfterSeveralCentredLines();
    void leavesRichParagraphsToQt_data();
    void leavesRichParagraphsToQt();
    void leavesParagraphsBehindAnImageToQt();
    void showsEmojiOfRichParagraphsInTheFont();
    void breaksLinesItselfAgainAfterRichText();
    void wrapsItsTextAgainWhenItIsResized();

private:
    std::unique_ptr<Surroundings> m_surroundings;
};

void tst_OxaEmojiLabelLines::wrapsItsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("body");
    QTest::addColumn<bool>("isMoreThanOneLine");
    QTest::newRow("one line") << QStringLiteral("nnnn") << QStringLiteral("nnnn") << false;
    QTest::newRow("two lines") << QStringLiteral("nnnn nnnn") << QStringLiteral("nnnn <br>nnnn")
                               << true;
    QTest::newRow("two paragraphs") << QStringLiteral("n\nn") << QStringLiteral("n<br>n") << true;
    QTest::newRow("an empty line is dropped")
            << QStringLiteral("n\n\nn") << QStringLiteral("n<br>n") << true;
    QTest::newRow("a newline that ends the only line")
            << QStringLiteral("n\n") << QStringLiteral("n") << false;
    QTest::newRow("markup") << QStringLiteral("<nnn nnn>") << QStringLiteral("&lt;nnn <br>nnn&gt;")
                            << true;
    QTest::newRow("an emoji") << QStringLiteral("nnnn ") + face
                              << QStringLiteral("nnnn <br>") + face << true;
    QTest::newRow("nothing") << QString() << QString() << false;
}

void tst_OxaEmojiLabelLines::wrapsItsText()
{
    QFETCH(const QString, text);
    WrappingLabel label(6);
    label.setText(text);
    QTEST(label.getElidedText(), "body");
    QTEST(label.isTextMoreThanOneLine(), "isMoreThanOneLine");
}

void tst_OxaEmojiLabelLines::elidesTheLastLineThatThereIsRoomFor()
{
    WrappingLabel label(6, 2);
    label.setText(QStringLiteral("nnnn nnnn nnnn ") + face);
    const QString text = label.getElidedText();
    QVERIFY2(text.startsWith(QLatin1String("nnnn <br>nnn")), qPrintable(text));
    QVERIFY2(text.endsWith(QChar(0x2026)), qPrintable(text));
    QCOMPARE(text.count(QLatin1String("<br>")), 1);
}

void tst_OxaEmojiLabelLines::endsInAnEllipsisWhenParagraphsAreLeftOut()
{
    WrappingLabel label(12, 2);
    label.setText(QStringLiteral("one\ntwo\nthree"));
    QCOMPARE(label.getElidedText(), QStringLiteral("one<br>two\u00A0\u2026"));
    label.setText(QStringLiteral("one\ntwo"));
    QCOMPARE(label.getElidedText(), QStringLiteral("one<br>two"));
}

void tst_OxaEmojiLabelLines::endsWithoutAnEllipsisWhenNothingIsElided()
{
    WrappingLabel label(12, 2);
    label.setElideMode(Qt::ElideNone);
    label.setText(QStringLiteral("one\ntwo\nthree"));
    QCOMPARE(label.getElidedText(), QStringLiteral("one<br>two"));
    QVERIFY(label.isTextMoreThanOneLine());
}

void tst_OxaEmojiLabelLines::cutsATagLikeAnyOtherText()
{
    // The markup is measured, and a tag is longer than most lines.
    WrappingLabel label(12, 2);
    label.setText(QStringLiteral("one\n%1\nthree").arg(face));
    const QString text = label.getElidedText();
    QVERIFY2(text.startsWith(QLatin1String("one<br><img ")), qPrintable(text));
    QVERIFY2(text.endsWith(QChar(0x2026)), qPrintable(text));
    QVERIFY(!label.pictures().contains(face));
}

void tst_OxaEmojiLabelLines::joinsLinesByAnySeparator()
{
    WrappingLabel label(6);
    QCOMPARE(label.createElidedLines(QStringLiteral("nnnn nnnn\nn"), QStringLiteral("/")),
             QStringLiteral("nnnn /nnnn/n"));
    QVERIFY(label.isTextMoreThanOneLine());
}

void tst_OxaEmojiLabelLines::leavesRoomForPaddingIndentAndMargin()
{
    const QString words = QStringLiteral("nn nn");
    WrappingLabel label(6);
    const int room = label.width() - label.fontMetrics().horizontalAdvance(words);
    label.setIndent(0);
    label.setText(words);
    QVERIFY(!label.isTextMoreThanOneLine());
    label.setIndent(room + 1);
    label.setText(words);
    QVERIFY(label.isTextMoreThanOneLine());
    label.setIndent(0);
    label.setMargin(room + 1);
    label.setText(words);
    QVERIFY(label.isTextMoreThanOneLine());
    label.setMargin(0);
    label.setElidePadding(room + 1);
    label.setText(words);
    QVERIFY(label.isTextMoreThanOneLine());
}

void tst_OxaEmojiLabelLines::showsTwentyLinesOfALongText()
{
    WrappingLabel label(6);
    label.setText(QStringLiteral("nnnn ").repeated(100));
    QCOMPARE(label.getElidedText(), (QStringLiteral("nnnn <br>").repeated(20)).chopped(4));
    QCOMPARE(label.shownText().count(QLatin1Char('|')), 19);
}

void tst_OxaEmojiLabelLines::showsEmojiInTheFontWhenItIsCentred()
{
    WrappingLabel label(6);
    label.setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    label.setText(QStringLiteral("nn ") + face);
    QCOMPARE(label.pictures(), QStringList { face });
    // Wrapping alone makes two lines of it.
    label.setText(QStringLiteral("nnnn ") + face);
    QVERIFY(!label.shouldDrawSvgEmojis());
    QCOMPARE(label.pictures(), QStringList());
    QCOMPARE(label.getElidedText(), QStringLiteral("nnnn <br>") + face);
}

void tst_OxaEmojiLabelLines::showsEmojiInTheFontWhenACentredLineHasANewline()
{
    WrappingLabel label(6);
    label.setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    label.setText(face + QLatin1Char('\n'));
    QVERIFY(!label.isTextMoreThanOneLine());
    QVERIFY(!label.shouldDrawSvgEmojis());
    QCOMPARE(label.getElidedText(), face);
    // A line separator at the end of the only line does not count.
    label.setText(face + QChar(QChar::LineSeparator));
    QVERIFY(!label.isTextMoreThanOneLine());
    QVERIFY(label.shouldDrawSvgEmojis());
    QCOMPARE(label.pictures(), QStringList());
    QCOMPARE(label.getElidedText(), face);
}

void tst_OxaEmojiLabelLines::showsTagsAsEmojiAgainAfterSeveralCentredLines()
{
    WrappingLabel label(6);
    label.setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    label.setText(QStringLiteral("nnnn nnnn"));
    QVERIFY(label.isTextMoreThanOneLine());
    label.setText(EmojiNotation::tag("1f600", face));
    QCOMPARE(label.getElidedText(), face);
    QCOMPARE(label.pictures(), QStringList { face });
}

void tst_OxaEmojiLabelLines::leavesRichParagraphsToQt_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isLeftToQt");
    QTest::newRow("a paragraph") << QStringLiteral("<p>nnnn nnnn</p>") << true;
    QTest::newRow("a document") << QStringLiteral("<html>nnnn nnnn</html>") << true;
    QTest::newRow("a paragraph with attributes")
            << QStringLiteral("<p align=\"left\">nnnn nnnn</p>") << false;
    QTest::newRow("anything else") << QStringLiteral("<b>nnnn</b> nnnn") << false;
}

void tst_OxaEmojiLabelLines::leavesRichParagraphsToQt()
{
    QFETCH(const QString, text);
    QFETCH(const bool, isLeftToQt);
    WrappingLabel label(6);
    label.setTextFormat(Qt::RichText);
    label.setText(text);
    QCOMPARE(label.getElidedText() == text, isLeftToQt);
    QCOMPARE(label.document().textWidth(), isLeftToQt ? qreal(label.width()) : -1.0);
    QCOMPARE(label.isTextMoreThanOneLine(), !isLeftToQt);
}

void tst_OxaEmojiLabelLines::leavesParagraphsBehindAnImageToQt()
{
    // An image without an alternative text is left out.
    WrappingLabel label(6);
    label.setTextFormat(Qt::RichText);
    label.setText(QStringLiteral("<img src=\"ornament.png\" alt=\"\"><p>nnnn nnnn</p>"));
    QCOMPARE(label.getElidedText(), QStringLiteral("<p>nnnn nnnn</p>"));
    QCOMPARE(label.document().textWidth(), qreal(label.width()));
}

void tst_OxaEmojiLabelLines::showsEmojiOfRichParagraphsInTheFont()
{
    const QString text = QStringLiteral("<p>nn\n%1</p>").arg(face);
    WrappingLabel label(6);
    label.setTextFormat(Qt::RichText);
    label.setText(text);
    QVERIFY(label.shouldDrawSvgEmojis());
    QVERIFY(label.isTextMoreThanOneLine());
    QCOMPARE(label.pictures(), QStringList());
    QCOMPARE(label.getElidedText(), text);
    // Without word wrap it is handled like any other text.
    label.setWordWrap(false);
    label.setElideMode(Qt::ElideNone);
    label.setText(text);
    QCOMPARE(label.pictures(), QStringList { face });
    QCOMPARE(label.document().textWidth(), -1.0);
}

void tst_OxaEmojiLabelLines::breaksLinesItselfAgainAfterRichText()
{
    WrappingLabel label(6);
    label.setTextFormat(Qt::RichText);
    label.setText(QStringLiteral("<p>nnnn nnnn</p>"));
    label.setTextFormat(Qt::PlainText);
    label.setText(QStringLiteral("nn"));
    QCOMPARE(label.document().textWidth(), -1.0);
}

void tst_OxaEmojiLabelLines::wrapsItsTextAgainWhenItIsResized()
{
    WrappingLabel label(6);
    label.setText(QStringLiteral("nnnn nnnn"));
    QVERIFY(label.isTextMoreThanOneLine());
    label.show();
    label.resize(label.width() * 4, label.height());
    QVERIFY(!label.isTextMoreThanOneLine());
    QCOMPARE(label.getElidedText(), QStringLiteral("nnnn nnnn"));
}

UIELEMENTS_TEST_MAIN(tst_OxaEmojiLabelLines)
#include "tst_oxaemojilabel_lines.moc"
