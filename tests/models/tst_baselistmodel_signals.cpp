// SPDX-License-Identifier: Apache-2.0
#include "tst_baselistmodel.h"

#include "LetterListModel.h"

#include <QTest>

#include <utility>

namespace {

/// Records the letters at each signal of a change.
void recordLetters(SignalLog &log, const LetterListModel &model)
{
    const auto note = [&log, &model] { log.note(model.text()); };
    QObject::connect(&model, &QAbstractItemModel::rowsAboutToBeInserted, note);
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, note);
    QObject::connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, note);
    QObject::connect(&model, &QAbstractItemModel::rowsRemoved, note);
    QObject::connect(&model, &QAbstractItemModel::modelAboutToBeReset, note);
    QObject::connect(&model, &QAbstractItemModel::modelReset, note);
    QObject::connect(&model, &QAbstractItemModel::dataChanged, note);
    QObject::connect(&model, &BaseListModel::countChanged, note);
}

/// Records at each signal of a change where the ids in \a ids are: "a0 b-1".
void recordPositions(SignalLog &log, const LetterListModel &model, const QString &ids)
{
    const auto note = [&log, &model, ids] {
        QStringList texts;
        for (const QChar id : ids)
            texts += QStringLiteral("%1%2").arg(id).arg(
                    model.getRowIndex(std::string(1, id.toLatin1())));
        log.note(texts.join(QLatin1Char(' ')));
    };
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, note);
    QObject::connect(&model, &QAbstractItemModel::rowsRemoved, note);
    QObject::connect(&model, &QAbstractItemModel::modelReset, note);
    QObject::connect(&model, &BaseListModel::countChanged, note);
}

} // namespace

void tst_BaseListModel::changesItsRowsBetweenItsSignals()
{
    LetterListModel model;
    SignalLog log;
    recordLetters(log, model);
    model.appendRows(LetterListModel::rowsOf(QStringLiteral("ab")));
    QCOMPARE(log.take(), QStringLiteral(" | ab | ab"));
    model.insertRows(1, LetterListModel::rowsOf(QStringLiteral("x")));
    QCOMPARE(log.take(), QStringLiteral("ab | axb | axb"));
    model.removeRows(0, 2);
    QCOMPARE(log.take(), QStringLiteral("axb | b | b"));
    model.replace(LetterListModel::rowsOf(QStringLiteral("Bcd")));
    QCOMPARE(log.take(), QStringLiteral("b | bcd | bcd | Bcd"));
    // A run is signalled before the next one changes.
    model.replace(LetterListModel::rowsOf(QStringLiteral("bcD")));
    QCOMPARE(log.take(), QStringLiteral("bcd | bcD"));
    model.appendOrUpdate(LetterListModel::rowsOf(QStringLiteral("dB")));
    QCOMPARE(log.take(), QStringLiteral("bcD | bcd | Bcd"));
    model.clear();
    QCOMPARE(log.take(), QStringLiteral("Bcd |  | "));
}

void tst_BaseListModel::findsTheNewPositionsInItsSignals()
{
    LetterListModel model;
    SignalLog log;
    recordPositions(log, model, QStringLiteral("abx"));
    model.appendRows(LetterListModel::rowsOf(QStringLiteral("ab")));
    QCOMPARE(log.take(), QStringLiteral("a0 b1 x-1 | a0 b1 x-1"));
    model.insertRows(1, LetterListModel::rowsOf(QStringLiteral("x")));
    QCOMPARE(log.take(), QStringLiteral("a0 b2 x1 | a0 b2 x1"));
    model.removeRows(0, 1);
    QCOMPARE(log.take(), QStringLiteral("a-1 b1 x0 | a-1 b1 x0"));
    // Replacing is not finished at these signals, but the index has the new positions already.
    model.replace(LetterListModel::rowsOf(QStringLiteral("xba")));
    QCOMPARE(log.take(), QStringLiteral("a-1 b1 x0 | a-1 b1 x0"));
    QCOMPARE(model.getRowIndex("a"), 2);
    model.clear();
    QCOMPARE(log.take(), QStringLiteral("a-1 b-1 x-1 | a-1 b-1 x-1"));
}

// No client should do this: rows are removed while others are added, so that the index is ahead.
void tst_BaseListModel::stopsUpdatingAtAnIdWhoseRowASlotRemoved()
{
    LetterListModel model(QStringLiteral("pq"));
    ModelLog log(model);
    connect(&model, &QAbstractItemModel::rowsAboutToBeInserted, this, [&] {
        if (model.hasRow("p"))
            model.clear();
    });
    bool isFirst = true;
    connect(&model, &QAbstractItemModel::dataChanged, this, [&] {
        if (!std::exchange(isFirst, false))
            return;
        log.note(model.text());
        QCOMPARE(model.getRowIndex("d"), 5);
        QTest::ignoreMessage(QtWarningMsg, "Out of range! This should never happen!");
        model.appendOrUpdate(LetterListModel::rowsOf(QStringLiteral("XnDA")));
        log.note(model.text());
        model.appendRows(LetterListModel::rowsOf(QStringLiteral("yz")));
    });
    model.replace(LetterListModel::rowsOf(QStringLiteral("xbabcd")));
    QCOMPARE(log.take(),
             QStringLiteral("reset | count 0 | ins 2,5 | count 4 | chg 0,0 | xbcd | "
                            "chg 0,0 | Xbcd | ins 4,5 | count 6 | chg 2,5"));
    QCOMPARE(model.text(), QStringLiteral("Xbabcd"));
}
