// SPDX-License-Identifier: Apache-2.0
#include "PaintedItems.h"
#include "support/TestApplication.h"

#include <UiElements/qml/OxaQmlHalfPill.h>

namespace {

using HalfPill = OxaQmlHalfPill;

const PropertyRow<HalfPill> properties[] = {
    { "backgroundColor", "QColor", "backgroundColorChanged()", "#00000000", "#ffff00", "'yellow'",
      [](HalfPill &pill) { pill.setBackgroundColor(Qt::yellow); }, true, true },
    { "borderColor", "QColor", "borderColorChanged()", "#00000000", "#0000ff", "'blue'",
      [](HalfPill &pill) { pill.setBorderColor(Qt::blue); }, true, true },
    { "borderBottom", "bool", "borderChanged()", "true", "false", "false", nullptr, false },
    { "borderLeft", "bool", "borderChanged()", "true", "false", "false", nullptr, false },
    { "borderRight", "bool", "borderChanged()", "true", "false", "false", nullptr, false },
    { "borderTop", "bool", "borderChanged()", "true", "false", "false", nullptr, false },
    { "borderWidth", "int", "borderChanged()", "1", "4", "4", nullptr, false },
    { "edge", "RoundEdge", "edgeChanged()", "Left", "None", "OxaHalfPill.None", nullptr, false },
};

} // namespace

/// The properties of a half pill from C++ and from QML, and when it is painted again.
class tst_OxaQmlHalfPill : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsProperties_data();
    void declaresItsProperties();
    void changesInCpp_data();
    void changesInCpp();
    void changesInQml_data();
    void changesInQml();
    void returnsItsColors();
    void emitsBeforeItRepaints();
    void mayBeDeletedInASlotOfASetter_data();
    void mayBeDeletedInASlotOfASetter();
};

void tst_OxaQmlHalfPill::declaresItsProperties_data() { PropertyRows::addRows(properties); }

void tst_OxaQmlHalfPill::declaresItsProperties()
{
    QFETCH(const int, row);
    PropertyRows::checkDeclaration(properties[row], row);
}

void tst_OxaQmlHalfPill::changesInCpp_data() { PropertyRows::addSetterRows(properties); }

void tst_OxaQmlHalfPill::changesInCpp()
{
    QFETCH(const int, row);
    PaintedItems::checkSetter(properties[row]);
}

void tst_OxaQmlHalfPill::changesInQml_data() { PropertyRows::addRows(properties); }

void tst_OxaQmlHalfPill::changesInQml()
{
    QFETCH(const int, row);
    PaintedItems::checkQml(properties[row]);
}

void tst_OxaQmlHalfPill::returnsItsColors()
{
    HalfPill pill;
    pill.setBackgroundColor(Qt::yellow);
    pill.setBorderColor(Qt::blue);
    QCOMPARE(pill.backgroundColor(), QColor(Qt::yellow));
    QCOMPARE(pill.borderColor(), QColor(Qt::blue));
}

void tst_OxaQmlHalfPill::emitsBeforeItRepaints()
{
    PaintedItems::Counted<HalfPill> pill;
    pill.setSize(QSizeF(60, 40));
    PaintedItems::Stage stage(pill);
    stage.picture();
    connect(&pill, &HalfPill::backgroundColorChanged, this, [&stage] { stage.picture(); });
    connect(&pill, &HalfPill::borderColorChanged, this, [&stage] { stage.picture(); });
    pill.setBackgroundColor(Qt::yellow);
    QCOMPARE(pill.paints, 1);
    pill.setBorderColor(Qt::blue); // Its slot paints the yellow.
    QCOMPARE(pill.paints, 2);
    stage.picture();
    QCOMPARE(pill.paints, 3);
}

void tst_OxaQmlHalfPill::mayBeDeletedInASlotOfASetter_data()
{
    PropertyRows::addSetterRows(properties);
}

void tst_OxaQmlHalfPill::mayBeDeletedInASlotOfASetter()
{
    QFETCH(const int, row);
    const QPointer<HalfPill> pill = new HalfPill;
    const auto die = [&pill] { delete pill.data(); };
    connect(pill, &HalfPill::backgroundColorChanged, this, die);
    connect(pill, &HalfPill::borderColorChanged, this, die);
    properties[row].set(*pill);
    QVERIFY(!pill);
}

UIELEMENTS_TEST_MAIN(tst_OxaQmlHalfPill)
#include "tst_oxaqmlhalfpill.moc"
