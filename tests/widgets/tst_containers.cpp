// SPDX-License-Identifier: Apache-2.0
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/widgets/OxaDateTimeEdit.h>
#include <UiElements/widgets/OxaDialog.h>
#include <UiElements/widgets/OxaFrame.h>
#include <UiElements/widgets/OxaMainWindow.h>
#include <UiElements/widgets/OxaProgressBar.h>
#include <UiElements/widgets/OxaSlider.h>
#include <UiElements/widgets/OxaSplitter.h>
#include <UiElements/widgets/OxaStackedWidget.h>
#include <UiElements/widgets/OxaTimeEdit.h>

#include <QAccessible>

namespace {

using Make = QWidget *(*)();

/// Returns what an assistive technology is told of \a interface.
QString described(QAccessibleInterface *interface)
{
    QString text = interface->text(QAccessible::Name);
    auto *value = interface->valueInterface();
    if (value && value->currentValue().isValid())
        text += QStringLiteral(" %1 of %2 to %3")
                        .arg(value->currentValue().toString(), value->minimumValue().toString(),
                             value->maximumValue().toString());
    return text;
}

} // namespace

Q_DECLARE_METATYPE(Make)
Q_DECLARE_METATYPE(QAccessible::Role)

/// The classes that add nothing but constructors to what they share, and how assistive technology
/// sees them and those beside them.
class tst_Containers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void frameTakesParentAndWindowFlags();
    void splitterTakesItsOrientation();
    void stackTakesItsParent();
    void fieldTakesADateAndATime_data();
    void fieldTakesADateAndATime();
    void timeFieldTakesATime();
    void haveTheRolesAndNamesOfTheirKind_data();
    void haveTheRolesAndNamesOfTheirKind();
};

void tst_Containers::frameTakesParentAndWindowFlags()
{
    QWidget parent;
    const OxaFrame child(&parent);
    QCOMPARE(child.parentWidget(), &parent);
    QVERIFY(!child.isWindow());
    QCOMPARE(child.frameStyle(), QFrame().frameStyle());
    const OxaFrame tool(&parent, Qt::Tool);
    QCOMPARE(tool.parentWidget(), &parent);
    QCOMPARE(tool.windowType(), Qt::Tool);
}

void tst_Containers::splitterTakesItsOrientation()
{
    QWidget parent;
    const OxaSplitter byDefault(&parent);
    QCOMPARE(byDefault.parentWidget(), &parent);
    QCOMPARE(byDefault.orientation(), Qt::Horizontal);
    const OxaSplitter vertical(Qt::Vertical, &parent);
    QCOMPARE(vertical.parentWidget(), &parent);
    QCOMPARE(vertical.orientation(), Qt::Vertical);
}

void tst_Containers::stackTakesItsParent()
{
    QWidget parent;
    const OxaStackedWidget stack(&parent);
    QCOMPARE(stack.parentWidget(), &parent);
    QCOMPARE(stack.count(), 0);
}

void tst_Containers::fieldTakesADateAndATime_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QDateTime>("shown");
    QTest::addColumn<bool>("hasDate");
    QTest::addColumn<bool>("hasTime");
    const auto add = [](const char *name, Make make, const QDateTime &shown, bool hasDate,
                        bool hasTime) {
        QTest::newRow(name) << make << shown << hasDate << hasTime;
    };
    const QDate day(2021, 5, 4);
    const QDate day2000(2000, 1, 1);
    const QTime midnight(0, 0);
    const QTime noon(12, 30);
    add(
            "nothing", []() -> QWidget * { return new OxaDateTimeEdit; }, { day2000, midnight },
            true, true);
    add(
            "a date and a time",
            []() -> QWidget * {
                return new OxaDateTimeEdit(QDateTime(QDate(2021, 5, 4), QTime(12, 30)));
            },
            { day, noon }, true, true);
    add(
            "a date", []() -> QWidget * { return new OxaDateTimeEdit(QDate(2021, 5, 4)); },
            { day, midnight }, true, false);
    add(
            "a time", []() -> QWidget * { return new OxaDateTimeEdit(QTime(12, 30)); },
            { day2000, noon }, false, true);
}

