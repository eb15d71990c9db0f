// SPDX-License-Identifier: Apache-2.0
#include "LoadedList.h"
#include "support/TestApplication.h"

#include <QLineEdit>
#include <QResizeEvent>

#include <memory>

namespace {

using List = std::unique_ptr<LoadedList>;
using Cause = void (*)(LoadedList &list);

/// Something that makes a list emit a signal, whose slot deletes the list.
struct Deletion
{
    const char *name;
    const char *signal;
    Cause cause;
};

void resizeEvent(LoadedList &list, QSize size)
{
    QResizeEvent event(size, list.viewport()->size());
    QCoreApplication::sendEvent(list.viewport(), &event);
}

const Deletion deletions[] = {
    { "asked for a row by scrolling", SIGNAL(updateItemWidget(QListWidgetItem *)),
      [](LoadedList &list) { list.scrollToValue(50); } },
    { "asked for a row by a pass", SIGNAL(updateItemWidget(QListWidgetItem *)),
      [](LoadedList &list) {
          list.removeItem(0);
          list.updateCurrentVisibleListItems();
      } },
    { "asked for a row by endInsert()", SIGNAL(updateItemWidget(QListWidgetItem *)),
      [](LoadedList &list) {
          list.beginInsert();
          list.insertItem(0, LoadedList::makeItem(QString()));
          list.endInsert();
      } },
    { "asked for a row by insertItem()", SIGNAL(updateItemWidget(QListWidgetItem *)),
      [](LoadedList &list) {
          list.setScrollToBottomAutomatically(true);
          list.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
          list.insertItem(0, LoadedList::makeItem(QString()));
      } },
    { "asked for a row when it is shown", SIGNAL(updateItemWidget(QListWidgetItem *)),
      [](LoadedList &list) {
          list.hide();
          list.clear();
          list.beginInsert();
          list.insertItem(0, LoadedList::makeItem(QString()));
          list.setItemWidgetsDynamicLoadingEnabled(true);
          list.show();
          list.endInsert();
      } },
    { "asked for a row by a later layout", SIGNAL(updateItemWidget(QListWidgetItem *)),
      [](LoadedList &list) {
          list.item(0)->setSizeHint(QSize(10, 5));
          list.setRowHidden(1, true);
      } },
    { "asked for a size", SIGNAL(updateItemSize(QListWidgetItem *)),
      [](LoadedList &list) { resizeEvent(list, QSize(70, 100)); } },
    { "shown", SIGNAL(visibleUpdated()), [](LoadedList &list) { list.setVisible(true); } },
    { "hidden", SIGNAL(visibleUpdated()), [](LoadedList &list) { list.setVisible(false); } },
};

/// Removes rows while a row is asked for.
struct Removal
{
    const char *name;
    void (*remove)(LoadedList &list, QListWidgetItem *item);
    const char *log;
    const char *rows;
};

const Removal removals[] = {
    { "the row itself",
      [](LoadedList &list, QListWidgetItem *item) { list.removeItem(list.row(item)); }, "5 6 7 8 9",
      "4 6 7 8 9" },
    { "the row itself with its widget",
      [](LoadedList &list, QListWidgetItem *item) {
          list.setItemWidget(item, new QLabel);
          list.removeItem(list.row(item));
      },
      "5 6 7 8 9", "4 6 7 8 9" },
    { "the row itself by Qt's function",
      [](LoadedList &list, QListWidgetItem *item) { delete list.takeItem(list.row(item)); },
      "5 6 7 8 9", "4 6 7 8 9" },
    { "the row itself by delete", [](LoadedList &, QListWidgetItem *item) { delete item; },
      "5 6 7 8 9", "4 6 7 8 9" },
    { "a row above",
      [](LoadedList &list, QListWidgetItem *item) {
          list.setItemWidget(item, new QLabel);
          list.removeItem(0);
      },
      "5 6 7 8 9", "5 6 7 8 9" },
    { "all rows", [](LoadedList &list, QListWidgetItem *) { list.clear(); }, "5", "" },
};

} // namespace

Q_DECLARE_METATYPE(const Deletion *)
Q_DECLARE_METATYPE(const Removal *)

/// Lists and rows that are deleted in slots, and the focus of rows that lose their widget.
class tst_OxaListWidgetLifetime : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void deleteTheList() { m_list.reset(); }

