// SPDX-License-Identifier: Apache-2.0
#include "tst_baselistmodel.h"

#include "LetterListModel.h"
#include "ModelChanges.h"

#include <QTest>

#include <limits>

namespace {

constexpr char tooManyRows[] = "Too many rows!";

/// A subclass whose index() ends after two rows, as a mistaken override would.
class ShortIndexModel : public LetterListModel
{
    Q_OBJECT

public:
    using LetterListModel::LetterListModel;

    QModelIndex index(int row, int column, const QModelIndex &parent) const override
    {
        return row < 2 ? LetterListModel::index(row, column, parent) : QModelIndex();
    }
};

/// A subclass that records when rows are removed.
class RemovalNotingModel : public LetterListModel
{
    Q_OBJECT

public:
    using LetterListModel::LetterListModel;

    bool removeRows(int row, int count, const QModelIndex &parent) override
    {
        removed += QStringLiteral("%1+%2").arg(row).arg(count);
        return LetterListModel::removeRows(row, count, parent);
    }

    QStringList removed;
};

} // namespace

void tst_BaseListModel::replaces_data()
{
    addChangeColumns();
    QTest::addColumn<QString>("positions");

    addChange("the present rows", "abc", "abc", "abc", "") << "0 1 2";
    addChange("all rows by none", "abc", "", "", "reset | count 0") << "";
    addChange("nothing by nothing", "", "", "", "") << "";
    addChange("nothing by some", "", "abc", "abc", "ins 0,2 | count 3") << "0 1 2";
    addChange("rows 1 and 2 as one run", "abcd", "aBCd", "aBCd", "chg 1,2") << "0 1 2 3";
    addChange("rows 1 and 3 as two runs", "abcde", "aBcDe", "aBcDe", "chg 1,1 | chg 3,3")
            << "0 1 2 3 4";
    addChange("the first and the last row", "abc", "AbC", "AbC", "chg 0,0 | chg 2,2") << "0 1 2";
    addChange("every row", "abc", "ABC", "ABC", "chg 0,2") << "0 1 2";
    addChange("by a shorter list", "abcde", "abc", "abc", "rem 3,4 | count 3") << "0 1 2";
    addChange("by a shorter list with a change", "abcde", "aBc", "aBc",
              "rem 3,4 | count 3 | chg 1,1")
            << "0 1 2";
    addChange("by a longer list", "ab", "abcd", "abcd", "ins 2,3 | count 4") << "0 1 2 3";
    addChange("by a longer list with a change", "ab", "aBcd", "aBcd", "ins 2,3 | count 4 | chg 1,1")
            << "0 1 2 3";
    addChange("a moved row by its new neighbours", "abcd", "bacd", "bacd", "chg 0,1") << "0 1 2 3";
    addChange("a removed first row by all rows", "abc", "bc", "bc", "rem 2,2 | count 2 | chg 0,1")
            << "0 1";
    addChange("ids by new ones", "abc", "xyz", "xyz", "chg 0,2") << "0 1 2";
    addChange("with an id twice, which is kept", "abc", "abA", "abA", "chg 2,2") << "2 1 2";
    addChange("with an id twice at the new end", "ab", "abA", "abA", "ins 2,2 | count 3")
            << "2 1 2";
}

void tst_BaseListModel::replaces()
{
    QFETCH(const QString, before);
    QFETCH(const QString, given);
    LetterListModel model(before);
    ModelLog log(model);
    model.replace(LetterListModel::rowsOf(given));
    QTEST(model.text(), "after");
    QTEST(model.positions(), "positions");
    QTEST(log.take(), "emitted");
    for (const QChar old : before) {
        const bool isThere = given.contains(old, Qt::CaseInsensitive);
        QCOMPARE(model.hasRow(std::string(1, old.toLatin1())), isThere);
    }
}

void tst_BaseListModel::skipsARepeatedIdInAnEmptyModelOnly()
{
    LetterListModel model;
    ModelLog log(model);
    expectSkipped(QStringLiteral("a"));
    model.replace(LetterListModel::rowsOf(QStringLiteral("abA")));
    QCOMPARE(model.text(), QStringLiteral("ab"));
    QCOMPARE(log.take(), QStringLiteral("ins 0,2 | count 2"));
    model.replace(LetterListModel::rowsOf(QStringLiteral("abA")));
    QCOMPARE(model.text(), QStringLiteral("abA"));
    QCOMPARE(log.take(), QStringLiteral("ins 2,2 | count 3"));
}

void tst_BaseListModel::replacesAlsoWhereOnlyTheIdDiffers()
{
    LetterListModel model;
    model.replace({ { "a", { { 257, 1 } } }, { "b", { { 257, 1 } } } });
    ModelLog log(model);
    model.replace({ { "a", { { 257, 1 } } }, { "c", { { 257, 1 } } } });
    QCOMPARE(log.take(), QStringLiteral("chg 1,1"));
    QCOMPARE(model.getRowIndex("c"), 1);
    QVERIFY(!model.hasRow("b"));
}

