// SPDX-License-Identifier: Apache-2.0
#include "PaintedItems.h"
#include "support/TestApplication.h"

#include <UiElements/qml/OxaQmlBalloon.h>

namespace {

using Balloon = OxaQmlBalloon;

const PropertyRow<Balloon> properties[] = {
    { "arrowAlignment", "ArrowAlignment", "arrowAlignmentChanged()", "CenterAlignment",
      "TopAlignment", "OxaBalloon.TopAlignment",
      [](Balloon &balloon) { balloon.setArrowAlignment(Balloon::TopAlignment); }, true },
    { "arrowAnchor", "ArrowAnchor", "arrowAnchorChanged()", "Top", "Left", "OxaBalloon.Left",
      [](Balloon &balloon) { balloon.setArrowAnchor(Balloon::Left); }, true },
    { "backgroundColor", "QColor", "backgroundColorChanged()", "#00000000", "#ffff00", "'yellow'",
      [](Balloon &balloon) { balloon.setBackgroundColor(Qt::yellow); }, true },
    { "borderColor", "QColor", "borderColorChanged()", "#00000000", "#0000ff", "'blue'",
      [](Balloon &balloon) { balloon.setBorderColor(Qt::blue); }, true },
    { "arrowOffset", "int", "arrowOffsetChanged()", "0", "-7", "-7",
      [](Balloon &balloon) { balloon.setArrowOffset(-7); }, true },
    { "arrowSize", "int", "arrowSizeChanged()", "10", "12", "12",
      [](Balloon &balloon) { balloon.setArrowSize(12); }, false },
    { "radius", "int", "radiusChanged()", "0", "6", "6", nullptr, false },
    { "borderWidth", "int", "borderWidthChanged()", "1", "3", "3",
      [](Balloon &balloon) { balloon.setBorderWidth(3); }, false },
    { "topMargin", "int", "topMarginChanged()", "0", "5", "5",
      [](Balloon &balloon) { balloon.setTopMargin(5); }, false },
};

} // namespace

/// The properties of a balloon from C++ and from QML, and when it is painted again.
class tst_OxaQmlBalloon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsProperties_data();
    void declaresItsProperties();
    void changesInCpp_data();
    void changesInCpp();
    void changesInQml_data();
    void changesInQml();
    void returnsWhatWasSet();
    void repaintsOnceForSeveralChanges();
    void emitsBeforeItRepaints();
    void mayBeDeletedInASlotOfASetter_data();
    void mayBeDeletedInASlotOfASetter();
};

void tst_OxaQmlBalloon::declaresItsProperties_data() { PropertyRows::addRows(properties); }

void tst_OxaQmlBalloon::declaresItsProperties()
{
    QFETCH(const int, row);
    PropertyRows::checkDeclaration(properties[row], row);
}

void tst_OxaQmlBalloon::changesInCpp_data() { PropertyRows::addSetterRows(properties); }

void tst_OxaQmlBalloon::changesInCpp()
{
    QFETCH(const int, row);
    PaintedItems::checkSetter(properties[row]);
}

void tst_OxaQmlBalloon::changesInQml_data() { PropertyRows::addRows(properties); }

void tst_OxaQmlBalloon::changesInQml()
{
    QFETCH(const int, row);
    PaintedItems::checkQml(properties[row]);
}

void tst_OxaQmlBalloon::returnsWhatWasSet()
{
    Balloon balloon;
    for (const auto &property : properties) {
        if (property.set)
            property.set(balloon);
    }
    balloon.setProperty("radius", 6);
    QCOMPARE(balloon.arrowAlignment(), Balloon::TopAlignment);
    QCOMPARE(balloon.arrowAnchor(), Balloon::Left);
    QCOMPARE(balloon.backgroundColor(), QColor(Qt::yellow));
    QCOMPARE(balloon.borderColor(), QColor(Qt::blue));
    QCOMPARE(balloon.arrowOffset(), -7);
    QCOMPARE(balloon.arrowSize(), 12);
    QCOMPARE(balloon.radius(), 6);
    QCOMPARE(balloon.borderWidth(), 3);
    QCOMPARE(balloon.topMargin(), 5);
}

void tst_OxaQmlBalloon::repaintsOnceForSeveralChanges()
{
    PaintedItems::Counted<Balloon> balloon;
    balloon.setSize(QSizeF(60, 40));
    PaintedItems::Stage stage(balloon);
    stage.picture();
    balloon.setArrowOffset(4);
    balloon.setArrowAnchor(Balloon::Right);
    balloon.setBorderColor(Qt::red);
    stage.picture();
    QCOMPARE(balloon.paints, 2);
}

void tst_OxaQmlBalloon::emitsBeforeItRepaints()
{
    PaintedItems::Counted<Balloon> balloon;
    balloon.setSize(QSizeF(60, 40));
    PaintedItems::Stage stage(balloon);
    stage.picture();
    connect(&balloon, &Balloon::topMarginChanged, this, [&stage] { stage.picture(); });
    balloon.setTopMargin(5);
    QCOMPARE(balloon.paints, 1);
    stage.picture();
    QCOMPARE(balloon.paints, 2);
}

void tst_OxaQmlBalloon::mayBeDeletedInASlotOfASetter_data()
{
    PropertyRows::addSetterRows(properties);
}

void tst_OxaQmlBalloon::mayBeDeletedInASlotOfASetter()
{
    QFETCH(const int, row);
    const QPointer<Balloon> balloon = new Balloon;
    const auto die = [&balloon] { delete balloon.data(); };
    for (const auto changed : { &Balloon::arrowAlignmentChanged, &Balloon::arrowAnchorChanged,
                                &Balloon::backgroundColorChanged, &Balloon::borderColorChanged,
                                &Balloon::arrowOffsetChanged, &Balloon::arrowSizeChanged,
                                &Balloon::borderWidthChanged, &Balloon::topMarginChanged })
        connect(balloon, changed, this, die);
    properties[row].set(*balloon);
    QVERIFY(!balloon);
}

UIELEMENTS_TEST_MAIN(tst_OxaQmlBalloon)
#include "tst_oxaqmlballoon.moc"