void tst_Containers::fieldTakesADateAndATime()
{
    QFETCH(const Make, make);
    QFETCH(const QDateTime, shown);
    const std::unique_ptr<QWidget> made(make());
    const auto *field = static_cast<OxaDateTimeEdit *>(made.get());
    QCOMPARE(field->dateTime(), shown);
    const auto shows = [field](QDateTimeEdit::Sections sections) {
        return bool(field->displayedSections() & sections);
    };
    QTEST(shows(QDateTimeEdit::DateSections_Mask), "hasDate");
    QTEST(shows(QDateTimeEdit::TimeSections_Mask), "hasTime");
}

void tst_Containers::timeFieldTakesATime()
{
    QWidget parent;
    const OxaTimeEdit midnight(&parent);
    QCOMPARE(midnight.parentWidget(), &parent);
    QCOMPARE(midnight.time(), QTime(0, 0));
    const OxaTimeEdit noon(QTime(12, 30), &parent);
    QCOMPARE(noon.parentWidget(), &parent);
    QCOMPARE(noon.time(), QTime(12, 30));
}

void tst_Containers::haveTheRolesAndNamesOfTheirKind_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QAccessible::Role>("role");
    QTest::addColumn<QString>("text");
    const QString name = QStringLiteral("Settings");
    QTest::newRow("OxaMainWindow")
            << Make([]() -> QWidget * { return new OxaMainWindow; }) << QAccessible::Window << name;
    QTest::newRow("OxaDialog") << Make([]() -> QWidget * { return new OxaDialog; })
                               << QAccessible::Dialog << name;
    QTest::newRow("OxaFrame: a window of its own")
            << Make([]() -> QWidget * { return new OxaFrame; }) << QAccessible::Window << name;
    QTest::newRow("OxaSplitter") << Make([]() -> QWidget * { return new OxaSplitter; })
                                 << QAccessible::Splitter << name;
    QTest::newRow("OxaStackedWidget") << Make([]() -> QWidget * { return new OxaStackedWidget; })
                                      << QAccessible::LayeredPane << name;
    QTest::newRow("OxaDateTimeEdit") << Make([]() -> QWidget * { return new OxaDateTimeEdit; })
                                     << QAccessible::SpinBox << name;
    QTest::newRow("OxaTimeEdit") << Make([]() -> QWidget * { return new OxaTimeEdit; })
                                 << QAccessible::SpinBox << name;
    QTest::newRow("OxaSlider") << Make([]() -> QWidget * { return new OxaSlider; })
                               << QAccessible::Slider << name + QStringLiteral(" 0 of 0 to 99");
    QTest::newRow("OxaProgressBar") << Make([]() -> QWidget * {
        auto *bar = new OxaProgressBar(nullptr, 10);
        bar->setValue(30);
        return bar;
    }) << QAccessible::ProgressBar << name + QStringLiteral(" 30 of 0 to 100");
}

void tst_Containers::haveTheRolesAndNamesOfTheirKind()
{
    QFETCH(const Make, make);
    const StoreGuard stores({ { "oxa-progressbar", OxaColorSet(QStringLiteral("track"), Qt::gray) },
                              { "oxa-percentage-indicator-possessive",
                                OxaColorSet(QStringLiteral("bar"), Qt::red) } });
    const std::unique_ptr<QWidget> widget(make());
    widget->setAccessibleName(QStringLiteral("Settings"));
    auto *interface = QAccessible::queryAccessibleInterface(widget.get());
    QVERIFY(interface);
    QTEST(interface->role(), "role");
    QTEST(described(interface), "text");
}

UIELEMENTS_TEST_MAIN(tst_Containers)
#include "tst_containers.moc"