void tst_BaseListModel::replacesAlsoWhereOnlyTheRolesDiffer()
{
    LetterListModel model;
    model.replace({ { "a", { { 257, 1 } } }, { "b", { { 257, 1 } } }, { "c", { { 257, 1 } } } });
    ModelLog log(model);
    model.replace({ { "a", { { 258, 1 } } },
                    { "b", { { 257, 1 } } },
                    { "c", { { 257, 1 }, { 258, QVariant() } } } });
    QCOMPARE(log.take(), QStringLiteral("chg 0,0 | chg 2,2"));
    QVERIFY(model.getRowById("a") == ModelRow("a", { { 258, 1 } }));
}

void tst_BaseListModel::comparesRolesInWhateverOrder()
{
    ModelRow before("a", { { 257, 1 }, { 258, 2 }, { 259, 3 } });
    ModelRow given("a", {});
    given.second.reserve(1000);
    for (auto role = before.second.begin(); role != before.second.end(); ++role)
        given.second.insert(*role);
    QVERIFY(before.second.begin()->first != given.second.begin()->first);

    LetterListModel model;
    model.replace({ before });
    ModelLog log(model);
    model.replace({ given });
    QCOMPARE(log.take(), QString());
    given.second[258] = 7;
    model.replace({ given });
    QCOMPARE(log.take(), QStringLiteral("chg 0,0"));
}

void tst_BaseListModel::comparesValuesAsQVariantDoes_data()
{
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QVariant>("given");

    const QVariant text(QStringLiteral("1"));
    QTest::newRow("equal texts") << text << QVariant(QStringLiteral("1"));
    QTest::newRow("other texts") << text << QVariant(QStringLiteral("2"));
    QTest::newRow("a null and an empty text")
            << QVariant(QString()) << QVariant(QStringLiteral(""));
    QTest::newRow("a null string variant and an empty text")
            << QVariant(QVariant::String) << QVariant(QStringLiteral(""));
    QTest::newRow("one text, shared") << text << text;
    QTest::newRow("a text and a longer one with that start")
            << text << QVariant(QStringLiteral("12"));
    QTest::newRow("a text and its start") << QVariant(QStringLiteral("12")) << text;
    QTest::newRow("texts that differ at their end")
            << QVariant(QStringLiteral("1234")) << QVariant(QStringLiteral("1235"));
    QTest::newRow("equal numbers") << QVariant(1) << QVariant(1);
    QTest::newRow("other numbers") << QVariant(1) << QVariant(2);
    QTest::newRow("a null int variant and 0") << QVariant(QVariant::Int) << QVariant(0);
    QTest::newRow("equal numbers of other types") << QVariant(1) << QVariant(1.0);
    QTest::newRow("equal fractions") << QVariant(0.5) << QVariant(0.5);
    QTest::newRow("other fractions") << QVariant(0.5) << QVariant(0.25);
    QTest::newRow("nearly equal fractions") << QVariant(0.1 + 0.2) << QVariant(0.3);
    QTest::newRow("zero and minus zero") << QVariant(0.0) << QVariant(-0.0);
    QTest::newRow("NaN and NaN") << QVariant(qQNaN()) << QVariant(qQNaN());
    QTest::newRow("infinities") << QVariant(qInf()) << QVariant(-qInf());
    QTest::newRow("a null double variant and 0") << QVariant(QVariant::Double) << QVariant(0.0);
    QTest::newRow("large numbers that differ in a digit")
            << QVariant(std::numeric_limits<qlonglong>::max())
            << QVariant(std::numeric_limits<qlonglong>::max() - 1);
    QTest::newRow("a number and its text") << QVariant(1) << text;
    QTest::newRow("a text and its number") << text << QVariant(1);
    QTest::newRow("true and true") << QVariant(true) << QVariant(true);
    QTest::newRow("true and false") << QVariant(true) << QVariant(false);
    QTest::newRow("true and 1") << QVariant(true) << QVariant(1);
    QTest::newRow("lists") << QVariant(QStringList(QStringLiteral("a")))
                           << QVariant(QStringList(QStringLiteral("b")));
    QTest::newRow("nothing and nothing") << QVariant() << QVariant();
    QTest::newRow("nothing and something") << QVariant() << QVariant(0);
}

void tst_BaseListModel::comparesValuesAsQVariantDoes()
{
    QFETCH(const QVariant, before);
    QFETCH(const QVariant, given);
    LetterListModel model;
    model.replace({ { "a", { { 257, before } } } });
    ModelLog log(model);
    model.replace({ { "a", { { 257, given } } } });
    QCOMPARE(log.take(), before == given ? QString() : QStringLiteral("chg 0,0"));
}

