// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/TestApplication.h"

#include <UiElements/fonts/FontUtils.h>
#include <UiElements/svg/DrawUtils.h>

#include <QPainter>

namespace {

const QColor ground(40, 200, 40);
const QColor badge(200, 40, 40);
const QColor number(40, 40, 200);

QImage plain()
{
    QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    return image;
}

QImage withIndicator(const QPointF &topLeft, unsigned count)
{
    QPixmap pixmap = QPixmap::fromImage(plain());
    DrawUtils::drawUnreadIndicator(pixmap, topLeft, count);
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// Returns the picture of a badge at \a rect with \a text, on the plain background.
QImage badgeAt(const QRectF &rect, const QString &text = QString())
{
    QImage image = plain();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(badge);
    painter.drawRoundedRect(rect, rect.height() / 2, rect.height() / 2);
    // 32 / 1.6 = 20
    painter.setFont(FontUtils::getFontByPixelSize(20, FontUtils::SupportedFontFamily::Interface));
    painter.setPen(number);
    painter.drawText(rect, Qt::AlignHCenter, text);
    return image;
}

} // namespace

class tst_DrawUtilsUnreadIndicator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_stores.reset(); }

    void paintsADotFromThePointToTheCorner_data();
    void paintsADotFromThePointToTheCorner();
    void paintsNothingAtTheBottomRightCorner_data();
    void paintsNothingAtTheBottomRightCorner();
    void warnsOfAPointBeyondThePixmap_data();
    void warnsOfAPointBeyondThePixmap();
    void showsTheCountUpTo99_data();
    void showsTheCountUpTo99();
    void measuresTheTextByThePixmapsWidth();
    void centresTheNumberAcrossAndNotDown();
    void warnsOfColorsThatTheThemeLacks();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_DrawUtilsUnreadIndicator::init()
{
    const auto make = [](const char *name, const QColor &color) {
        OxaColorSet set(QString::fromLatin1(name), Qt::black);
        set.normal = color;
        return set;
    };
    m_stores = std::make_unique<StoreGuard>(
            ColorSets::storeOf({ make("oxa-unreadCountCircle-background", badge),
                                 make("oxa-unreadCountCircle-text", number) }));
}

void tst_DrawUtilsUnreadIndicator::paintsADotFromThePointToTheCorner_data()
{
    QTest::addColumn<QPointF>("topLeft");
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("all of the pixmap") << QPointF(0, 0) << QRectF(0, 0, 32, 32);
    QTest::newRow("a corner") << QPointF(20, 22) << QRectF(20, 22, 12, 10);
    QTest::newRow("between pixels") << QPointF(19.5, 20.25) << QRectF(19.5, 20.25, 12.5, 11.75);
    QTest::newRow("from a point left of and above the pixmap")
            << QPointF(-8, -8) << QRectF(-8, -8, 40, 40);
    QTest::newRow("at the right edge, without a width") << QPointF(32, 4) << QRectF(32, 4, 0, 28);
}

void tst_DrawUtilsUnreadIndicator::paintsADotFromThePointToTheCorner()
{
    QFETCH(const QPointF, topLeft);
    QFETCH(const QRectF, rect);
    QCOMPARE(withIndicator(topLeft, 0), badgeAt(rect));
}

void tst_DrawUtilsUnreadIndicator::paintsNothingAtTheBottomRightCorner_data()
{
    QTest::addColumn<unsigned>("count");
    QTest::newRow("a dot") << 0U;
    QTest::newRow("a number") << 5U;
}

void tst_DrawUtilsUnreadIndicator::paintsNothingAtTheBottomRightCorner()
{
    QFETCH(const unsigned, count);
    QCOMPARE(withIndicator(QPointF(32, 32), count), plain());
}

void tst_DrawUtilsUnreadIndicator::warnsOfAPointBeyondThePixmap_data()
{
    QTest::addColumn<QPointF>("topLeft");
    QTest::newRow("to the right") << QPointF(32.5, 4);
    QTest::newRow("below") << QPointF(4, 33);
    QTest::newRow("both") << QPointF(100, 100);
}

void tst_DrawUtilsUnreadIndicator::warnsOfAPointBeyondThePixmap()
{
    QFETCH(const QPointF, topLeft);
    QTest::ignoreMessage(QtWarningMsg, "unreadIndicatorTopLeft out of bounds!");
    // The dot has the pixmap's size and starts at its centre.
    QCOMPARE(withIndicator(topLeft, 0), badgeAt(QRectF(16, 16, 32, 32)));
}

void tst_DrawUtilsUnreadIndicator::showsTheCountUpTo99_data()
{
    QTest::addColumn<unsigned>("count");
    QTest::addColumn<QString>("text");
    QTest::newRow("0 is a plain dot") << 0U << QString();
    QTest::newRow("1") << 1U << QStringLiteral("1");
    QTest::newRow("99") << 99U << QStringLiteral("99");
    QTest::newRow("100 is 99 without a plus") << 100U << QStringLiteral("99");
    QTest::newRow("the largest number is 99")
            << std::numeric_limits<unsigned>::max() << QStringLiteral("99");
}

void tst_DrawUtilsUnreadIndicator::showsTheCountUpTo99()
{
    QFETCH(const unsigned, count);
    QFETCH(const QString, text);
    const QRectF rect(2, 4, 30, 28);
    const QImage image = withIndicator(rect.topLeft(), count);
    QCOMPARE(image, badgeAt(rect, text));
    QCOMPARE(image == badgeAt(rect), text.isEmpty());
}

void tst_DrawUtilsUnreadIndicator::measuresTheTextByThePixmapsWidth()
{
    const auto numberHeight = [](const QSize &size) {
        QPixmap pixmap(size);
        pixmap.fill(ground);
        DrawUtils::drawUnreadIndicator(pixmap, QPointF(0, 0), 8);
        return Pixels::boundsNear(pixmap.toImage(), number).height();
    };
    QVERIFY(numberHeight(QSize(32, 64)) > 0);
    QVERIFY(numberHeight(QSize(64, 64)) > numberHeight(QSize(32, 64)));
    QCOMPARE(numberHeight(QSize(64, 64)), numberHeight(QSize(64, 100)));
}

void tst_DrawUtilsUnreadIndicator::centresTheNumberAcrossAndNotDown()
{
    QPixmap pixmap(40, 120);
    pixmap.fill(ground);
    DrawUtils::drawUnreadIndicator(pixmap, QPointF(0, 0), 8);
    const QRect bounds = Pixels::boundsNear(pixmap.toImage(), number);
    QVERIFY(bounds.isValid() && qAbs(bounds.center().x() - 20) <= 1);
    QVERIFY(bounds.bottom() < 40);
}

void tst_DrawUtilsUnreadIndicator::warnsOfColorsThatTheThemeLacks()
{
    const StoreGuard empty({});
    QTest::ignoreMessage(QtWarningMsg,
                         "ColorSet name does not exist!  "
                         "\"oxa-unreadCountCircle-background\"");
    withIndicator(QPointF(0, 0), 0);
    QTest::ignoreMessage(QtWarningMsg,
                         "ColorSet name does not exist!  "
                         "\"oxa-unreadCountCircle-background\"");
    QTest::ignoreMessage(QtWarningMsg,
                         "ColorSet name does not exist!  \"oxa-unreadCountCircle-text\"");
    withIndicator(QPointF(0, 0), 1);
}

UIELEMENTS_TEST_MAIN(tst_DrawUtilsUnreadIndicator)
#include "tst_drawutils_unreadindicator.moc"
