// SPDX-License-Identifier: Apache-2.0
#include "IconTextPictures.h"
#include "support/Guards.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <UiElements/svg/DrawUtils.h>
#include <UiElements/svg/OxaSvgPushButton.h>

#include <QTextDocument>

using namespace IconTextPictures;

/// What only buttons paint: rich texts and pixmaps.
class tst_DrawUtilsIconTextButtons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paintsARichTextOnAButton();
    void paintsAPlainTextWithoutADocument_data();
    void paintsAPlainTextWithoutADocument();
    void paintsAPixmapInTheButtonsIconSize();
    void smoothsAPixmapThatItStretches();

private:
    SvgFiles m_files;
};

void tst_DrawUtilsIconTextButtons::paintsARichTextOnAButton()
{
    OxaSvgPushButton button(QStringLiteral("a<br><b>bcd</b><br>"
                                           "<font color='#ff8000'>efg</font>"));
    button.setTextFormat(Qt::RichText);
    QTextDocument document;
    document.setDocumentMargin(0.0);
    document.setHtml(button.text());
    const auto icon = makeIcon(m_files.square());
    QRect block;
    const QImage image = drawing(button, [&](QPainter *painter) {
        block = DrawUtils::drawSvgIconText(painter, &button, &document, optionFor(), icon,
                                           textColors);
    });
    const QSize size = document.size().toSize();
    QCOMPARE(block.size(), QSize(size.width() + 16, size.height()));
    QVERIFY(size.height() > 2 * button.fontMetrics().height());
    QCOMPARE(Faces::facesIn(image, textColors), QStringLiteral("normal"));
    QVERIFY(Pixels::countNear(image, QColor(0xff, 0x80, 0x00)) > 0);
}

void tst_DrawUtilsIconTextButtons::paintsAPlainTextWithoutADocument_data()
{
    QTest::addColumn<Qt::TextFormat>("format");
    QTest::addColumn<bool>("hasDocument");
    QTest::newRow("rich without a document") << Qt::RichText << false;
    QTest::newRow("plain with a document") << Qt::PlainText << true;
}

void tst_DrawUtilsIconTextButtons::paintsAPlainTextWithoutADocument()
{
    QFETCH(const Qt::TextFormat, format);
    QFETCH(const bool, hasDocument);
    OxaSvgPushButton button(QStringLiteral("<b>a</b>"));
    button.setTextFormat(format);
    QTextDocument document(QStringLiteral("something else"));
    const auto icon = makeIcon(m_files.square());
    drawing(button, [&](QPainter *painter) {
        const QRect block = DrawUtils::drawSvgIconText(painter, &button,
                                                       hasDocument ? &document : nullptr,
                                                       optionFor(), icon, textColors);
        QCOMPARE(block.width(), 16 + button.fontMetrics().horizontalAdvance(button.text()));
    });
}

void tst_DrawUtilsIconTextButtons::paintsAPixmapInTheButtonsIconSize()
{
    OxaSvgPushButton button(QStringLiteral("abc"));
    button.setIconSize(QSize(20, 10));
    QPixmap pixmap(4, 4);
    pixmap.fill(QColor(0xff, 0x80, 0x00));
    QRect block;
    const QImage image = drawing(button, [&](QPainter *painter) {
        block = DrawUtils::drawPixmapIconText(painter, &button, nullptr, optionFor(), pixmap,
                                              textColors);
    });
    const int textWidth = button.fontMetrics().horizontalAdvance(QStringLiteral("abc"));
    QCOMPARE(block.width(), 20 + textWidth);
    const QRect painted = Pixels::boundsNear(image, QColor(0xff, 0x80, 0x00));
    QCOMPARE(painted.size(), QSize(20, 10));
    QCOMPARE(painted.left(), block.left());
    QCOMPARE(Faces::facesIn(image, textColors), QStringLiteral("normal"));
    drawing(button, [&](QPainter *painter) {
        block = DrawUtils::drawPixmapIconText(painter, &button, nullptr, optionFor(), QPixmap(),
                                              textColors);
    });
    QCOMPARE(block.width(), textWidth - 1); // Like without an icon.
}

void tst_DrawUtilsIconTextButtons::smoothsAPixmapThatItStretches()
{
    OxaSvgPushButton button;
    button.setIconSize(QSize(40, 40));
    QImage halves(2, 1, QImage::Format_RGB32);
    halves.setPixelColor(0, 0, Qt::black);
    halves.setPixelColor(1, 0, Qt::white);
    const QImage image = drawing(button, [&](QPainter *painter) {
        DrawUtils::drawPixmapIconText(painter, &button, nullptr, optionFor(),
                                      QPixmap::fromImage(halves), textColors);
    });
    QVERIFY(Pixels::countNear(image, Qt::gray) > 0);
}

UIELEMENTS_TEST_MAIN(tst_DrawUtilsIconTextButtons)
#include "tst_drawutils_icontext_buttons.moc"
