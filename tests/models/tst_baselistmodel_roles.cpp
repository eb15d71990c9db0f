// SPDX-License-Identifier: Apache-2.0
#include "tst_baselistmodel.h"

#include "LetterListModel.h"

#include <QTest>

void tst_BaseListModel::writesRolesAndAddsThoseThatTheRowLacks()
{
    LetterListModel model(QStringLiteral("ab"));
    ModelLog log(model);
    model.setRoleValueForRow("b", { { 300, 3 }, { LetterListModel::Letter, QStringLiteral("B") } });
    QCOMPARE(model.text(), QStringLiteral("aB"));
    QCOMPARE(model.data(model.index(1), 300), QVariant(3));
    QCOMPARE(log.take(), QStringLiteral("chg 1,1 [257,300]"));
}

void tst_BaseListModel::writesRolesByIdAndByIndexAlike()
{
    LetterListModel model(QStringLiteral("ab"));
    ModelLog log(model);
    model.setRoleValueForRow(model.index(0), { { LetterListModel::Letter, QStringLiteral("A") } });
    QCOMPARE(log.take(), QStringLiteral("chg 0,0 [257]"));
    model.setRoleValueForRow("b", { { LetterListModel::Letter, QStringLiteral("B") } });
    QCOMPARE(log.take(), QStringLiteral("chg 1,1 [257]"));
    QCOMPARE(model.text(), QStringLiteral("AB"));
}

void tst_BaseListModel::reportsEqualRoleValuesToo()
{
    LetterListModel model(QStringLiteral("a"));
    ModelLog log(model);
    model.setRoleValueForRow("a", { { LetterListModel::Letter, QStringLiteral("a") } });
    QCOMPARE(log.take(), QStringLiteral("chg 0,0 [257]"));
}

void tst_BaseListModel::leavesOutUnusableRoles()
{
    LetterListModel model(QStringLiteral("ab"));
    ModelLog log(model);
    QTest::ignoreMessage(QtWarningMsg, "Role is less than Qt::UserRole! Role: -1");
    QTest::ignoreMessage(QtWarningMsg, "Role is less than Qt::UserRole! Role: 256");
    QTest::ignoreMessage(QtWarningMsg, "Role value is invalid! Row: 1  Role: 257");
    model.setRoleValueForRow("b", { { -1, 1 }, { 256, 1 }, { 257, QVariant() }, { 258, 2 } });
    QCOMPARE(model.text(), QStringLiteral("ab"));
    QCOMPARE(model.data(model.index(1), 258), QVariant(2));
    QCOMPARE(model.getRows().back().second.size(), std::size_t(2));
    QCOMPARE(log.take(), QStringLiteral("chg 1,1 [258]"));
}

void tst_BaseListModel::reportsNothingWhenNoRoleIsUsable()
{
    LetterListModel model(QStringLiteral("a"));
    ModelLog log(model);
    QTest::ignoreMessage(QtWarningMsg, "Role is less than Qt::UserRole! Role: 256");
    model.setRoleValueForRow("a", { { 256, 1 } });
    model.setRoleValueForRow("a", {});
    QCOMPARE(log.take(), QString());
}

void tst_BaseListModel::ignoresRowsThatAreNotThere()
{
    const LetterListModel longer(QStringLiteral("abc"));
    const QMap<int, QVariant> values { { 256, 1 }, { 257, 1 } };
    LetterListModel model;
    ModelLog log(model);
    model.setRoleValueForRow(longer.index(0), values);
    model.appendRows(LetterListModel::rowsOf(QStringLiteral("a")));
    log.take();
    model.setRoleValueForRow("b", values);
    model.setRoleValueForRow(QModelIndex(), values);
    model.setRoleValueForRow(longer.index(1), values);
    QCOMPARE(model.text(), QStringLiteral("a"));
    QCOMPARE(log.take(), QString());
}

void tst_BaseListModel::ignoresARowPastTheVirtualRowCount()
{
    CappedListModel model(QStringLiteral("abc"));
    const LetterListModel longer(QStringLiteral("abc"));
    ModelLog log(model);
    model.setRoleValueForRow(longer.index(2), { { 257, 1 } });
    QCOMPARE(log.take(), QString());
    QVERIFY(model.getRows() == LetterListModel::rowsOf(QStringLiteral("abc")));
}
