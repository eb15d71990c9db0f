// SPDX-License-Identifier: Apache-2.0
#include "EmojiLabelParts.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

namespace {

using namespace EmojiLabelParts;

QString body(const EmojiLabel &label)
{
    return EmojiNotation::describe(label.document().toPlainText());
}

} // namespace

/// The markup that OxaEmojiLabel makes of its text, on one line.
class tst_OxaEmojiLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_surroundings = std::make_unique<Surroundings>(); }
    void cleanupTestCase() { m_surroundings.reset(); }

    void startsEmpty();
    void keepsATextOfItsConstructor();
    void hasItsEllipsisInUtf8();
    void drawsArtworkOrNot_data();
    void drawsArtworkOrNot();
    void showsEmojiAsPictures();
    void showsEmojiInTheFontWhereItCanBeSelected();
    void copiesWhatWasWritten();
    void showsTagsInItsTextAsEmoji();
    void keepsTagsInATextThatCanBeSelected();
    void escapesTextsThatAreNotRich_data();
    void escapesTextsThatAreNotRich();
    void keepsMarkupOfRichText();
    void elidesItsLine();
    void breaksItsTextAtNewlines();
    void writesItsStyle();
    void writesIndentAndPaddings_data();
    void writesIndentAndPaddings();
    void detectsNewlines();

private:
    std::unique_ptr<Surroundings> m_surroundings;
};

void tst_OxaEmojiLabel::startsEmpty()
{
    const EmojiLabel label;
    QVERIFY(!label.shouldDrawSvgEmojis());
    QVERIFY(!label.isTextMoreThanOneLine());
    QCOMPARE(label.getElidedText(), QString());
    QCOMPARE(label.getTextLeftPadding(), 0);
    QCOMPARE(label.getTextRightPadding(), 0);
    QVERIFY(label.document().isEmpty());
    QVERIFY(!label.document().isUndoRedoEnabled());
    QCOMPARE(OxaEmojiLabel().getAccessibleRole(), QAccessible::NoRole);
}

void tst_OxaEmojiLabel::keepsATextOfItsConstructor()
{
    QWidget parent;
    const OxaEmojiLabel label(QStringLiteral("text"), &parent, QAccessible::StaticText,
                              Qt::SubWindow);
    QCOMPARE(label.text(), QStringLiteral("text"));
    QCOMPARE(label.getElidedText(), QStringLiteral("text"));
    QCOMPARE(label.parentWidget(), &parent);
    QCOMPARE(label.getAccessibleRole(), QAccessible::StaticText);
    QCOMPARE(label.windowType(), Qt::SubWindow);
    const OxaEmojiLabel empty(&parent, QAccessible::Link);
    QCOMPARE(empty.getAccessibleRole(), QAccessible::Link);
    QCOMPARE(empty.getElidedText(), QString());
}

void tst_OxaEmojiLabel::hasItsEllipsisInUtf8()
{
    QCOMPARE(QString::fromUtf8(OxaEmojiLabel::ELLIPSIS), QStringLiteral("\u2026"));
}

void tst_OxaEmojiLabel::drawsArtworkOrNot_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::addColumn<Qt::TextInteractionFlags>("flags");
    QTest::addColumn<bool>("isDrawn");
    const Qt::Alignment top = Qt::AlignLeft | Qt::AlignTop;
    const Qt::Alignment middle = Qt::AlignLeft | Qt::AlignVCenter;
    const Qt::Alignment centre = Qt::AlignHCenter | Qt::AlignTop;
    const Qt::TextInteractionFlags links = Qt::LinksAccessibleByMouse;
    const QString oneLine = QStringLiteral("a");
    const QString twoLines = QStringLiteral("a\nb");
    const QString separated = QStringLiteral("a\u2028b");
    const auto add = [](const char *name, const QString &text, Qt::Alignment alignment,
                        Qt::TextInteractionFlags flags, bool isDrawn) {
        QTest::newRow(name) << text << alignment << flags << isDrawn;
    };
    add("a text", oneLine, top, links, true);
    add("a text in the middle", oneLine, middle, links, true);
    add("a centred text", oneLine, centre, links, true);
    add("no text", QString(), top, links, false);
    add("selectable by mouse", oneLine, top, Qt::TextSelectableByMouse, false);
    add("selectable by keyboard", oneLine, top, links | Qt::TextSelectableByKeyboard, false);
    add("links by keyboard", oneLine, top, Qt::LinksAccessibleByKeyboard, true);
    add("two lines at the top", twoLines, top, links, true);
    add("two lines in the middle", twoLines, middle, links, false);
    add("two lines, centred", twoLines, centre, links, false);
    add("two lines at the bottom", twoLines, Qt::AlignRight | Qt::AlignBottom, links, true);
    add("a separator in the middle", separated, middle, links, true);
    add("a separator, centred", separated, centre, links, false);
}

