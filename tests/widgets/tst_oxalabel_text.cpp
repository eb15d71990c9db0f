// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/widgets/OxaLabel.h>

namespace {

const QString link = QStringLiteral("Read <a href=\"x\">it</a>.");

using Replacement = std::function<void(OxaLabel &)>;

/// Records the texts that are set.
class NotingLabel : public OxaLabel
{
public:
    using OxaLabel::OxaLabel;
    QStringList texts;

    void setText(const QString &text) override
    {
        texts += text;
        OxaLabel::setText(text);
    }
};

OxaColorSetMap storeOfLinks(std::initializer_list<const char *> colors)
{
    return ColorSets::storeOf({ ColorSets::make(QStringLiteral("button-hyperlink-text"), colors) });
}

QString withLinkColors(const char *normal, const char *focused, const char *hovered,
                       const QString &text)
{
    return QStringLiteral("<style type = \"text/css\">a:link{text-decoration: underline; color:%1;}"
                          " a:visited{color:%2;} a:hover{color:%3;}</style>")
                   .arg(QLatin1String(normal), QLatin1String(focused), QLatin1String(hovered))
            + text;
}

} // namespace

Q_DECLARE_METATYPE(Replacement)

/// The texts of OxaLabel, and how it colours the links in them.
class tst_OxaLabelText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_stores.reset(); }

    void givesLinksTheirColors();
    void leavesTextsWithoutLinksAndOtherFormatsAlone_data();
    void leavesTextsWithoutLinksAndOtherFormatsAlone();
    void takesTextsThroughThePropertyAndTheSlot();
    void dropsTheAlphaOfLinkColors();

    void setsTheTextAgainWhenTheFormatChanges();
    void setsNoTextForTheSameFormatOrAnEmptyText();
    void setsTheFormatThroughTheProperty();

    void recolorsLinksWhenTheThemeTypeChanges();
    void takesTheColorsOfItsWindowsThemeType();
    void setsTheTextAgainForRichTextOnly_data();
    void setsTheTextAgainForRichTextOnly();
    void losesTheSelectionInRichTextWhenTheThemeTypeChanges_data();
    void losesTheSelectionInRichTextWhenTheThemeTypeChanges();
    void setsNoTextAgainAfterClearSetNumOrSetPixmap_data();
    void setsNoTextAgainAfterClearSetNumOrSetPixmap();
    void warnsAndTakesBlackForLinksWithoutTheirSet();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaLabelText::init()
{
    // In the order normal, hovered, pressed, disabled, focused.
    m_stores = std::make_unique<StoreGuard>(storeOfLinks({ "#101112", "#202122", "#303132",
                                                           "#404142", "#505152" }),
                                            storeOfLinks({ "#a0a1a2", "#b0b1b2", "#c0c1c2",
                                                           "#d0d1d2", "#e0e1e2" }));
}

void tst_OxaLabelText::givesLinksTheirColors()
{
    OxaLabel label;
    label.setTextFormat(Qt::RichText);
    label.setText(link);
    // Visited links take the focused colour, since a set has no state for them.
    QCOMPARE(label.text(), withLinkColors("#101112", "#505152", "#202122", link));
    const QString withPlaces = QStringLiteral("%1 <a>%2 %3 %4</a>");
    label.setText(withPlaces);
    QCOMPARE(label.text(), withLinkColors("#101112", "#505152", "#202122", withPlaces));
    const QString abbreviation = QStringLiteral("<abbr>i.e.</abbr>");
    label.setText(abbreviation);
    QCOMPARE(label.text(), withLinkColors("#101112", "#505152", "#202122", abbreviation));
}

void tst_OxaLabelText::leavesTextsWithoutLinksAndOtherFormatsAlone_data()
{
    QTest::addColumn<Qt::TextFormat>("format");
    QTest::addColumn<QString>("text");
    QTest::newRow("rich text without a link") << Qt::RichText << QStringLiteral("<b>a</b>");
    QTest::newRow("rich text with a link in capitals")
            << Qt::RichText << QStringLiteral("<A href=\"x\">it</A>");
    QTest::newRow("empty rich text") << Qt::RichText << QString();
    QTest::newRow("plain text with a link") << Qt::PlainText << link;
    QTest::newRow("text of either format with a link") << Qt::AutoText << link;
    QTest::newRow("markdown with a link") << Qt::MarkdownText << link;
}

