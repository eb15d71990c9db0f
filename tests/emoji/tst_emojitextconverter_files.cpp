// SPDX-License-Identifier: Apache-2.0
#include "EmojiNotation.h"
#include "support/EmojiArtwork.h"
#include "support/TestMain.h"

#include <UiElements/emoji/EmojiTextConverter.h>

#include <QColor>
#include <QImage>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QUrl>

namespace {

const QString face = EmojiNotation::text({ 0x1F600 });
const QString laterFace = EmojiNotation::text({ 0x1F602 });
const QString brokenFace = EmojiNotation::text({ 0x1F603 });
const QString emptyFace = EmojiNotation::text({ 0x1F604 });
const QString key = EmojiNotation::text({ '#', 0xFE0F, 0x20E3 });

QString converted(const QString &text, EmojiTagFormat format = EmojiTagFormat::Placeholder)
{
    EmojiTextConverter converter(20, 1.5);
    converter.setTagFormat(format);
    return converter.convert(text);
}

} // namespace

/// The tags that EmojiTextConverter writes, and when it finds their files.
class tst_EmojiTextConverterFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_artwork.reset(); }

    void writesPlaceholdersByDefault();
    void writesTagsThatQtCanDisplay();
    void writesNoTagInAnUnknownFormat();
    void leavesASequenceTextWhenItsFileIsInvalid_data();
    void leavesASequenceTextWhenItsFileIsInvalid();
    void findsAFileThatIsAddedLater();
    void missesAFileThatIsUnregistered();
    void drawsAFileThatIsReplaced();
    void missesAllFilesOfACollectionThatIsUnregistered();
    void rechecks64FilesAtMost();

private:
    std::unique_ptr<EmojiArtwork> m_artwork;
};

void tst_EmojiTextConverterFiles::initTestCase()
{
    m_artwork = std::make_unique<EmojiArtwork>(
            QStringList { QStringLiteral("1f600"), QStringLiteral("0023-fe0f-20e3") });
}

void tst_EmojiTextConverterFiles::writesPlaceholdersByDefault()
{
    QCOMPARE(EmojiTextConverter(20, 1.0).tagFormat(), EmojiTagFormat::Placeholder);
    QCOMPARE(converted(QStringLiteral("Hi") + face),
             QStringLiteral("Hi<img src=\"svgFile=:/emojis/1f600.svg\U0001F600unicode\" "
                            "alt=\"\U0001F600\">"));
    QCOMPARE(converted(key),
             QStringLiteral("<img src=\"svgFile=:/emojis/0023-fe0f-20e3.svg#\uFE0F\u20E3unicode\" "
                            "alt=\"#\uFE0F\u20E3\">"));
}

void tst_EmojiTextConverterFiles::writesTagsThatQtCanDisplay()
{
    QCOMPARE(converted(QStringLiteral("Hi") + face, EmojiTagFormat::Resource),
             QStringLiteral("Hi<img src=\"qrc:/emojis/1f600.svg\" width=\"20\" height=\"20\" "
                            "align=\"middle\" alt=\"\U0001F600\">"));
}

void tst_EmojiTextConverterFiles::writesNoTagInAnUnknownFormat()
{
    EmojiTextConverter converter(20, 1.0);
    converter.setTagFormat(static_cast<EmojiTagFormat>(2));
    QTest::ignoreMessage(QtWarningMsg, "Unhandled image tag format!");
    QTest::ignoreMessage(QtWarningMsg, "Unhandled image tag format!");
    QCOMPARE(converter.convert(QLatin1Char('a') + face + QLatin1Char('b') + key),
             QStringLiteral("ab"));
    QCOMPARE(converter.svgFiles().size(), 2);
}

