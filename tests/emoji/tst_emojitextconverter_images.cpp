// SPDX-License-Identifier: Apache-2.0
#include "EmojiNotation.h"
#include "support/EmojiArtwork.h"
#include "support/RandomSeed.h"
#include "support/TestMain.h"

#include <UiElements/emoji/EmojiTextConverter.h>

#include <QImage>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QUrl>

namespace {

const QString face = EmojiNotation::text({ 0x1F600 });
const QString heart = EmojiNotation::text({ 0x2764, 0xFE0F });
const QString key = EmojiNotation::text({ '#', 0xFE0F, 0x20E3 });

/// Returns the formats of the images in \a document, one for each.
QVector<QTextImageFormat> imagesIn(const QTextDocument &document)
{
    QVector<QTextImageFormat> images;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto i = block.begin(); !i.atEnd(); ++i) {
            if (i.fragment().charFormat().isImageFormat())
                images.insert(images.size(), i.fragment().length(),
                              i.fragment().charFormat().toImageFormat());
        }
    }
    return images;
}

QImage pictureOf(const QTextDocument &document, const QTextImageFormat &image)
{
    return document.resource(QTextDocument::ImageResource, QUrl(image.name())).value<QImage>();
}

/// A document of \a markup whose placeholders have pictures of \a size at \a ratio.
std::unique_ptr<QTextDocument> documentOf(const QString &text, int size = 20, double ratio = 1.0)
{
    auto document = std::make_unique<QTextDocument>();
    EmojiTextConverter converter(size, ratio);
    document->setHtml(converter.convert(text));
    converter.insertImages(document.get());
    return document;
}

/// Returns the number behind the "|" in an image's name.
int numberOf(const QTextImageFormat &image)
{
    return image.name().section(QLatin1Char('|'), 1).toInt();
}

/// Returns the content of \a document as markup, without the numbers of its pictures.
QString describe(const QTextDocument &document)
{
    static const QRegularExpression numbers(QStringLiteral("\\|[0-9]+"));
    return document.toHtml().remove(numbers);
}

/// Describes a document that got \a text by EmojiTextConverter::setHtml().
QString describeSet(const QString &text)
{
    QTextDocument document;
    EmojiTextConverter converter(20, 1.0);
    converter.setHtml(&document, QString(), converter.convert(text));
    return describe(document);
}

/// Returns markup of emoji, text and nested elements; only inline ones if \a isInline is true.
QString randomMarkup(std::mt19937 &generator, int depth, bool isInline)
{
    static const QStringList leaves = { face,
                                        face,
                                        heart,
                                        key,
                                        QStringLiteral("a"),
                                        QStringLiteral(" "),
                                        QStringLiteral("\n"),
                                        QStringLiteral("\uFFFC"),
                                        QStringLiteral("\uE000"),
                                        QStringLiteral("&amp;"),
                                        QStringLiteral("<br>"),
                                        QStringLiteral("<img src=\"a.png\">") };
    static const QStringList elements = { QStringLiteral("<b>%1</b>"),
                                          QStringLiteral("<a href=\"x\">%1</a>"),
                                          QStringLiteral("<p>%1</p>"),
                                          QStringLiteral("<div style=\"color:red\">%1</div>"),
                                          QStringLiteral("<pre>%1</pre>"),
                                          QStringLiteral("<ul><li>%1</li></ul>"),
                                          QStringLiteral("<table><tr><td>%1</td></tr></table>") };
    QString markup;
    for (int length = randomFrom(generator, 0, 6); length > 0; --length) {
        if (depth > 0 && randomFrom(generator, 0, 2) == 0)
            markup += elements[randomFrom(generator, 0, isInline ? 1 : elements.size() - 1)].arg(
                    randomMarkup(generator, depth - 1, isInline));
        else
            markup += leaves[randomFrom(generator, 0, leaves.size() - 1)];
    }
    return markup;
}

} // namespace