void tst_OxaLabelText::leavesTextsWithoutLinksAndOtherFormatsAlone()
{
    QFETCH(const Qt::TextFormat, format);
    QFETCH(const QString, text);
    OxaLabel label(QStringLiteral("before"));
    label.setTextFormat(format);
    label.setText(text);
    QCOMPARE(label.text(), text);
}

void tst_OxaLabelText::takesTextsThroughThePropertyAndTheSlot()
{
    const QString colored = withLinkColors("#101112", "#505152", "#202122", link);
    OxaLabel label;
    label.setTextFormat(Qt::RichText);
    QVERIFY(label.setProperty("text", link));
    QCOMPARE(label.property("text").toString(), colored);
    label.setText(QString());
    QVERIFY(QMetaObject::invokeMethod(&label, "setText", Q_ARG(QString, link)));
    QCOMPARE(label.text(), colored);
}

void tst_OxaLabelText::dropsTheAlphaOfLinkColors()
{
    OxaThemeUtils::setAppOxaColorSets(storeOfLinks({ "#80101112" }));
    OxaLabel label;
    label.setTextFormat(Qt::RichText);
    label.setText(link);
    QCOMPARE(label.text(), withLinkColors("#101112", "#101112", "#101112", link));
}

void tst_OxaLabelText::setsTheTextAgainWhenTheFormatChanges()
{
    NotingLabel label;
    label.setText(link);
    label.texts.clear();
    label.setTextFormat(Qt::RichText);
    QCOMPARE(label.texts, QStringList({ link }));
    QCOMPARE(label.textFormat(), Qt::RichText);
    QCOMPARE(label.text(), withLinkColors("#101112", "#505152", "#202122", link));
    // The text as it was given, without the colours.
    label.setTextFormat(Qt::PlainText);
    QCOMPARE(label.texts, QStringList({ link, link }));
    QCOMPARE(label.text(), link);
}

void tst_OxaLabelText::setsNoTextForTheSameFormatOrAnEmptyText()
{
    NotingLabel label;
    label.setTextFormat(Qt::RichText);
    QCOMPARE(label.texts, QStringList());
    label.setText(link);
    label.setTextFormat(Qt::RichText);
    QCOMPARE(label.texts, QStringList({ link }));
}

void tst_OxaLabelText::setsTheFormatThroughTheProperty()
{
    NotingLabel label;
    label.setText(link);
    label.texts.clear();
    QVERIFY(label.setProperty("textFormat", QVariant::fromValue(Qt::RichText)));
    QCOMPARE(label.texts, QStringList({ link }));
}

void tst_OxaLabelText::recolorsLinksWhenTheThemeTypeChanges()
{
    NotingLabel label;
    label.setTextFormat(Qt::RichText);
    label.setText(link);
    label.texts.clear();
    label.setThemeType(QStringLiteral("inverted"));
    QCOMPARE(label.texts, QStringList({ link }));
    QCOMPARE(label.text(), withLinkColors("#a0a1a2", "#e0e1e2", "#b0b1b2", link));
}

void tst_OxaLabelText::takesTheColorsOfItsWindowsThemeType()
{
    QWidget window;
    window.setProperty("themeType", QStringLiteral("inverted"));
    OxaLabel label(&window);
    label.setTextFormat(Qt::RichText);
    label.setText(link);
    QCOMPARE(label.text(), withLinkColors("#a0a1a2", "#e0e1e2", "#b0b1b2", link));
}

void tst_OxaLabelText::setsTheTextAgainForRichTextOnly_data()
{
    QTest::addColumn<Qt::TextFormat>("format");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("rich text without a link")
            << Qt::RichText << QStringLiteral("a") << QStringList({ QStringLiteral("a") });
    QTest::newRow("empty rich text") << Qt::RichText << QString() << QStringList({ QString() });
    QTest::newRow("plain text with a link") << Qt::PlainText << link << QStringList();
    QTest::newRow("text of either format with a link") << Qt::AutoText << link << QStringList();
}

