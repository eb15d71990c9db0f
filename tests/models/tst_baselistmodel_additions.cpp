// SPDX-License-Identifier: Apache-2.0
#include "tst_baselistmodel.h"

#include "LetterListModel.h"
#include "ModelChanges.h"

#include <QTest>

namespace {

constexpr char tooManyRows[] = "Too many rows!";

} // namespace

void tst_BaseListModel::appends_data()
{
    addChangeColumns();
    QTest::addColumn<QString>("skipped");

    addChange("nothing", "abc", "", "abc", "") << "";
    addChange("to an empty model", "", "abc", "abc", "ins 0,2 | count 3") << "";
    addChange("behind what is there", "ab", "cd", "abcd", "ins 2,3 | count 4") << "";
    addChange("one known id of three", "abc", "dBe", "abcde", "ins 3,5 | count 5") << "b";
    addChange("an id twice in the list", "a", "bcB", "abc", "ins 1,3 | count 3") << "b";
    addChange("known ids only", "ab", "BA", "ab", "ins 2,3 | count 2") << "ba";
}

void tst_BaseListModel::appends()
{
    QFETCH(const QString, before);
    QFETCH(const QString, given);
    QFETCH(const QString, skipped);
    LetterListModel model(before);
    ModelLog log(model);
    expectSkipped(skipped);
    model.appendRows(LetterListModel::rowsOf(given));
    QTEST(model.text(), "after");
    QTEST(log.take(), "emitted");
    for (int i = 0; i < model.rowCount(); ++i)
        QCOMPARE(model.getRowIndex(model.getRows()[i].first), i);
}

void tst_BaseListModel::announcesTheWholeListAlsoWhenRowsAreSkipped()
{
    LetterListModel model(QStringLiteral("abc"));
    SignalLog log;
    connect(&model, &QAbstractItemModel::rowsAboutToBeInserted, this,
            [&](const QModelIndex &parent, int first, int last) {
                QVERIFY(!parent.isValid());
                log.note(QStringLiteral("%1: %2,%3").arg(model.text()).arg(first).arg(last));
            });
    connect(&model, &QAbstractItemModel::rowsInserted, this, [&] { log.note(model.text()); });
    connect(&model, &BaseListModel::countChanged, this,
            [&](int count) { log.note(QStringLiteral("count %1").arg(count)); });
    expectSkipped(QStringLiteral("b"));
    model.appendRows(LetterListModel::rowsOf(QStringLiteral("dbe")));
    QCOMPARE(log.take(), QStringLiteral("abc: 3,5 | abcde | count 5"));
}

void tst_BaseListModel::appendsUpToTheLimit()
{
    LetterListModel model;
    std::vector<ModelRow> rows = LetterListModel::numberedRows(10001);
    const std::vector<ModelRow> last { rows.back() };
    ModelLog log(model);
    QTest::ignoreMessage(QtWarningMsg, tooManyRows);
    model.appendRows(rows);
    QCOMPARE(log.take(), QString());
    QCOMPARE(model.rowCount(), 0);

    rows.pop_back();
    model.appendRows(rows);
    QCOMPARE(log.take(), QStringLiteral("ins 0,9999 | count 10000"));
    QTest::ignoreMessage(QtWarningMsg, tooManyRows);
    model.appendRows(last);
    QCOMPARE(log.take(), QString());
    QCOMPARE(model.rowCount(), 10000);
    QVERIFY(!model.hasRow("10000"));
}

void tst_BaseListModel::countsSkippedRowsForTheLimit()
{
    LetterListModel model;
    model.appendRows(LetterListModel::numberedRows(9999));
    ModelLog log(model);
    QTest::ignoreMessage(QtWarningMsg, tooManyRows);
    model.appendRows({ { "0", {} }, { "new", {} } });
    QCOMPARE(log.take(), QString());
    QCOMPARE(model.rowCount(), 9999);
}

void tst_BaseListModel::appendsOrUpdates_data()
{
    addChangeColumns();
    QTest::addColumn<QString>("skipped");

    addChange("nothing reports row 0", "abc", "", "abc", "chg 0,0") << "";
    addChange("nothing in an empty model reports a row that isn't there", "", "", "", "chg -1,-1")
            << "";
    addChange("new rows report row 0 first", "ab", "cd", "abcd", "chg 0,0 | ins 2,3 | count 4")
            << "";
    addChange("row 0 is reported twice", "abc", "A", "Abc", "chg 0,0 | chg 0,0") << "";
    addChange("row 1 is reported with row 0", "abc", "B", "aBc", "chg 0,1") << "";
    addChange("rows 1 and 2 go on from row 0", "abcd", "BC", "aBCd", "chg 0,2") << "";
    addChange("a first row past row 1 reports row 0 first", "abcd", "CD", "abCD",
              "chg 0,0 | chg 2,3")
            << "";
    addChange("a gap ends a run", "abcdef", "BCE", "aBCdEf", "chg 0,2 | chg 4,4") << "";
    addChange("a step back ends a run", "abcdef", "EDF", "abcDEF",
              "chg 0,0 | chg 4,4 | chg 3,3 | chg 5,5")
            << "";
    addChange("the same id twice", "abcd", "cC", "abCd", "chg 0,0 | chg 2,2 | chg 2,2") << "";
    addChange("an equal row is reported as well", "abcd", "d", "abcd", "chg 0,0 | chg 3,3") << "";
    addChange("new rows don't end a run", "abc", "BxC", "aBCx", "chg 0,2 | ins 3,3 | count 4")
            << "";
    addChange("a new id twice", "abc", "Bxx", "aBcx", "chg 0,1 | ins 3,4 | count 4") << "x";
}

