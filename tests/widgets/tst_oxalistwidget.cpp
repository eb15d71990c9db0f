// SPDX-License-Identifier: Apache-2.0
#include "LoadedList.h"
#include "support/TestApplication.h"

namespace {

using Act = void (*)(LoadedList &list);

void hide(LoadedList &list, std::initializer_list<int> rows)
{
    for (const int row : rows)
        list.item(row)->setHidden(true);
}

/// What is done with a list of 20 rows that is shown at its top, and what follows.
struct Step
{
    const char *name;
    Act act;
    const char *log;
    const char *rows; ///< Those that hold a widget.
};

const Step steps[] = {
    { "nothing", [](LoadedList &) {}, "", "0 1 2 3 4" },
    { "a pass with nothing to do", [](LoadedList &list) { list.updateCurrentVisibleListItems(); },
      "", "0 1 2 3 4" },
    { "half a row down, where the first row stays",
      [](LoadedList &list) { list.scrollToValue(10); }, "5", "0 1 2 3 4 5" },
    { "two rows down", [](LoadedList &list) { list.scrollToValue(40); }, "5 6", "2 3 4 5 6" },
    { "a page down", [](LoadedList &list) { list.scrollToValue(100); }, "5 6 7 8 9", "5 6 7 8 9" },
    { "to the bottom", [](LoadedList &list) { list.scrollToValue(300); }, "15 16 17 18 19",
      "15 16 17 18 19" },
    { "down and back, where the row behind the last stays",
      [](LoadedList &list) {
          list.scrollToValue(40);
          list.scrollToValue(0);
      },
      "5 6 0 1", "0 1 2 3 4 5" },
    { "with a margin, whose upper rows stay and whose lower ones are not made",
      [](LoadedList &list) {
          list.setLoadExtraItemsNumber(3);
          list.scrollToValue(80);
      },
      "5 6 7 8", "1 2 3 4 5 6 7 8" },
    { "with a margin, upwards",
      [](LoadedList &list) {
          list.setLoadExtraItemsNumber(2);
          list.scrollToValue(80);
          list.scrollToValue(20);
      },
      "5 6 7 8 1", "1 2 3 4 5 6 7 8" },
    { "with an endless margin",
      [](LoadedList &list) {
          list.setLoadExtraItemsNumber(INT_MAX);
          list.scrollToValue(300);
      },
      "15 16 17 18 19", "0 1 2 3 4 15 16 17 18 19" },
    { "hidden rows, which do not end the walk",
      [](LoadedList &list) {
          hide(list, { 1, 5, 6 });
          list.updateCurrentVisibleListItems();
      },
      "7", "0 1 2 3 4 7" },
    { "rows hidden while they are off the screen",
      [](LoadedList &list) {
          hide(list, { 10, 11 });
          list.scrollToValue(180);
      },
      "9 12 13 14 15", "9 12 13 14 15" },
    { "loading that is not dynamic any more, where widgets stay",
      [](LoadedList &list) {
          list.setItemWidgetsDynamicLoadingEnabled(false);
          list.scrollToValue(100);
      },
      "", "0 1 2 3 4" },
    { "loading that is made dynamic twice",
      [](LoadedList &list) {
          list.setItemWidgetsDynamicLoadingEnabled(true);
          list.setItemWidgetsDynamicLoadingEnabled(false);
          list.scrollToValue(100);
      },
      "", "0 1 2 3 4" },
    { "between beginInsert() and endInsert()",
      [](LoadedList &list) {
          list.beginInsert();
          list.scrollToValue(100);
      },
      "", "0 1 2 3 4" },
    { "after endInsert()",
      [](LoadedList &list) {
          list.beginInsert();
          list.scrollToValue(100);
          list.endInsert();
      },
      "5 6 7 8 9", "5 6 7 8 9" },
    { "a row inserted above, at the next pass",
      [](LoadedList &list) {
          list.insertItem(0, LoadedList::makeItem(QStringLiteral("new")));
          list.updateCurrentVisibleListItems();
      },
      "new", "new 0 1 2 3 4" },
    { "rows inserted above the view while the user reads",
      [](LoadedList &list) {
          list.scrollToValue(100);
          list.beginInsert();
          for (int i = 0; i < 3; ++i)
              list.insertItem(0, LoadedList::makeItem(QStringLiteral("new")));
          list.endInsert();
      },
      "5 6 7 8 9 2 3 4", "2 3 4 5 6 7" },
    { "a row removed",
      [](LoadedList &list) {
          list.removeItem(1);
          list.updateCurrentVisibleListItems();
      },
      "5", "0 2 3 4 5" },
    { "no row removed",
      [](LoadedList &list) {
          list.removeItem(-1);
          list.removeItem(20);
      },
      "", "0 1 2 3 4" },
    { "a row taken away by Qt's function",
      [](LoadedList &list) {
          delete list.takeItem(1);
          list.updateCurrentVisibleListItems();
          list.resize(90, 100);
      },
      "5 | 0 2 3 4 5", "0 2 3 4 5" },
    { "all rows cleared and others inserted",
      [](LoadedList &list) {
          list.clear();
          list.resize(90, 100);
          list.fill(2);
      },
      "0 1", "0 1" },
    { "a larger view", [](LoadedList &list) { list.resize(100, 140); }, "5 6", "0 1 2 3 4 5 6" },
    { "a wider view", [](LoadedList &list) { list.resize(110, 100); }, " | 0 1 2 3 4",
      "0 1 2 3 4" },
    { "a wider view of rows without widgets",
      [](LoadedList &list) {
          list.setItemWidgetsDynamicLoadingEnabled(false);
          list.clear();
          list.fill(3);
          list.resize(110, 100);
      },
      "", "" },
    { "shown again", [](LoadedList &list) { list.setVisible(true); }, "visible", "0 1 2 3 4" },
    { "hidden", [](LoadedList &list) { list.setVisible(false); }, "visible", "0 1 2 3 4" },
    { "hidden twice",
      [](LoadedList &list) {
          list.setVisible(false);
          list.setVisible(false);
      },
      "visible visible", "0 1 2 3 4" },
    { "hidden, filled and shown",
      [](LoadedList &list) {
          list.hide();
          list.clear();
          list.fill(2);
          list.show();
      },
      "visible 0 1 visible", "0 1" },
    { "rows of unlike heights",
      [](LoadedList &list) {
          list.item(0)->setSizeHint(QSize(10, 50));
          list.item(1)->setSizeHint(QSize(10, 5));
          list.item(2)->setSizeHint(QSize(10, 30));
          list.updateCurrentVisibleListItems();
          list.scrollToValue(52);
      },
      "5 6", "1 2 3 4 5 6" },
    { "a row without height, which does not end the walk",
      [](LoadedList &list) {
          list.item(6)->setSizeHint(QSize(10, 0));
          list.scrollToValue(100);
      },
      "5 6 7 8 9 10", "5 6 7 8 9 10" },
    { "a row that is not as wide as the view",
      [](LoadedList &list) {
          list.item(5)->setSizeHint(QSize(0, 20));
          list.scrollToValue(20);
      },
      "5", "1 2 3 4 5" },
};

} // namespace

