// SPDX-License-Identifier: Apache-2.0
#include "EmojiNotation.h"
#include "support/EmojiArtwork.h"

#include <UiElements/emoji/EmojiTextConverter.h>

#include <QImage>
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
    void tellsOfAllPicturesAtOnce();
    void restoresTheTextFromItsMarkup();

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
    QTest::newRow("a pixel to the pixel") << 20 << 1.0 << 20;
    QTest::newRow("two") << 20 << 2.0 << 40;
    QTest::newRow("a fraction, cut off") << 21 << 1.25 << 26;
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

void tst_EmojiTextConverterImages::tellsOfAllPicturesAtOnce()
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

QTEST_MAIN(tst_EmojiTextConverterImages)
#include "tst_emojitextconverter_images.moc"