private Q_SLOTS:
    void mayBeDeletedInASlot_data();
    void mayBeDeletedInASlot();
    void mayLoseRowsInASlot_data();
    void mayLoseRowsInASlot();
    void mayLoseRowsWhileTheyAreResized();
    void keepsNoRowsOfARemovedList();
    void takesTheFocusOfARowThatScrollsAway_data();
    void takesTheFocusOfARowThatScrollsAway();

private:
    List m_list;
};

void tst_OxaListWidgetLifetime::mayBeDeletedInASlot_data()
{
    QTest::addColumn<const Deletion *>("deletion");
    for (const Deletion &deletion : deletions)
        QTest::newRow(deletion.name) << &deletion;
}

void tst_OxaListWidgetLifetime::mayBeDeletedInASlot()
{
    QFETCH(const Deletion *const, deletion);
    m_list = std::make_unique<LoadedList>(20);
    m_list->show();
    QCoreApplication::processEvents();
    m_list->makeWidget = [](QListWidgetItem *) {};
    connect(m_list.get(), deletion->signal, this, SLOT(deleteTheList()));
    deletion->cause(*m_list);
    QCoreApplication::processEvents();
    QTRY_VERIFY(!m_list);
}

void tst_OxaListWidgetLifetime::mayLoseRowsInASlot_data()
{
    QTest::addColumn<const Removal *>("removal");
    for (const Removal &removal : removals)
        QTest::newRow(removal.name) << &removal;
}

void tst_OxaListWidgetLifetime::mayLoseRowsInASlot()
{
    QFETCH(const Removal *const, removal);
    LoadedList list(20);
    list.show();
    list.scrollToValue(0);
    list.takeLog();
    const auto makeLabel = list.makeWidget;
    list.makeWidget = [&list, makeLabel, removal](QListWidgetItem *item) {
        if (item->text() == QLatin1String("5"))
            removal->remove(list, item);
        else
            makeLabel(item);
    };
    list.scrollToValue(80);
    list.updateCurrentVisibleListItems();
    QCOMPARE(list.takeLog(), QString::fromLatin1(removal->log));
    QCOMPARE(list.rowsWithWidgets(), QString::fromLatin1(removal->rows));
}

void tst_OxaListWidgetLifetime::mayLoseRowsWhileTheyAreResized()
{
    LoadedList list(20);
    list.show();
    QCoreApplication::processEvents();
    list.takeLog();
    connect(&list, &OxaListWidget::updateItemSize, this, [&list](QListWidgetItem *item) {
        const int row = list.row(item);
        list.removeItem(row == 0 ? 1 : 0);
    });
    resizeEvent(list, QSize(70, 100));
    QVERIFY(list.count() < 20);
    QCOMPARE(int(list.sizes.size()), 20 - list.count());
}

void tst_OxaListWidgetLifetime::keepsNoRowsOfARemovedList()
{
    LoadedList list(20);
    list.show();
    list.clear();
    QCoreApplication::processEvents();
    list.fill(3);
    list.resize(50, 100);
    QCOMPARE(list.rowsWithWidgets(), QStringLiteral("0 1 2"));
}

void tst_OxaListWidgetLifetime::takesTheFocusOfARowThatScrollsAway_data()
{
    QTest::addColumn<int>("margin");
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("on screen") << 0 << 20 << false;
    QTest::newRow("above") << 0 << 80 << true;
    QTest::newRow("far above") << 0 << 1000 << true;
    QTest::newRow("in the margin") << 2 << 80 << false;
    QTest::newRow("above the margin") << 2 << 140 << true;
}

void tst_OxaListWidgetLifetime::takesTheFocusOfARowThatScrollsAway()
{
    QFETCH(const int, margin);
    QFETCH(const int, value);
    QFETCH(const bool, isTaken);
    LoadedList list;
    list.setAttribute(Qt::WA_DontShowOnScreen, false);
    list.setLoadExtraItemsNumber(margin);
    list.makeWidget = [&list](QListWidgetItem *item) {
        auto *row = new QWidget;
        new QLineEdit(row);
        list.setItemWidget(item, row);
    };
    list.fill(100);
    list.show();
    list.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&list));
    const QPointer<QLineEdit> edit = list.itemWidget(list.item(3))->findChild<QLineEdit *>();
    edit->setFocus();
    QVERIFY(edit->hasFocus());
    list.scrollToValue(value);
    QCOMPARE(list.hasFocus(), isTaken);
    QTRY_COMPARE(edit && edit->hasFocus(), !isTaken);
    QCOMPARE(list.hasFocus(), isTaken);
}

UIELEMENTS_TEST_MAIN(tst_OxaListWidgetLifetime)
#include "tst_oxalistwidget_lifetime.moc"