void tst_OxaLabelText::setsTheTextAgainForRichTextOnly()
{
    QFETCH(const Qt::TextFormat, format);
    QFETCH(const QString, text);
    NotingLabel label;
    label.setTextFormat(format);
    label.setText(text);
    label.texts.clear();
    label.setThemeType(QStringLiteral("dark"));
    QTEST(label.texts, "texts");
}

void tst_OxaLabelText::losesTheSelectionInRichTextWhenTheThemeTypeChanges_data()
{
    QTest::addColumn<Qt::TextFormat>("format");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("themeType");
    QTest::addColumn<QString>("selected");
    const QString bold = QStringLiteral("Read <b>it</b>.");
    const QString inverted = QStringLiteral("inverted");
    QTest::newRow("links in other colours") << Qt::RichText << link << inverted << QString();
    QTest::newRow("links in the same colours")
            << Qt::RichText << link << QStringLiteral("light") << QString();
    QTest::newRow("no links") << Qt::RichText << bold << inverted << QString();
    QTest::newRow("plain text keeps it")
            << Qt::PlainText << link << inverted << QStringLiteral("Read");
    QTest::newRow("text of either format keeps it")
            << Qt::AutoText << bold << inverted << QStringLiteral("Read");
}

void tst_OxaLabelText::losesTheSelectionInRichTextWhenTheThemeTypeChanges()
{
    QFETCH(const Qt::TextFormat, format);
    QFETCH(const QString, text);
    QFETCH(const QString, themeType);
    OxaLabel label;
    label.setTextInteractionFlags(Qt::TextSelectableByMouse);
    label.setTextFormat(format);
    label.setText(text);
    label.setSelection(0, 4);
    QCOMPARE(label.selectedText(), QStringLiteral("Read"));
    label.setThemeType(themeType);
    QTEST(label.selectedText(), "selected");
    label.sizeHint();
    QTEST(label.selectedText(), "selected");
}

void tst_OxaLabelText::setsNoTextAgainAfterClearSetNumOrSetPixmap_data()
{
    QTest::addColumn<Replacement>("change");
    QTest::newRow("nothing") << Replacement([](OxaLabel &label) { label.clear(); });
    QTest::newRow("a number") << Replacement([](OxaLabel &label) { label.setNum(7); });
    QTest::newRow("a picture") << Replacement([](OxaLabel &label) {
        QPixmap pixmap(3, 4);
        pixmap.fill(Qt::red);
        label.setPixmap(pixmap);
    });
}

void tst_OxaLabelText::setsNoTextAgainAfterClearSetNumOrSetPixmap()
{
    QFETCH(const Replacement, change);
    OxaLabel label;
    label.setTextFormat(Qt::RichText);
    label.setText(link);
    change(label);
    const QString text = label.text();
    const QSize pixmapSize = label.pixmap(Qt::ReturnByValue).size();
    label.setThemeType(QStringLiteral("inverted"));
    QCOMPARE(label.text(), text);
    label.setTextFormat(Qt::PlainText);
    QCOMPARE(label.text(), text);
    QCOMPARE(label.pixmap(Qt::ReturnByValue).size(), pixmapSize);
}

void tst_OxaLabelText::warnsAndTakesBlackForLinksWithoutTheirSet()
{
    const QByteArray warning = "ColorSet name does not exist!  \"button-hyperlink-text\"";
    OxaThemeUtils::setAppOxaColorSets({});
    QTest::ignoreMessage(QtWarningMsg, warning.constData());
    OxaLabel label;
    label.setTextFormat(Qt::RichText);
    label.setText(link);
    QCOMPARE(label.text(), withLinkColors("#000000", "#000000", "#000000", link));
}

UIELEMENTS_TEST_MAIN(tst_OxaLabelText)
#include "tst_oxalabel_text.moc"