Q_DECLARE_METATYPE(const Step *)

/// The passes of a list: which rows are asked for, and which keep their widgets.
class tst_OxaListWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsItsPropertiesAndTheirDefaults();
    void loadsTheRowsOnScreen_data();
    void loadsTheRowsOnScreen();
    void loadsAnEmptyList();
    void loadsWhileTheBarIsNotVisible();
    void resizesRowsInTheOrderOfTheirAddresses();
    void followsSizeHintsSetWhileRowsAreAskedFor();
    void followsSizeHintsSetWhileResized();
    void loadsWhereASlotScrolls();
    void losesTheWidgetOfARowThatASlotScrollsAway();
};

void tst_OxaListWidget::showsItsPropertiesAndTheirDefaults()
{
    OxaListWidget list(nullptr, false);
    QCOMPARE(list.property("itemWidgetsDynamicLoadingEnabled"), QVariant(false));
    QCOMPARE(list.property("scrollToBottomAutomatically"), QVariant(false));
    QCOMPARE(list.property("loadExtraItemsNumber"), QVariant(0));
    list.setProperty("itemWidgetsDynamicLoadingEnabled", true);
    list.setProperty("scrollToBottomAutomatically", true);
    list.setProperty("loadExtraItemsNumber", 7);
    QVERIFY(list.isItemWidgetsDynamicLoadingEnabled());
    QVERIFY(list.isScrollToBottomAutomatically());
    QCOMPARE(list.getLoadExtraItemsNumber(), 7);
}

void tst_OxaListWidget::loadsTheRowsOnScreen_data()
{
    QTest::addColumn<const Step *>("step");
    for (const Step &step : steps)
        QTest::newRow(step.name) << &step;
}

