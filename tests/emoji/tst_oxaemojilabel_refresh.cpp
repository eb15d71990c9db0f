// SPDX-License-Identifier: Apache-2.0
#include "EmojiLabelParts.h"
#include "support/PaintCounter.h"
#include "support/TestApplication.h"

Q_DECLARE_METATYPE(std::function<void(EmojiLabel &)>)

namespace {

using namespace EmojiLabelParts;

const QColor normal(0x11, 0, 0);
const QColor hovered(0, 0x22, 0);

QColor textColor(const QWidget &label) { return label.palette().color(QPalette::WindowText); }

/// Returns the colour in which the first character of \a label's document is painted.
QColor shownColor(const EmojiLabel &label)
{
    return label.document().begin().begin().fragment().charFormat().foreground().color();
}

void send(QWidget &widget, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(&widget, &event);
}

/// Returns the number of the first picture, which changes with each refresh.
QString pictureName(const EmojiLabel &label)
{
    const QTextCharFormat format = label.document().begin().begin().fragment().charFormat();
    return format.toImageFormat().name();
}

} // namespace

/// When OxaEmojiLabel refreshes its document, and in which colour.
class tst_OxaEmojiLabelRefresh : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_surroundings.reset(); }

    void showsTheNormalColourOfItsStyleText();
    void showsTheHoveredColourUnderThePointer();
    void showsTheNormalColourWhenItGetsTheFocus();
    void refreshesAtFocusAndHover_data();
    void refreshesAtFocusAndHover();
    void leavesItsColourToItsParent();
    void keepsItsPaletteWithoutAColourSet();
    void refreshesAtEachChange_data();
    void refreshesAtEachChange();
    void repaintsWithoutARefreshForPaddings();
    void repaintsWhenTheTextChanges();
    void keepsNoPictureOfEarlierTexts();
    void followsTheFont();
    void handsTheStyleSheetToItsDocument();
    void keepsNoParsedStyleSheetWithoutText();

private:
    std::unique_ptr<Surroundings> m_surroundings;
};

void tst_OxaEmojiLabelRefresh::initTestCase()
{
    OxaColorSet set(QStringLiteral("text"), normal);
    set.hovered = hovered;
    m_surroundings = std::make_unique<Surroundings>(set);
}

void tst_OxaEmojiLabelRefresh::showsTheNormalColourOfItsStyleText()
{
    EmojiLabel label(QStringLiteral("text"));
    label.setCSS(QStringLiteral("$textColors: text;"));
    QCOMPARE(textColor(label), normal);
    QCOMPARE(shownColor(label), normal);
}

void tst_OxaEmojiLabelRefresh::showsTheHoveredColourUnderThePointer()
{
    EmojiLabel label(QStringLiteral("text"));
    label.setCSS(QStringLiteral("$textColors: text;"));
    send(label, QEvent::Enter);
    QCOMPARE(textColor(label), hovered);
    QCOMPARE(shownColor(label), hovered);
    send(label, QEvent::Leave);
    QCOMPARE(textColor(label), normal);
    QCOMPARE(shownColor(label), normal);
}

void tst_OxaEmojiLabelRefresh::showsTheNormalColourWhenItGetsTheFocus()
{
    EmojiLabel label(QStringLiteral("text"));
    label.setCSS(QStringLiteral("$textColors: text;"));
    for (const QEvent::Type type : { QEvent::FocusIn, QEvent::FocusOut }) {
        label.updateTextColor(Qt::green);
        QFocusEvent focus(type);
        QCoreApplication::sendEvent(&label, &focus);
        QCOMPARE(textColor(label), normal);
        QCOMPARE(shownColor(label), normal);
    }
}

void tst_OxaEmojiLabelRefresh::refreshesAtFocusAndHover_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::newRow("focus in") << QEvent::FocusIn;
    QTest::newRow("focus out") << QEvent::FocusOut;
    QTest::newRow("the pointer enters") << QEvent::Enter;
    QTest::newRow("the pointer leaves") << QEvent::Leave;
}

void tst_OxaEmojiLabelRefresh::refreshesAtFocusAndHover()
{
    QFETCH(const QEvent::Type, type);
    EmojiLabel label(face);
    const QString before = pictureName(label);
    QFocusEvent focus(type == QEvent::FocusOut ? QEvent::FocusOut : QEvent::FocusIn);
    QEvent other(type);
    const bool isFocus = type == QEvent::FocusIn || type == QEvent::FocusOut;
    QCoreApplication::sendEvent(&label, isFocus ? &focus : &other);
    QVERIFY(pictureName(label) != before);
}

void tst_OxaEmojiLabelRefresh::leavesItsColourToItsParent()
{
    EmojiLabel label(face);
    label.setCSS(QStringLiteral("$textColors: text;"));
    label.setMirrorParentFocus(true);
    const QString before = pictureName(label);
    send(label, QEvent::Enter);
    QCOMPARE(textColor(label), normal);
    QCOMPARE(pictureName(label), before);
    label.setMirrorParentFocus(false);
    send(label, QEvent::Enter);
    QCOMPARE(textColor(label), hovered);
}

