// SPDX-License-Identifier: Apache-2.0
#include "support/Pixels.h"
#include "support/TestMain.h"

#include <UiElements/svg/DrawUtils.h>

#include <QTest>

#include <cmath>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// True when both have the same numbers, a NaN included.
bool isSame(const QRectF &left, const QRectF &right)
{
    const auto same = [](double a, double b) { return (std::isnan(a) && std::isnan(b)) || a == b; };
    return same(left.x(), right.x()) && same(left.y(), right.y())
            && same(left.width(), right.width()) && same(left.height(), right.height());
}

} // namespace

class tst_DrawUtilsGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fitsARectangleToARatioAroundItsCentre_data();
    void fitsARectangleToARatioAroundItsCentre();
    void leavesARectangleThatCannotBeFitted_data();
    void leavesARectangleThatCannotBeFitted();
    void scalesAPixmapToARectangle_data();
    void scalesAPixmapToARectangle();
    void givesANullPixmapWhereThereIsNoSize_data();
    void givesANullPixmapWhereThereIsNoSize();
    void smoothsAPixmapThatItScales();
};

void tst_DrawUtilsGeometry::fitsARectangleToARatioAroundItsCentre_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<double>("aspectRatio");
    QTest::addColumn<QRectF>("fitted");
    QTest::newRow("a wider ratio halves a square's height")
            << QRectF(0, 0, 100, 100) << 2.0 << QRectF(0, 25, 100, 50);
    QTest::newRow("a narrower ratio halves a square's width")
            << QRectF(0, 0, 100, 100) << 0.5 << QRectF(25, 0, 50, 100);
    QTest::newRow("its own ratio changes nothing")
            << QRectF(3, 4, 60, 20) << 3.0 << QRectF(3, 4, 60, 20);
    QTest::newRow("a square in a wide rectangle")
            << QRectF(10, 20, 300, 100) << 1.0 << QRectF(110, 20, 100, 100);
    QTest::newRow("a square in a tall rectangle")
            << QRectF(10, 20, 100, 300) << 1.0 << QRectF(10, 120, 100, 100);
    QTest::newRow("a square in a rectangle that is hardly wider")
            << QRectF(0, 0, 100, 98) << 1.0 << QRectF(1, 0, 98, 98);
    QTest::newRow("a rectangle of negative position")
            << QRectF(-50, -50, 100, 100) << 4.0 << QRectF(-50, -12.5, 100, 25);
    QTest::newRow("parts of a pixel are kept")
            << QRectF(0.25, 0.5, 3, 3) << 0.5 << QRectF(1.0, 0.5, 1.5, 3);
    QTest::newRow("a rectangle without a height has no width either")
            << QRectF(0, 7, 100, 0) << 2.0 << QRectF(50, 7, 0, 0);
}

void tst_DrawUtilsGeometry::fitsARectangleToARatioAroundItsCentre()
{
    QFETCH(QRectF, rect);
    QFETCH(const double, aspectRatio);
    const QPointF centre = rect.center();
    DrawUtils::fitRectangle(rect, aspectRatio);
    QTEST(rect, "fitted");
    QCOMPARE(rect.center(), centre);
}

void tst_DrawUtilsGeometry::leavesARectangleThatCannotBeFitted_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<double>("aspectRatio");
    const QRectF rect(1, 2, 30, 40);
    QTest::newRow("empty") << QRectF(1, 2, 0, 0) << 2.0;
    QTest::newRow("infinitely wide") << QRectF(1, 2, infinity, 40) << 2.0;
    QTest::newRow("infinitely high") << QRectF(1, 2, 30, infinity) << 2.0;
    QTest::newRow("infinite both ways") << QRectF(1, 2, infinity, infinity) << 2.0;
    QTest::newRow("of no width") << QRectF(1, 2, notANumber, 40) << 2.0;
    QTest::newRow("a ratio that is not a number") << rect << notANumber;
    QTest::newRow("an infinite ratio without a height") << QRectF(1, 2, 30, 0) << infinity;
}

void tst_DrawUtilsGeometry::leavesARectangleThatCannotBeFitted()
{
    QFETCH(QRectF, rect);
    QFETCH(const double, aspectRatio);
    const QRectF before = rect;
    DrawUtils::fitRectangle(rect, aspectRatio);
    QVERIFY(isSame(rect, before));
}

