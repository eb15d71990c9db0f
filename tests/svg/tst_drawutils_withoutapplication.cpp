// SPDX-License-Identifier: Apache-2.0
#include "support/Pixels.h"
#include "support/TestMain.h"

#include <UiElements/svg/DrawUtils.h>

#include <QPainter>
#include <QTest>

/// DrawUtils in a process without any application object.
class tst_DrawUtilsWithoutApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paintsADottedFrame();
};

void tst_DrawUtilsWithoutApplication::paintsADottedFrame()
{
    constexpr auto keyboardFocus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    const QRect rect(2, 2, 8, 6);
    QImage image(12, 10, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    DrawUtils::drawFocusRect(&painter, keyboardFocus, rect, Qt::cyan, nullptr);
    DrawUtils::drawLegacyFocusRect(&painter, keyboardFocus, rect, Qt::cyan);
    painter.end();
    QCOMPARE(Pixels::boundsNear(image, Qt::red), rect);
    QCOMPARE(Pixels::countNear(image, Qt::red), 12);
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_DrawUtilsWithoutApplication)
#include "tst_drawutils_withoutapplication.moc"