void tst_OxaEmojiLabelRefresh::keepsItsPaletteWithoutAColourSet()
{
    EmojiLabel label(QStringLiteral("text"));
    label.updateTextColor(Qt::green);
    send(label, QEvent::Enter);
    send(label, QEvent::Leave);
    QCOMPARE(textColor(label), QColor(Qt::green));
    QCOMPARE(shownColor(label), QColor(Qt::green));
}

void tst_OxaEmojiLabelRefresh::refreshesAtEachChange_data()
{
    using Change = std::function<void(EmojiLabel &)>;
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("refreshes");
    const auto add = [](const char *name, bool refreshes, const Change &change) {
        QTest::newRow(name) << change << refreshes;
    };
    add("of the text", true, [](EmojiLabel &label) { label.setText(face); });
    add("of the size", true, [](EmojiLabel &label) { label.resize(50, 50); });
    add("of the style text", true, [](EmojiLabel &label) { label.setCSS(QString()); });
    add("of the theme type", true,
        [](EmojiLabel &label) { label.setThemeType(QStringLiteral("light")); });
    add("of the font", true, [](EmojiLabel &label) { label.setFontToken(OxaFont::Token::Title); });
    add("of the layout direction", true,
        [](EmojiLabel &) { const LayoutDirectionGuard guard(Qt::RightToLeft); });
    add("of the paddings, none", false, [](EmojiLabel &label) { label.setTextLeftPadding(9); });
    add("of flags that select nothing, none", false,
        [](EmojiLabel &label) { label.setTextInteractionFlags(Qt::LinksAccessibleByKeyboard); });
}

void tst_OxaEmojiLabelRefresh::refreshesAtEachChange()
{
    QFETCH(const std::function<void(EmojiLabel &)>, change);
    EmojiLabel label(face);
    label.show();
    const QString before = pictureName(label);
    change(label);
    QTEST(pictureName(label) != before, "refreshes");
}

void tst_OxaEmojiLabelRefresh::repaintsWithoutARefreshForPaddings()
{
    EmojiLabel label(face);
    PaintCounter paints(label);
    const QString before = pictureName(label);
    label.setTextLeftPadding(1);
    QCOMPARE(paints.take(), 1);
    label.setTextRightPadding(1);
    QCOMPARE(paints.take(), 1);
    QCOMPARE(pictureName(label), before);
}

void tst_OxaEmojiLabelRefresh::repaintsWhenTheTextChanges()
{
    EmojiLabel label(face);
    PaintCounter paints(label);
    label.setText(heart);
    QCOMPARE(paints.take(), 1);
    label.setTextInteractionFlags(Qt::TextSelectableByKeyboard);
    QCOMPARE(paints.take(), 1);
}

void tst_OxaEmojiLabelRefresh::keepsNoPictureOfEarlierTexts()
{
    EmojiLabel label(face);
    const QUrl earlier(pictureName(label));
    const auto picture = [&label](const QUrl &name) {
        return label.document().resource(QTextDocument::ImageResource, name);
    };
    QVERIFY(picture(earlier).isValid());
    label.updateText();
    QVERIFY(picture(QUrl(pictureName(label))).isValid());
    QVERIFY(!picture(earlier).isValid());
}

void tst_OxaEmojiLabelRefresh::followsTheFont()
{
    EmojiLabel label(QStringLiteral("text") + face);
    const QSize before = label.sizeHint();
    label.setFontToken(OxaFont::Token::Title);
    QCOMPARE(label.document().defaultFont(), label.font());
    QVERIFY(label.sizeHint().height() > before.height());
    QVERIFY(label.sizeHint().width() > before.width());
}

void tst_OxaEmojiLabelRefresh::handsTheStyleSheetToItsDocument()
{
    EmojiLabel label;
    label.setTextFormat(Qt::RichText);
    label.setStyleSheet(QStringLiteral("b { color: #123456; }"));
    label.setText(QStringLiteral("<b>bold</b>"));
    QCOMPARE(label.document().defaultStyleSheet(), label.styleSheet());
    QCOMPARE(shownColor(label), QColor(0x12, 0x34, 0x56));
    label.setStyleSheet(QString());
    label.updateText();
    QVERIFY(shownColor(label) != QColor(0x12, 0x34, 0x56));
}

void tst_OxaEmojiLabelRefresh::keepsNoParsedStyleSheetWithoutText()
{
    EmojiLabel label;
    const int heightBefore = label.sizeHint().height();
    label.setStyleSheet(QStringLiteral("div { font-size: 40px; }"));
    label.updateText();
    QCOMPARE(label.document().defaultStyleSheet(), QString());
    QVERIFY(label.sizeHint().height() > heightBefore); // It counted all the same.
    label.setText(QStringLiteral("text"));
    QCOMPARE(label.document().defaultStyleSheet(), label.styleSheet());
    label.setText(QString());
    QCOMPARE(label.document().defaultStyleSheet(), QString());
}

UIELEMENTS_TEST_MAIN(tst_OxaEmojiLabelRefresh)
#include "tst_oxaemojilabel_refresh.moc"