/// The pictures that EmojiTextConverter puts into a document.
class tst_EmojiTextConverterImages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_artwork.reset(); }

    void keepsTheTextAroundThePictures();
    void namesEachPictureByItsEmojiAndANumber();
    void neverGivesANumberTwice();
    void givesPicturesTheSizeOfEmoji();
    void rendersForThePixelRatio_data();
    void rendersForThePixelRatio();
    void rendersNothingAtNoSize();
    void addsAResourceForEachPicture();
    void findsEmojiInAllParagraphs();
    void leavesOtherImagesAlone();
    void changesTheDocumentOnceForAllPictures();
    void restoresTheTextFromItsMarkup();
    void setsMarkupAsIfPicturesWereInsertedLater_data();
    void setsMarkupAsIfPicturesWereInsertedLater();
    void setsRandomMarkupAsIfPicturesWereInsertedLater();

private:
    std::unique_ptr<EmojiArtwork> m_artwork;
};

void tst_EmojiTextConverterImages::initTestCase()
{
    m_artwork = std::make_unique<EmojiArtwork>(QStringList { QStringLiteral("1f600"),
                                                             QStringLiteral("2764-fe0f"),
                                                             QStringLiteral("0023-fe0f-20e3") });
}

void tst_EmojiTextConverterImages::keepsTheTextAroundThePictures()
{
    const auto document = documentOf(QLatin1String("a ") + face + QLatin1String(" b ") + heart
                                     + QLatin1Char('c'));
    QCOMPARE(document->toPlainText(), QStringLiteral("a \uFFFC b \uFFFCc"));
    QCOMPARE(imagesIn(*document).size(), 2);
}

void tst_EmojiTextConverterImages::namesEachPictureByItsEmojiAndANumber()
{
    const auto document = documentOf(face + heart + key);
    const auto images = imagesIn(*document);
    QCOMPARE(images.size(), 3);
    const int number = numberOf(images[0]);
    QVERIFY(number > 0);
    QCOMPARE(images[0].name(), QStringLiteral("%1|%2").arg(face).arg(number));
    QCOMPARE(images[1].name(), QStringLiteral("%1|%2").arg(heart).arg(number + 1));
    QCOMPARE(images[2].name(), QStringLiteral("%1|%2").arg(key).arg(number + 2));
}

void tst_EmojiTextConverterImages::neverGivesANumberTwice()
{
    const auto first = documentOf(face + face);
    const auto second = documentOf(face);
    const auto images = imagesIn(*first) + imagesIn(*second);
    QCOMPARE(images.size(), 3);
    QCOMPARE(numberOf(images[1]), numberOf(images[0]) + 1);
    QCOMPARE(numberOf(images[2]), numberOf(images[1]) + 1);
}

void tst_EmojiTextConverterImages::givesPicturesTheSizeOfEmoji()
{
    const auto document = documentOf(face, 24, 2.0);
    const QTextImageFormat image = imagesIn(*document).constFirst();
    QCOMPARE(image.width(), 24.0);
    QCOMPARE(image.height(), 24.0);
    QCOMPARE(image.verticalAlignment(), QTextCharFormat::AlignBottom);
}

void tst_EmojiTextConverterImages::rendersForThePixelRatio_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<int>("edge");
    QTest::newRow("ratio 1") << 20 << 1.0 << 20;
    QTest::newRow("ratio 2") << 20 << 2.0 << 40;
    QTest::newRow("a fraction, truncated") << 21 << 1.25 << 26;
}

void tst_EmojiTextConverterImages::rendersForThePixelRatio()
{
    QFETCH(const int, size);
    QFETCH(const double, ratio);
    QFETCH(const int, edge);
    const auto document = documentOf(face, size, ratio);
    QImage expected(edge, edge, QImage::Format_ARGB32);
    expected.fill(Qt::red);
    QCOMPARE(pictureOf(*document, imagesIn(*document).constFirst()), expected);
}

void tst_EmojiTextConverterImages::rendersNothingAtNoSize()
{
    const auto document = documentOf(face, 0, 0.0);
    const QTextImageFormat image = imagesIn(*document).constFirst();
    QVERIFY(image.name().startsWith(face + QLatin1Char('|')));
    QVERIFY(pictureOf(*document, image).isNull());
}

void tst_EmojiTextConverterImages::addsAResourceForEachPicture()
{
    const auto document = documentOf(face + face + key);
    const auto images = imagesIn(*document);
    QCOMPARE(images.size(), 3);
    for (const QTextImageFormat &image : images)
        QVERIFY(!pictureOf(*document, image).isNull());
}