void tst_BaseListModel::appendsOrUpdates()
{
    QFETCH(const QString, before);
    QFETCH(const QString, given);
    QFETCH(const QString, skipped);
    LetterListModel model(before);
    ModelLog log(model);
    expectSkipped(skipped);
    model.appendOrUpdate(LetterListModel::rowsOf(given));
    QTEST(model.text(), "after");
    QTEST(log.take(), "emitted");
    for (int i = 0; i < model.rowCount(); ++i)
        QCOMPARE(model.getRowIndex(model.getRows()[i].first), i);
}

void tst_BaseListModel::updatesAlsoWhenTheNewRowsAreTooMany()
{
    LetterListModel model;
    model.appendRows(LetterListModel::numberedRows(9999));
    ModelLog log(model);
    QTest::ignoreMessage(QtWarningMsg, tooManyRows);
    model.appendOrUpdate({ { "a", {} }, { "1", { { 258, 7 } } }, { "b", {} } });
    QCOMPARE(log.take(), QStringLiteral("chg 0,1"));
    QCOMPARE(model.rowCount(), 9999);
    QVERIFY(model.getRowById("1") == ModelRow("1", { { 258, 7 } }));
    QVERIFY(!model.hasRow("a"));
}

void tst_BaseListModel::inserts_data()
{
    addChangeColumns();
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("positions");

    addChange("nothing", "abc", "", "abc", "") << 1 << "0 1 2";
    addChange("at the front", "abc", "xy", "xyabc", "ins 0,1 | count 5") << 0 << "0 1 2 3 4";
    addChange("before the last row", "abc", "x", "abxc", "ins 2,2 | count 4") << 2 << "0 1 2 3";
    addChange("an id of an earlier row", "abc", "A", "abAc", "ins 2,2 | count 4") << 2 << "2 1 2 3";
    addChange("an id of a later row", "abc", "C", "Cabc", "ins 0,0 | count 4") << 0 << "3 1 2 3";
    addChange("an id twice in the list", "ab", "xX", "axXb", "ins 1,2 | count 4") << 1 << "0 2 2 3";
}

void tst_BaseListModel::inserts()
{
    QFETCH(const QString, before);
    QFETCH(const QString, given);
    QFETCH(const int, row);
    LetterListModel model(before);
    ModelLog log(model);
    model.insertRows(row, LetterListModel::rowsOf(given));
    QTEST(model.text(), "after");
    QTEST(model.positions(), "positions");
    QTEST(log.take(), "emitted");
}

void tst_BaseListModel::appendsRowsInsertedAtABadPosition_data()
{
    addChangeColumns();
    QTest::addColumn<int>("row");

    addChange("at the size", "ab", "cA", "abc", "ins 2,3 | count 3") << 2;
    addChange("past the size", "ab", "cA", "abc", "ins 2,3 | count 3") << 7;
    addChange("before row 0", "ab", "cA", "abc", "ins 2,3 | count 3") << -1;
    addChange("in an empty model", "", "aA", "a", "ins 0,1 | count 1") << 0;
    addChange("past the size of an empty model", "", "aA", "a", "ins 0,1 | count 1") << 3;
}

void tst_BaseListModel::appendsRowsInsertedAtABadPosition()
{
    QFETCH(const QString, before);
    QFETCH(const QString, given);
    QFETCH(const int, row);
    LetterListModel model(before);
    ModelLog log(model);
    expectSkipped(QStringLiteral("a"));
    model.insertRows(row, LetterListModel::rowsOf(given));
    QTEST(model.text(), "after");
    QTEST(log.take(), "emitted");
}

void tst_BaseListModel::insertsUpToTheLimit()
{
    LetterListModel model;
    model.appendRows(LetterListModel::numberedRows(9998));
    ModelLog log(model);
    const std::vector<ModelRow> rows = LetterListModel::rowsOf(QStringLiteral("abc"));
    QTest::ignoreMessage(QtWarningMsg, tooManyRows);
    model.insertRows(0, rows);
    QTest::ignoreMessage(QtWarningMsg, tooManyRows);
    model.insertRows(9998, rows);
    QCOMPARE(log.take(), QString());
    QCOMPARE(model.rowCount(), 9998);

    model.insertRows(1, LetterListModel::rowsOf(QStringLiteral("ab")));
    QCOMPARE(log.take(), QStringLiteral("ins 1,2 | count 10000"));
    QCOMPARE(model.getRowIndex("9997"), 9999);
}

void tst_BaseListModel::insertsNothingAnywhere()
{
    LetterListModel model;
    ModelLog log(model);
    model.insertRows(0, {});
    model.appendRows(LetterListModel::rowsOf(QStringLiteral("ab")));
    log.take();
    for (const int row : { -1, 0, 2, 7 })
        model.insertRows(row, {});
    // Qt's function of the same name inserts nothing either.
    QVERIFY(!model.insertRows(0, 1, QModelIndex()));
    QCOMPARE(model.text(), QStringLiteral("ab"));
    QCOMPARE(log.take(), QString());
}