void tst_OxaEmojiLabel::drawsArtworkOrNot()
{
    QFETCH(const QString, text);
    QFETCH(const Qt::Alignment, alignment);
    QFETCH(const Qt::TextInteractionFlags, flags);
    EmojiLabel label;
    label.setAlignment(alignment);
    label.setTextInteractionFlags(flags);
    label.setText(text.isEmpty() ? text : text + face);
    QTEST(label.shouldDrawSvgEmojis(), "isDrawn");
    QTEST(!label.pictures().isEmpty(), "isDrawn");
}

void tst_OxaEmojiLabel::showsEmojiAsPictures()
{
    const EmojiLabel label(QLatin1String("Hi ") + face + heart + unknownFace);
    QCOMPARE(body(label), QStringLiteral("Hi {fffc}{fffc}{1f601}"));
    QCOMPARE(label.pictures(), QStringList({ face, heart }));
    QCOMPARE(label.getElidedText(), QLatin1String("Hi ") + face + heart + unknownFace);
}

void tst_OxaEmojiLabel::showsEmojiInTheFontWhereItCanBeSelected()
{
    EmojiLabel label(QLatin1String("Hi ") + face);
    QCOMPARE(label.pictures(), QStringList { face });
    label.setTextInteractionFlags(Qt::TextSelectableByMouse);
    QCOMPARE(label.pictures(), QStringList());
    QCOMPARE(body(label), QStringLiteral("Hi {1f600}"));
}

void tst_OxaEmojiLabel::copiesWhatWasWritten()
{
    const QString text = QLatin1String("Hi <") + face + QLatin1String("> \n there ") + heart;
    EmojiLabel label(text);
    label.setTextInteractionFlags(Qt::TextSelectableByMouse);
    label.setElideMode(Qt::ElideRight);
    label.resize(20, 20);
    QTest::mouseRelease(&label, Qt::RightButton);
    QCOMPARE(label.selectedText().replace(QChar::ParagraphSeparator, QLatin1Char('\n')), text);
}

void tst_OxaEmojiLabel::showsTagsInItsTextAsEmoji()
{
    const EmojiLabel label(QLatin1String("a") + EmojiNotation::tag("1f600", face)
                           + QStringLiteral("<img src=\"%1|17\">b").arg(heart));
    QCOMPARE(label.pictures(), QStringList({ face, heart }));
    QCOMPARE(body(label), QStringLiteral("a{fffc}{fffc}b"));
}

void tst_OxaEmojiLabel::keepsTagsInATextThatCanBeSelected()
{
    const QString tag = EmojiNotation::tag("1f600", face);
    EmojiLabel label;
    label.setTextInteractionFlags(Qt::TextSelectableByMouse);
    label.setText(tag);
    QCOMPARE(label.document().toPlainText(), tag);
    QCOMPARE(label.getElidedText(), tag.toHtmlEscaped());
    label.setTextFormat(Qt::RichText);
    QCOMPARE(label.getElidedText(), tag);
}

void tst_OxaEmojiLabel::escapesTextsThatAreNotRich_data()
{
    QTest::addColumn<Qt::TextFormat>("format");
    QTest::newRow("plain text") << Qt::PlainText;
    QTest::newRow("text of any kind") << Qt::AutoText;
    QTest::newRow("Markdown") << Qt::MarkdownText;
}

void tst_OxaEmojiLabel::escapesTextsThatAreNotRich()
{
    QFETCH(const Qt::TextFormat, format);
    const QString text = QStringLiteral("<b>1 & 2</b> \"**x**\"");
    EmojiLabel label;
    label.setTextFormat(format);
    label.setText(text + face);
    QCOMPARE(label.document().toPlainText(), text + QChar::ObjectReplacementCharacter);
    QCOMPARE(label.getElidedText(), text.toHtmlEscaped() + face);
}

void tst_OxaEmojiLabel::keepsMarkupOfRichText()
{
    EmojiLabel label;
    label.setTextFormat(Qt::RichText);
    label.setText(QLatin1String("<b>1 &amp; 2</b>\n") + face);
    QCOMPARE(body(label), QStringLiteral("1 & 2 {fffc}"));
    QCOMPARE(label.getElidedText(), QLatin1String("<b>1 &amp; 2</b>\n") + face);
}

void tst_OxaEmojiLabel::elidesItsLine()
{
    const QString text = QStringLiteral("some & other words that are much too long");
    EmojiLabel label;
    label.resize(120, 20);
    label.setIndent(5);
    label.setMargin(3);
    label.setElideMode(Qt::ElideRight);
    label.setText(text + face);
    const QString elided = label.fontMetrics().elidedText(text + face, Qt::ElideRight, 109);
    QVERIFY(elided != text + face);
    QCOMPARE(label.getElidedText(), elided.toHtmlEscaped());
    QCOMPARE(label.createElidedLine(text, false, QStringLiteral("/")), text.toHtmlEscaped());
    label.setElideMode(Qt::ElideNone);
    label.setText(text + face);
    QCOMPARE(label.getElidedText(), text.toHtmlEscaped() + face);
}