void tst_OxaListWidget::loadsTheRowsOnScreen()
{
    QFETCH(const Step *const, step);
    LoadedList list(20);
    list.show();
    QCOMPARE(list.takeLog(), QStringLiteral("0 1 2 3 4 visible | 0 1 2 3 4"));
    step->act(list);
    QCOMPARE(list.takeLog(), QString::fromLatin1(step->log));
    QCOMPARE(list.rowsWithWidgets(), QString::fromLatin1(step->rows));
}

void tst_OxaListWidget::loadsAnEmptyList()
{
    LoadedList list;
    list.show();
    list.updateCurrentVisibleListItems();
    list.beginInsert();
    list.endInsert();
    QCOMPARE(list.takeLog(), QStringLiteral("visible"));
}

void tst_OxaListWidget::loadsWhileTheBarIsNotVisible()
{
    LoadedList list;
    list.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    list.show();
    list.takeLog();
    for (int row = 0; row < 3; ++row)
        list.insertItem(0, LoadedList::makeItem(QString::number(row)));
    QCOMPARE(list.takeLog(), QStringLiteral("0 1 2"));
    QCOMPARE(list.rowsWithWidgets(), QStringLiteral("2 1 0"));
}

void tst_OxaListWidget::resizesRowsInTheOrderOfTheirAddresses()
{
    LoadedList list(20);
    list.show();
    std::vector<QListWidgetItem *> asked;
    connect(&list, &OxaListWidget::updateItemSize, this,
            [&asked](QListWidgetItem *item) { asked.push_back(item); });
    list.resize(120, 100);
    QCOMPARE(asked.size(), std::size_t(5));
    QVERIFY(std::is_sorted(asked.begin(), asked.end(), std::less<>()));
}

void tst_OxaListWidget::followsSizeHintsSetWhileRowsAreAskedFor()
{
    LoadedList list;
    const auto makeLabel = list.makeWidget;
    list.makeWidget = [makeLabel](QListWidgetItem *item) {
        makeLabel(item);
        item->setSizeHint(QSize(10, 40));
    };
    list.fill(20);
    list.show();
    QCOMPARE(list.takeLog(), QStringLiteral("0 1 2 visible | 0 1 2"));
    QCOMPARE(list.visualItemRect(list.item(2)), QRect(0, 80, list.viewport()->width(), 40));
    list.scrollToValue(40);
    QCOMPARE(list.takeLog(), QStringLiteral("3"));
}

void tst_OxaListWidget::followsSizeHintsSetWhileResized()
{
    LoadedList list(20);
    list.show();
    connect(&list, &OxaListWidget::updateItemSize, this,
            [](QListWidgetItem *item) { item->setSizeHint(QSize(10, 10)); });
    list.takeLog();
    list.resize(120, 100);
    list.takeLog();
    QTRY_COMPARE(list.rowsWithWidgets(), QStringLiteral("0 1 2 3 4 5 6 7"));
    QCOMPARE(list.takeLog(), QStringLiteral("5 6 7"));
    QCOMPARE(list.itemWidget(list.item(6))->geometry(), list.visualItemRect(list.item(6)));
}

void tst_OxaListWidget::loadsWhereASlotScrolls()
{
    LoadedList list(20);
    list.show();
    list.takeLog();
    const auto makeLabel = list.makeWidget;
    list.makeWidget = [&list, makeLabel](QListWidgetItem *item) {
        makeLabel(item);
        if (item->text() == QLatin1String("5"))
            list.scrollToValue(200);
    };
    list.scrollToValue(20);
    QCOMPARE(list.takeLog(), QStringLiteral("5 10 11 12 13 14 6 7 8 9"));
}

void tst_OxaListWidget::losesTheWidgetOfARowThatASlotScrollsAway()
{
    LoadedList list(20);
    list.show();
    const auto makeLabel = list.makeWidget;
    list.makeWidget = [&list, makeLabel](QListWidgetItem *item) {
        if (item->text() == QLatin1String("5"))
            list.scrollToValue(200);
        makeLabel(item);
    };
    list.scrollToValue(20);
    list.updateCurrentVisibleListItems();
    QCOMPARE(list.rowsWithWidgets(), QStringLiteral("10 11 12 13 14"));
}

UIELEMENTS_TEST_MAIN(tst_OxaListWidget)
#include "tst_oxalistwidget.moc"