void tst_EmojiTextConverterFiles::leavesASequenceTextWhenItsFileIsInvalid_data()
{
    QTest::addColumn<QString>("emoji");
    QTest::addColumn<QString>("stem");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("a truncated file")
            << brokenFace << QStringLiteral("1f603") << QByteArray("<svg><path d=");
    QTest::newRow("an empty file") << emptyFace << QStringLiteral("1f604") << QByteArray();
}

void tst_EmojiTextConverterFiles::leavesASequenceTextWhenItsFileIsInvalid()
{
    QFETCH(const QString, emoji);
    QFETCH(const QString, stem);
    QFETCH(const QByteArray, content);
    const EmojiArtwork invalid({ stem }, content);
    QVERIFY(QFile::exists(QStringLiteral(":/emojis/%1.svg").arg(stem)));
    QCOMPARE(converted(emoji), emoji);
}

void tst_EmojiTextConverterFiles::findsAFileThatIsAddedLater()
{
    QCOMPARE(converted(laterFace), laterFace);
    const EmojiArtwork later({ QStringLiteral("1f602") });
    QCOMPARE(converted(laterFace), EmojiNotation::tag("1f602", laterFace));
}

void tst_EmojiTextConverterFiles::missesAFileThatIsUnregistered()
{
    const QString emoji = EmojiNotation::text({ 0x1F605 });
    {
        const EmojiArtwork artwork({ QStringLiteral("1f605") });
        QCOMPARE(converted(emoji), EmojiNotation::tag("1f605", emoji));
    }
    QCOMPARE(converted(emoji), emoji);
    const EmojiArtwork broken({ QStringLiteral("1f605") }, "<svg");
    QCOMPARE(converted(emoji), emoji);
}

void tst_EmojiTextConverterFiles::drawsAFileThatIsReplaced()
{
    // Of the same size, so that it is likely to have the same address.
    const QVector<QColor> colors = { Qt::red, Qt::blue, Qt::yellow };
    for (const QColor &color : colors) {
        const EmojiArtwork artwork({ QStringLiteral("1f606") },
                                   EmojiArtwork::square(color.name().toLatin1()));
        QTextDocument document;
        EmojiTextConverter converter(4, 1.0);
        converter.setHtml(&document, QString(),
                          converter.convert(EmojiNotation::text({ 0x1F606 })));
        const QTextFormat format = document.begin().begin().fragment().charFormat();
        const QUrl name(format.toImageFormat().name());
        const auto picture = document.resource(QTextDocument::ImageResource, name).value<QImage>();
        QCOMPARE(picture.pixelColor(2, 2), color);
    }
}

void tst_EmojiTextConverterFiles::missesAllFilesOfACollectionThatIsUnregistered()
{
    QStringList stems;
    QString text;
    for (uint codePoint = 0x1F400; codePoint < 0x1F400 + 100; ++codePoint) {
        stems += QString::number(codePoint, 16);
        text += EmojiNotation::text({ codePoint });
    }
    {
        const EmojiArtwork artwork(stems);
        QCOMPARE(converted(text).count(QLatin1String("<img")), 100);
    }
    QCOMPARE(converted(text), text);
}

void tst_EmojiTextConverterFiles::rechecks64FilesAtMost()
{
    QStringList stems;
    QString text;
    for (uint codePoint = 0x1F500; codePoint < 0x1F500 + 64; ++codePoint) {
        stems += QString::number(codePoint, 16);
        text += EmojiNotation::text({ codePoint });
    }
    const EmojiArtwork artwork(stems);
    const QString emoji = EmojiNotation::text({ 0x1F607 });
    const QString tag = EmojiNotation::tag("1f607", emoji);
    {
        const EmojiArtwork last({ QStringLiteral("1f607") });
        QVERIFY(converted(text + emoji).endsWith(tag));
    }
    QVERIFY(converted(text + text + emoji).endsWith(tag));
    QCOMPARE(converted(emoji), emoji);
    QVERIFY(converted(text + emoji).endsWith(emoji));
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_EmojiTextConverterFiles)
#include "tst_emojitextconverter_files.moc"