void tst_OxaEmojiLabel::breaksItsTextAtNewlines()
{
    EmojiLabel label(QStringLiteral("a\nb\u2028\u2029c\r"));
    QCOMPARE(label.getElidedText(), QStringLiteral("a<br>b<br><br>c<br>"));
    QVERIFY(label.isTextMoreThanOneLine());
    QCOMPARE(label.createElidedLine(QStringLiteral("a\fb"), true, QStringLiteral("/")),
             QStringLiteral("a/b"));
    label.setText(QStringLiteral("a\vb"));
    QVERIFY(!label.isTextMoreThanOneLine());
}

void tst_OxaEmojiLabel::writesItsStyle()
{
    EmojiLabel label;
    label.updateTextColor(QColor(1, 2, 3, 4));
    QCOMPARE(label.palette().color(QPalette::WindowText), QColor(1, 2, 3, 4));
    QCOMPARE(label.createStyle(),
             QStringLiteral("style=\"color:#04010203;font-family:Segoe UI,Segoe UI Emoji;\""));
    label.setTextLeftPadding(2);
    QCOMPARE(label.createStyle(),
             QStringLiteral("style=\"color:#04010203;font-family:Segoe UI,Segoe UI Emoji;"
                            "margin: 0 0 0 2;\""));
}

void tst_OxaEmojiLabel::writesIndentAndPaddings_data()
{
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::addColumn<int>("indent");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::addColumn<QString>("leftToRight");
    QTest::addColumn<QString>("rightToLeft");
    const auto add = [](const char *name, Qt::Alignment alignment, int indent, int left, int right,
                        const char *leftToRight, const char *rightToLeft) {
        QTest::newRow(name) << alignment << indent << left << right
                            << QString::fromLatin1(leftToRight) << QString::fromLatin1(rightToLeft);
    };
    const Qt::Alignment left = Qt::AlignLeft;
    const Qt::Alignment right = Qt::AlignRight;
    const Qt::Alignment centre = Qt::AlignHCenter;
    add("nothing", left, -1, 0, 0, "", "");
    add("an indent of 0", left, 0, 0, 0, "", "");
    add("an indent at the left", left, 7, 0, 0, "margin: 0 0 0 7;", "margin: 0 7 0 0;");
    add("an indent at the right", right, 7, 0, 0, "margin: 0 7 0 0;", "margin: 0 0 0 7;");
    add("an indent of a centred text", centre, 7, 0, 0, "", "");
    add("paddings", left, 0, 2, 3, "margin: 0 3 0 2;", "margin: 0 2 0 3;");
    add("paddings of a centred text", centre, 7, 2, 3, "margin: 0 3 0 2;", "margin: 0 2 0 3;");
    add("indent and paddings", left, 7, 2, 3, "margin: 0 3 0 9;", "margin: 0 9 0 3;");
    add("indent and paddings at the right", right, 7, 2, 3, "margin: 0 10 0 2;",
        "margin: 0 2 0 10;");
    add("negative paddings", left, 0, -2, -3, "", "");
    add("one of them negative", left, 0, -2, 3, "margin: 0 3 0 -2;", "margin: 0 -2 0 3;");
}

void tst_OxaEmojiLabel::writesIndentAndPaddings()
{
    QFETCH(const Qt::Alignment, alignment);
    QFETCH(const int, indent);
    QFETCH(const int, left);
    QFETCH(const int, right);
    EmojiLabel label;
    label.setAlignment(alignment);
    label.setIndent(indent);
    label.setProperty("textLeftPadding", left);
    label.setProperty("textRightPadding", right);
    QCOMPARE(label.getTextLeftPadding(), left);
    QCOMPARE(label.getTextRightPadding(), right);
    QTEST(label.createIndentStyle(), "leftToRight");
    const LayoutDirectionGuard guard(Qt::RightToLeft);
    label.setAlignment(alignment);
    QTEST(label.createIndentStyle(), "rightToLeft");
}

void tst_OxaEmojiLabel::detectsNewlines()
{
    QVERIFY(EmojiLabel::containsNewline(QStringLiteral("a\u000Fb")));
    QVERIFY(!EmojiLabel::containsNewline(QStringLiteral("a\vb")));
    const QRegularExpression expression = EmojiLabel::getNewlineCharactersRegEx();
    QCOMPARE(QStringLiteral("a\rb\u2029c").replace(expression, QStringLiteral("/")),
             QStringLiteral("a/b/c"));
}

UIELEMENTS_TEST_MAIN(tst_OxaEmojiLabel)
#include "tst_oxaemojilabel.moc"
