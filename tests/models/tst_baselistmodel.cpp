// SPDX-License-Identifier: Apache-2.0
#include "tst_baselistmodel.h"

#include "LetterListModel.h"
#include "support/TestMain.h"

#include <QMetaProperty>
#include <QTest>

#include <type_traits>

namespace {

template <typename Model, typename = void>
struct HasPublicSetData : std::false_type
{
};

template <typename Model>
struct HasPublicSetData<
        Model, std::void_t<decltype(std::declval<Model &>().setData(QModelIndex(), QVariant(), 0))>>
    : std::true_type
{
};

} // namespace

void tst_BaseListModel::leavesRoleNamesToSubclasses()
{
    QVERIFY(std::is_abstract_v<BaseListModel>);
    QVERIFY((std::is_base_of_v<QAbstractListModel, BaseListModel>));
    QCOMPARE(LetterListModel().roleNames().value(LetterListModel::Letter), QByteArray("letter"));
}

void tst_BaseListModel::startsEmpty()
{
    const LetterListModel model;
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.getCount(), 0);
    QCOMPARE(model.header(), QString());
    QVERIFY(model.getRows().empty());
    QCOMPARE(BaseListModel::maximumRowCount, 10000);
}

void tst_BaseListModel::takesAParent()
{
    class Child : public BaseListModel
    {
    public:
        using BaseListModel::BaseListModel;
        QHash<int, QByteArray> roleNames() const override { return {}; }
    };
    QObject parent;
    const auto *model = new Child(&parent);
    QCOMPARE(model->parent(), &parent);
    QVERIFY(!Child().parent());
}

void tst_BaseListModel::showsCountAndHeaderAsProperties()
{
    const QMetaObject &type = BaseListModel::staticMetaObject;
    const QMetaProperty count = type.property(type.indexOfProperty("count"));
    QCOMPARE(count.typeName(), "int");
    QCOMPARE(count.notifySignal().methodSignature(), QByteArray("countChanged(int)"));
    QVERIFY(!count.isWritable());
    const QMetaProperty header = type.property(type.indexOfProperty("header"));
    QCOMPARE(header.typeName(), "QString");
    QCOMPARE(header.notifySignal().methodSignature(), QByteArray("headerChanged()"));

    LetterListModel model(QStringLiteral("abc"));
    QCOMPARE(model.property("count"), QVariant(3));
    QVERIFY(model.setProperty("header", QStringLiteral("Letters")));
    QCOMPARE(model.header(), QStringLiteral("Letters"));
    QCOMPARE(model.property("header"), QVariant(QStringLiteral("Letters")));
}

void tst_BaseListModel::emitsOnlyForANewHeader()
{
    LetterListModel model;
    ModelLog log(model);
    model.setHeader(QString());
    QCOMPARE(log.take(), QString());
    model.setHeader(QStringLiteral("Letters"));
    QCOMPARE(log.take(), QStringLiteral("header"));
    model.setHeader(QStringLiteral("Letters"));
    QCOMPARE(log.take(), QString());
}

void tst_BaseListModel::hasNoRowsBelowARow()
{
    const LetterListModel model(QStringLiteral("abc"));
    QCOMPARE(model.rowCount(QModelIndex()), 3);
    QCOMPARE(model.rowCount(model.index(0)), 0);
}

void tst_BaseListModel::countsByTheVirtualRowCount()
{
    CappedListModel model;
    ModelLog log(model);
    model.appendRows(LetterListModel::rowsOf(QStringLiteral("abc")));
    QCOMPARE(model.getCount(), 2);
    QCOMPARE(model.property("count"), QVariant(2));
    QCOMPARE(log.take(), QStringLiteral("ins 0,2 | count 2"));
}

void tst_BaseListModel::letsNoViewEditItsRows()
{
    const LetterListModel model(QStringLiteral("a"));
    const Qt::ItemFlags flags = model.flags(model.index(0));
    QVERIFY(flags.testFlag(Qt::ItemIsEnabled));
    QVERIFY(flags.testFlag(Qt::ItemIsSelectable));
    QVERIFY(!flags.testFlag(Qt::ItemIsEditable));
}

void tst_BaseListModel::givesTheValueOfARole()
{
    LetterListModel model;
    model.appendRows({ { "a", { { 257, 1 }, { 300, QStringLiteral("x") } } } });
    QCOMPARE(model.data(model.index(0), 257), QVariant(1));
    QCOMPARE(model.data(model.index(0), 300), QVariant(QStringLiteral("x")));
}

void tst_BaseListModel::givesNothingSilently_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("role");

    QTest::newRow("no row") << -1 << int(LetterListModel::Letter);
    QTest::newRow("a row past the end") << 2 << int(LetterListModel::Letter);
    QTest::newRow("Qt::UserRole itself, although the row has it") << 0 << 256;
    QTest::newRow("a role of Qt's, although the row has it") << 0 << int(Qt::DisplayRole);
    QTest::newRow("a negative role") << 0 << -1;
}

void tst_BaseListModel::givesNothingSilently()
{
    QFETCH(const int, row);
    QFETCH(const int, role);
    // An index of a longer model serves as a stale one.
    const LetterListModel longer(QStringLiteral("abc"));
    const QModelIndex index = longer.index(row);

    LetterListModel model;
    QCOMPARE(model.data(index, role), QVariant());
    const std::unordered_map<int, QVariant> values { { 0, 1 }, { 256, 1 }, { 257, 1 }, { -1, 1 } };
    model.appendRows({ { "a", values }, { "b", values } });
    QCOMPARE(model.data(index, role), QVariant());
}