void tst_BaseListModel::replacesPastTheLimit()
{
    LetterListModel model(QStringLiteral("a"));
    std::vector<ModelRow> rows = LetterListModel::numberedRows(10001);
    rows.push_back(rows.front());
    ModelLog log(model);
    model.replace(rows);
    QCOMPARE(log.take(), QStringLiteral("ins 1,10001 | count 10002 | chg 0,0"));
    QVERIFY(model.getRows() == rows);
    QCOMPARE(model.getRowIndex("0"), 10001);

    QTest::ignoreMessage(QtWarningMsg, tooManyRows);
    model.appendRows(LetterListModel::rowsOf(QStringLiteral("z")));
    QCOMPARE(log.take(), QString());

    // An empty model has the limit again.
    model.clear();
    QTest::ignoreMessage(QtWarningMsg, tooManyRows);
    model.replace(rows);
    QCOMPARE(log.take(), QStringLiteral("reset | count 0"));
}

void tst_BaseListModel::removesTheTailThroughTheVirtualFunction()
{
    RemovalNotingModel model(QStringLiteral("abcd"));
    model.replace(LetterListModel::rowsOf(QStringLiteral("a")));
    QCOMPARE(model.removed, QStringList(QStringLiteral("1+3")));
    QCOMPARE(model.text(), QStringLiteral("a"));
}

void tst_BaseListModel::warnsWhenTheIndexEndsBeforeTheRows()
{
    ShortIndexModel model(QStringLiteral("abc"));
    ModelLog log(model);
    QTest::ignoreMessage(QtWarningMsg,
                         "BaseListModel::replace() - Invalid index! This should never happen");
    model.replace(LetterListModel::rowsOf(QStringLiteral("aBC")));
    QCOMPARE(log.take(), QStringLiteral("chg 1,1"));
}

void tst_BaseListModel::removes_data()
{
    addChangeColumns();
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");

    addChange("the first row", "abcd", "", "bcd", "rem 0,0 | count 3") << 0 << 1;
    addChange("rows in the middle", "abcd", "", "ad", "rem 1,2 | count 2") << 1 << 2;
    addChange("the last row", "abcd", "", "abc", "rem 3,3 | count 3") << 3 << 1;
    addChange("all rows, without a reset", "abcd", "", "", "rem 0,3 | count 0") << 0 << 4;
}

void tst_BaseListModel::removes()
{
    QFETCH(const QString, before);
    QFETCH(const int, row);
    QFETCH(const int, count);
    LetterListModel model(before);
    ModelLog log(model);
    QVERIFY(model.removeRows(row, count));
    QTEST(model.text(), "after");
    QTEST(log.take(), "emitted");
    for (const QChar letter : before)
        QCOMPARE(model.getRowIndex(std::string(1, letter.toLatin1())),
                 model.text().indexOf(letter));
}

void tst_BaseListModel::removesBelowTheParentThatItIsGiven()
{
    LetterListModel model(QStringLiteral("abc"));
    ModelLog log(model);
    QVERIFY(model.removeRows(1, 1, model.index(2)));
    QCOMPARE(model.text(), QStringLiteral("ac"));
    QCOMPARE(log.take(), QStringLiteral("rem 1,1 below 2 | count 2"));
}

void tst_BaseListModel::refusesToRemove_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");

    QTest::newRow("a negative row") << -1 << 1;
    QTest::newRow("no rows") << 0 << 0;
    QTest::newRow("a negative count") << 1 << -1;
    QTest::newRow("a row at the row count") << 3 << 1;
    QTest::newRow("rows past the row count") << 1 << 3;
    QTest::newRow("so many that the sum overflows") << 1 << std::numeric_limits<int>::max();
}

void tst_BaseListModel::refusesToRemove()
{
    QFETCH(const int, row);
    QFETCH(const int, count);
    LetterListModel model(QStringLiteral("abc"));
    ModelLog log(model);
    const QString warning = QStringLiteral("BaseListModel::removeRows - invalid row! row: %1 "
                                           "count: %2 size: 3");
    QTest::ignoreMessage(QtWarningMsg, warning.arg(row).arg(count).toUtf8().constData());
    QVERIFY(!model.removeRows(row, count));
    QCOMPARE(model.text(), QStringLiteral("abc"));
    QCOMPARE(log.take(), QString());
}

void tst_BaseListModel::clearsWithAReset()
{
    LetterListModel model(QStringLiteral("abc"));
    model.setHeader(QStringLiteral("Letters"));
    ModelLog log(model);
    model.clear();
    QCOMPARE(log.take(), QStringLiteral("reset | count 0"));
    QVERIFY(!model.hasRow("a"));
    model.clear();
    QCOMPARE(log.take(), QString());
    QCOMPARE(model.header(), QStringLiteral("Letters"));
}

#include "tst_baselistmodel_replace.moc"
