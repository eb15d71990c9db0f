// SPDX-License-Identifier: Apache-2.0
#include "PlainFlow.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/layouts/AutoGridLayout.h>
#include <UiElements/layouts/FixedItemRatioLayoutNotSupportScroll.h>
#include <UiElements/layouts/SmartLayout.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QTest>

namespace {

using Ratio = FixedItemRatioLayoutNotSupportScroll;

const QMargins margins(1, 2, 3, 4);
const QMargins exchanged(3, 2, 1, 4);

QString placed(FlowLayout &layout)
{
    Blocks::fill(layout, { { 10, 10 }, { 20, 10 }, { 30, 10 } });
    layout.setGeometry(QRect(0, 0, 100, 100));
    return Blocks::text(layout);
}

} // namespace

/// What a layout makes of the application's layout direction.
class tst_FlowLayoutDirection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exchangesItsMarginsWhenTheDirectionChanges();
    void restoresItsMarginsWhenItChangesBack();
    void keepsItsMarginsWhenItIsMadeRightToLeft();
    void exchangesWhatTheMarginsAreByThen();
    void followsWithoutAParentToo();
    void isExchangedBackByAnOxaWidget();
    void invalidatesWhenTheDirectionChanges();
    void placesFromTheLeftInBothDirections();
};

void tst_FlowLayoutDirection::exchangesItsMarginsWhenTheDirectionChanges()
{
    QWidget window;
    const PlainFlow layout(&window, margins, 0, 0);
    QCOMPARE(layout.contentsMargins(), margins);
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    QCOMPARE(layout.contentsMargins(), exchanged);
}

void tst_FlowLayoutDirection::restoresItsMarginsWhenItChangesBack()
{
    const PlainFlow layout(margins, 0, 0);
    {
        const LayoutDirectionGuard direction(Qt::RightToLeft);
    }
    QCOMPARE(layout.contentsMargins(), margins);
}

void tst_FlowLayoutDirection::keepsItsMarginsWhenItIsMadeRightToLeft()
{
    auto direction = std::make_unique<LayoutDirectionGuard>(Qt::RightToLeft);
    const PlainFlow layout(margins, 0, 0);
    QCOMPARE(layout.contentsMargins(), margins);
    direction.reset();
    QCOMPARE(layout.contentsMargins(), exchanged);
}

void tst_FlowLayoutDirection::exchangesWhatTheMarginsAreByThen()
{
    PlainFlow layout(margins, 0, 0);
    layout.setContentsMargins(10, 20, 30, 40);
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    QCOMPARE(layout.contentsMargins(), QMargins(30, 20, 10, 40));
}

void tst_FlowLayoutDirection::followsWithoutAParentToo()
{
    const PlainFlow layout(margins, 0, 0);
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    QCOMPARE(layout.contentsMargins(), exchanged);
}

void tst_FlowLayoutDirection::isExchangedBackByAnOxaWidget()
{
    OxaWidget widget;
    const PlainFlow layout(&widget, margins, 0, 0);
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    QCOMPARE(layout.contentsMargins(), margins);
}

void tst_FlowLayoutDirection::invalidatesWhenTheDirectionChanges()
{
    PlainFlow layout(margins, 0, 0);
    layout.invalidations = 0;
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    QCOMPARE(layout.invalidations, 1);
}

void tst_FlowLayoutDirection::placesFromTheLeftInBothDirections()
{
    const QMargins equal(5, 5, 5, 5);
    const auto placedByAll = [&equal] {
        AutoGridLayout grid(equal, 2, 2);
        SmartLayout smart(nullptr, equal, 2, 2, Qt::AlignLeft, -1, false);
        Ratio ratio(equal, 2, 2);
        return placed(grid) + QLatin1Char('\n') + placed(smart) + QLatin1Char('\n') + placed(ratio);
    };
    const QString leftToRight = placedByAll();
    QVERIFY2(leftToRight.startsWith(QLatin1String("5,5 10x10 | 17,5 20x10 | 39,5 30x10")),
             qPrintable(leftToRight));
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    QCOMPARE(placedByAll(), leftToRight);
}

UIELEMENTS_TEST_MAIN(tst_FlowLayoutDirection)
#include "tst_flowlayout_direction.moc"