void tst_BaseListModel::warnsOfARoleThatTheRowLacks()
{
    const LetterListModel model(QStringLiteral("ab"));
    QTest::ignoreMessage(QtWarningMsg,
                         "[ LetterListModel ] - Role is undefined! Row: 1  Role: 258");
    QCOMPARE(model.data(model.index(1), LetterListModel::Number), QVariant());
}

void tst_BaseListModel::namesTheDynamicClassInTheWarning()
{
    const CappedListModel model(QStringLiteral("a"));
    QTest::ignoreMessage(QtWarningMsg,
                         "[ CappedListModel ] - Role is undefined! Row: 0  Role: 300");
    QCOMPARE(model.data(model.index(0), 300), QVariant());
}

void tst_BaseListModel::keepsSetDataFromTheOutside()
{
    QVERIFY(!HasPublicSetData<BaseListModel>::value);
    QVERIFY(HasPublicSetData<LetterListModel>::value);
}

void tst_BaseListModel::changesARoleThatTheRowHas()
{
    LetterListModel model(QStringLiteral("abc"));
    ModelLog log(model);
    QVERIFY(model.setData(model.index(1), QStringLiteral("x"), LetterListModel::Letter));
    QCOMPARE(model.text(), QStringLiteral("axc"));
    QCOMPARE(log.take(), QStringLiteral("chg 1,1 [257]"));
}

void tst_BaseListModel::changesAnyRoleThatTheRowHas()
{
    LetterListModel model;
    model.appendRows({ { "a", { { 256, 1 }, { 0, 1 } } } });
    ModelLog log(model);
    QVERIFY(model.setData(model.index(0), 2, 256));
    QVERIFY(model.setData(model.index(0), 3, 0));
    QVERIFY(model.getRowById("a") == ModelRow("a", { { 256, 2 }, { 0, 3 } }));
    QCOMPARE(log.take(), QStringLiteral("chg 0,0 [256] | chg 0,0 [0]"));
}

void tst_BaseListModel::reportsAnEqualValueToo()
{
    LetterListModel model(QStringLiteral("abc"));
    ModelLog log(model);
    QVERIFY(model.setData(model.index(2), QStringLiteral("c"), LetterListModel::Letter));
    QCOMPARE(log.take(), QStringLiteral("chg 2,2 [257]"));
}

void tst_BaseListModel::refusesToSetData_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("an invalid value") << 0 << QVariant();
    QTest::newRow("no row") << -1 << QVariant(1);
    QTest::newRow("a row past the end") << 1 << QVariant(1);
}

void tst_BaseListModel::refusesToSetData()
{
    QFETCH(const int, row);
    QFETCH(const QVariant, value);
    const LetterListModel longer(QStringLiteral("abc"));
    LetterListModel model(QStringLiteral("a"));
    ModelLog log(model);
    QVERIFY(!model.setData(longer.index(row), value, LetterListModel::Letter));
    QCOMPARE(model.text(), QStringLiteral("a"));
    QCOMPARE(log.take(), QString());
}

void tst_BaseListModel::refusesToSetARoleThatTheRowLacks()
{
    LetterListModel model(QStringLiteral("a"));
    ModelLog log(model);
    QTest::ignoreMessage(QtWarningMsg,
                         "[ LetterListModel ] - Role is undefined! Row: 0  Role: 258");
    QVERIFY(!model.setData(model.index(0), 1, LetterListModel::Number));
    QCOMPARE(model.getRows().front().second.count(LetterListModel::Number), std::size_t(0));
    QCOMPARE(log.take(), QString());
}

void tst_BaseListModel::findsRowsByTheirIds()
{
    LetterListModel model(QStringLiteral("aBc"));
    QVERIFY(model.hasRow("b"));
    QCOMPARE(model.getRowIndex("b"), 1);
    QVERIFY(model.getRowById("b") == LetterListModel::rowOf(QLatin1Char('B')));
    QVERIFY(!model.hasRow("d"));
    QCOMPARE(model.getRowIndex("d"), -1);
    QVERIFY(model.getRowById("d") == ModelRow());
}

void tst_BaseListModel::comparesIdsByteByByte()
{
    LetterListModel model;
    const std::string withNull("a\0b", 3);
    model.appendRows({ { "a", {} }, { "A", {} }, { withNull, {} }, { "", {} } });
    QCOMPARE(model.rowCount(), 4);
    QCOMPARE(model.getRowIndex("A"), 1);
    QCOMPARE(model.getRowIndex(withNull), 2);
    QCOMPARE(model.getRowIndex(""), 3);
}

void tst_BaseListModel::findsTheLastOfARepeatedIdButReturnsTheFirst()
{
    LetterListModel model(QStringLiteral("ab"));
    model.insertRows(1, LetterListModel::rowsOf(QStringLiteral("B")));
    QCOMPARE(model.text(), QStringLiteral("aBb"));
    QCOMPARE(model.getRowIndex("b"), 2);
    QVERIFY(model.getRowById("b") == LetterListModel::rowOf(QLatin1Char('B')));
}

void tst_BaseListModel::handsOutCopies()
{
    LetterListModel model(QStringLiteral("ab"));
    std::vector<ModelRow> rows = model.getRows();
    QVERIFY(rows == LetterListModel::rowsOf(QStringLiteral("ab")));
    rows.front().second[LetterListModel::Letter] = QStringLiteral("x");
    model.getRowById("b").second.clear();
    QCOMPARE(model.text(), QStringLiteral("ab"));
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_BaseListModel)
#include "moc_tst_baselistmodel.cpp"
