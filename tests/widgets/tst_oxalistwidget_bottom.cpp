// SPDX-License-Identifier: Apache-2.0
#include "LoadedList.h"
#include "support/TestApplication.h"

namespace {

/// Says how a list of rows scrolls when one is inserted at the end.
struct Stick
{
    const char *name;
    bool isEnabled;
    int rows;
    int scrolledTo;
    int expected;
};

const Stick sticks[] = {
    { "at the bottom", true, 20, 300, 320 },
    { "at the bottom, not enabled", false, 20, 300, 300 },
    { "where the last row's top is on screen", true, 20, 281, 320 },
    { "where the last row's top is just below", true, 20, 280, 280 },
    { "at the top", true, 20, 0, 0 },
    { "the second row, which does not stick", true, 1, 0, 0 },
    { "the third row", true, 2, 0, 0 },
};

} // namespace

Q_DECLARE_METATYPE(const Stick *)

/// A list that stays at its bottom, and that returns there.
class tst_OxaListWidgetBottom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sticksToItsBottom_data();
    void sticksToItsBottom();
    void sticksWhileHighRowsAreInserted();
    void returnsToItsBottomWhenShown_data();
    void returnsToItsBottomWhenShown();
    void scrollsLaterAndOnlyIfItWasAtItsBottom();
};

void tst_OxaListWidgetBottom::sticksToItsBottom_data()
{
    QTest::addColumn<const Stick *>("stick");
    for (const Stick &stick : sticks)
        QTest::newRow(stick.name) << &stick;
}

void tst_OxaListWidgetBottom::sticksToItsBottom()
{
    QFETCH(const Stick *const, stick);
    LoadedList list(stick->rows);
    list.setScrollToBottomAutomatically(stick->isEnabled);
    list.show();
    list.scrollToValue(stick->scrolledTo);
    list.insertItem(list.count(), LoadedList::makeItem(QStringLiteral("new")));
    QCOMPARE(list.verticalScrollBar()->value(), stick->expected);
}

void tst_OxaListWidgetBottom::sticksWhileHighRowsAreInserted()
{
    LoadedList list;
    list.setScrollToBottomAutomatically(true);
    list.show();
    for (int row = 0; row < 4; ++row)
        list.insertItem(row, LoadedList::makeItem(QString::number(row), 90));
    QCOMPARE(list.verticalScrollBar()->value(), 4 * 90 - 100);
    QCOMPARE(list.rowsWithWidgets(), QStringLiteral("2 3"));

    LoadedList two;
    two.setScrollToBottomAutomatically(true);
    two.show();
    for (int row = 0; row < 2; ++row)
        two.insertItem(row, LoadedList::makeItem(QString::number(row), 90));
    two.executeLayout();
    QCOMPARE(two.verticalScrollBar()->value(), 0);
}

void tst_OxaListWidgetBottom::returnsToItsBottomWhenShown_data()
{
    QTest::addColumn<int>("scrolledTo");
    QTest::addColumn<int>("expected");
    QTest::newRow("hidden at the bottom") << 300 << 500;
    QTest::newRow("hidden in the middle") << 150 << 150;
    QTest::newRow("hidden just above the bottom") << 299 << 299;
}

void tst_OxaListWidgetBottom::returnsToItsBottomWhenShown()
{
    QFETCH(const int, scrolledTo);
    LoadedList list(20);
    list.show();
    list.scrollToValue(scrolledTo);
    list.hide();
    list.fill(10);
    list.show();
    QCoreApplication::processEvents();
    QTEST(list.verticalScrollBar()->value(), "expected");
}

void tst_OxaListWidgetBottom::scrollsLaterAndOnlyIfItWasAtItsBottom()
{
    LoadedList list(20);
    list.setIsScrollAtBottom(true);
    list.show();
    QCOMPARE(list.verticalScrollBar()->value(), 0);
    QTRY_COMPARE(list.verticalScrollBar()->value(), 300);
    list.scrollToValue(0);
    list.setIsScrollAtBottom(false);
    list.delayScrollToBottom();
    QCOMPARE(list.verticalScrollBar()->value(), 0);
    list.setIsScrollAtBottom(true);
    list.delayScrollToBottom();
    QCOMPARE(list.verticalScrollBar()->value(), 300);

    OxaListWidget atBottom(nullptr, true);
    for (int row = 0; row < 100; ++row)
        atBottom.insertItem(row, LoadedList::makeItem(QString()));
    atBottom.setAttribute(Qt::WA_DontShowOnScreen);
    atBottom.show();
    QTRY_VERIFY(atBottom.verticalScrollBar()->maximum() > 0
                && atBottom.verticalScrollBar()->value()
                        == atBottom.verticalScrollBar()->maximum());
}

UIELEMENTS_TEST_MAIN(tst_OxaListWidgetBottom)
#include "tst_oxalistwidget_bottom.moc"