void tst_DrawUtilsGeometry::scalesAPixmapToARectangle_data()
{
    QTest::addColumn<QSize>("pixmapSize");
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<double>("devicePixelRatio");
    QTest::addColumn<QRectF>("fitted");
    QTest::addColumn<QSize>("scaledSize");
    const QRectF square(10, 20, 100, 100);
    QTest::newRow("a wide one") << QSize(40, 20) << square << 1.0 << QRectF(10, 45, 100, 50)
                                << QSize(100, 50);
    QTest::newRow("a high one") << QSize(20, 40) << square << 1.0 << QRectF(35, 20, 50, 100)
                                << QSize(50, 100);
    QTest::newRow("a larger one") << QSize(400, 400) << square << 1.0 << square << QSize(100, 100);
    QTest::newRow("a ratio of 2") << QSize(40, 20) << square << 2.0 << QRectF(10, 45, 100, 50)
                                  << QSize(200, 100);
    QTest::newRow("parts of a pixel are truncated")
            << QSize(8, 8) << QRectF(0, 0, 10.5, 10.5) << 1.5 << QRectF(0, 0, 10.5, 10.5)
            << QSize(15, 15);
    // 100 by 25.2, of which 25 are left: as wide as that height allows.
    QTest::newRow("the ratio is kept after truncation")
            << QSize(500, 126) << square << 1.0 << QRectF(10, 57.4, 100, 25.2) << QSize(99, 25);
}

void tst_DrawUtilsGeometry::scalesAPixmapToARectangle()
{
    QFETCH(const QSize, pixmapSize);
    QFETCH(QRectF, rect);
    QFETCH(const double, devicePixelRatio);
    QPixmap pixmap(pixmapSize);
    pixmap.fill(Qt::red);
    const QPixmap scaled = DrawUtils::adjustPixmapToRect(pixmap, rect, devicePixelRatio);
    QTEST(rect, "fitted");
    QTEST(scaled.size(), "scaledSize");
    QCOMPARE(scaled.devicePixelRatio(), devicePixelRatio);
    QCOMPARE(Pixels::countNear(scaled.toImage(), Qt::red), scaled.width() * scaled.height());
    QCOMPARE(pixmap.size(), pixmapSize);
}

void tst_DrawUtilsGeometry::givesANullPixmapWhereThereIsNoSize_data()
{
    QTest::addColumn<QSize>("pixmapSize");
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<double>("devicePixelRatio");
    const QSize size(8, 8);
    const QRectF square(10, 20, 100, 100);
    QTest::newRow("a null pixmap") << QSize() << QRectF(10, 20, 100, 50) << 1.0;
    QTest::newRow("an empty rectangle") << size << QRectF(10, 20, 0, 0) << 1.0;
    QTest::newRow("an infinite rectangle") << size << QRectF(0, 0, infinity, infinity) << 1.0;
    QTest::newRow("a rectangle beyond int") << size << QRectF(0, 0, 1e12, 1e12) << 1.0;
    QTest::newRow("a rectangle of no width") << size << QRectF(0, 0, notANumber, 10) << 1.0;
    QTest::newRow("a negative rectangle") << size << QRectF(0, 0, -1e12, -1e12) << 1.0;
    QTest::newRow("a ratio that is not a number") << size << square << notANumber;
    QTest::newRow("an infinite ratio") << size << square << infinity;
    QTest::newRow("a ratio of zero") << size << square << 0.0;
}

void tst_DrawUtilsGeometry::givesANullPixmapWhereThereIsNoSize()
{
    QFETCH(const QSize, pixmapSize);
    QFETCH(QRectF, rect);
    QFETCH(const double, devicePixelRatio);
    const QRectF before = rect;
    const QPixmap pixmap(pixmapSize);
    QVERIFY(DrawUtils::adjustPixmapToRect(pixmap, rect, devicePixelRatio).isNull());
    QVERIFY(isSame(rect, before));
}

void tst_DrawUtilsGeometry::smoothsAPixmapThatItScales()
{
    QImage halves(2, 1, QImage::Format_RGB32);
    halves.setPixelColor(0, 0, Qt::black);
    halves.setPixelColor(1, 0, Qt::white);
    QRectF rect(0, 0, 40, 20);
    const QImage scaled = DrawUtils::adjustPixmapToRect(QPixmap::fromImage(halves), rect, 1.0)
                                  .toImage();
    QCOMPARE(scaled.pixelColor(0, 10), QColor(Qt::black));
    QCOMPARE(scaled.pixelColor(39, 10), QColor(Qt::white));
    QVERIFY(Pixels::countNear(scaled, Qt::gray) > 0);
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_DrawUtilsGeometry)
#include "tst_drawutils_geometry.moc"
