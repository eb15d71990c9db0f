// SPDX-License-Identifier: Apache-2.0
#include <UiElements/svg/DrawUtils.h>

#include <QTest>

class tst_DrawUtilsGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fitsARectangleToARatioAroundItsCentre_data();
    void fitsARectangleToARatioAroundItsCentre();
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

QTEST_APPLESS_MAIN(tst_DrawUtilsGeometry)
#include "tst_drawutils_geometry.moc"