void tst_EmojiTextConverterImages::findsEmojiInAllParagraphs()
{
    const auto document = documentOf(face + QLatin1String("<p>a") + face + QLatin1String("</p><p>")
                                     + heart + QLatin1String("</p><table><tr><td>") + face
                                     + QLatin1String("</td></tr></table>"));
    const auto images = imagesIn(*document);
    QCOMPARE(images.size(), 4);
    for (const QTextImageFormat &image : images)
        QVERIFY(image.name().contains(QLatin1Char('|')));
}

void tst_EmojiTextConverterImages::leavesOtherImagesAlone()
{
    const QString other = QStringLiteral("<img src=\"other.png\">");
    const QString broken = QStringLiteral("<img src=\"svgFile=:/emojis/1f600\">");
    const QString endless = QStringLiteral("<img src=\"svgFile=:/emojis/1f600.svgx\">");
    const auto document = documentOf(other + face + broken + endless);
    QStringList names;
    const auto images = imagesIn(*document);
    for (const QTextImageFormat &image : images)
        names += image.name().section(QLatin1Char('|'), 0, 0);
    const QStringList expected = { QStringLiteral("other.png"), face,
                                   QStringLiteral("svgFile=:/emojis/1f600"),
                                   QStringLiteral("svgFile=:/emojis/1f600.svgx") };
    QCOMPARE(names, expected);
}

void tst_EmojiTextConverterImages::changesTheDocumentOnceForAllPictures()
{
    QTextDocument document;
    EmojiTextConverter converter(20, 1.0);
    document.setHtml(converter.convert(face + QLatin1Char('a') + face + heart));
    const QSignalSpy changes(&document, &QTextDocument::contentsChanged);
    converter.insertImages(&document);
    QCOMPARE(changes.size(), 1);
    // A second pass finds nothing to do.
    converter.insertImages(&document);
    QCOMPARE(changes.size(), 1);
}

void tst_EmojiTextConverterImages::restoresTheTextFromItsMarkup()
{
    const auto document = documentOf(QStringLiteral("text") + face + heart + key);
    const QString restored = EmojiTextConverter::restore(document->toHtml());
    QVERIFY2(restored.contains(QStringLiteral("text") + face + heart + key), qPrintable(restored));
}

void tst_EmojiTextConverterImages::setsMarkupAsIfPicturesWereInsertedLater_data()
{
    QTest::addColumn<QString>("text");
    const auto add = [](const char *name, const char *text) {
        QTest::newRow(name) << QString::fromUtf8(text);
    };
    add("nothing", "");
    add("emoji and words", "a \U0001F600 b\U0001F600\U0001F600 c");
    add("spaces", "  \U0001F600  \U0001F600 <b> \U0001F600 </b>  a");
    add("characters like those that stand for images", "\uFFFC\U0001F600\uFFFC\uE000\uE000");
    add("an image before private characters", "\U0001F600<img src=\"a.png\">\uE000\uE000");
    add("the entities of a mark", "\U0001F600&#xFFFC;&#xE000;");
    add("an emoji in an attribute", "<a title=\"\U0001F600\">a</a>\U0001F600");
    add("a lone less-than sign", "a < b \U0001F600 c \U0001F600");
    add("anchors", "<a name=\"x\">\U0001F600</a><a href=\"y\">\U0001F600</a>");
    add("hidden emoji", "<style>\U0001F600</style><!-- \U0001F600 -->\U0001F600");
    add("a tag that was cut", "\U0001F600<img src=\"svgFile=:/emojis/1f600.svgxuni\u2026");
}

void tst_EmojiTextConverterImages::setsMarkupAsIfPicturesWereInsertedLater()
{
    QFETCH(const QString, text);
    QCOMPARE(describeSet(text),
             describe(*documentOf(QLatin1String("<div >") + text + QLatin1String("</div>"))));
}

void tst_EmojiTextConverterImages::setsRandomMarkupAsIfPicturesWereInsertedLater()
{
    auto generator = seededGenerator();
    for (int i = 0; i < 1000; ++i) {
        const QString text = randomMarkup(generator, 3, i % 2 == 0);
        const QString expected = describe(
                *documentOf(QLatin1String("<div >") + text + QLatin1String("</div>")));
        QVERIFY2(describeSet(text) == expected, qPrintable(text));
    }
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_EmojiTextConverterImages)
#include "tst_emojitextconverter_images.moc"
