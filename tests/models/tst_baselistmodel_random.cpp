// SPDX-License-Identifier: Apache-2.0
#include "tst_baselistmodel.h"

#include "ReferenceList.h"
#include "support/RandomSeed.h"

#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QTest>

#include <algorithm>
#include <set>

namespace {

constexpr int operations = 100000;
constexpr int letters = 8;

/// Makes random operations and rows.
class Dice
{
public:
    int from(int lowest, int highest) { return randomFrom(m_generator, lowest, highest); }
    bool oneIn(int cases) { return from(1, cases) == 1; }

    /// Any row: of two letters that differ in case only the id is the same.
    ModelRow row()
    {
        const char first = oneIn(2) ? 'a' : 'A';
        const char letter = char(first + from(0, letters - 1));
        ModelRow row = LetterListModel::rowOf(QLatin1Char(letter));
        if (oneIn(3))
            row.second[LetterListModel::Number] = from(0, 2);
        return row;
    }

    std::vector<ModelRow> rows(int most)
    {
        std::vector<ModelRow> rows(from(0, most));
        for (ModelRow &each : rows)
            each = row();
        return rows;
    }

    /// Returns \a rows with some of them changed, and some removed from or added to the end.
    std::vector<ModelRow> changed(std::vector<ModelRow> rows)
    {
        const int share = from(1, 8);
        for (ModelRow &each : rows) {
            if (oneIn(share))
                each = row();
        }
        rows.resize(from(oneIn(10) ? 0 : qMax(int(rows.size()) - 2, 0), int(rows.size())));
        const std::vector<ModelRow> more = oneIn(2) ? this->rows(3) : std::vector<ModelRow>();
        rows.insert(rows.end(), more.begin(), more.end());
        return rows;
    }

private:
    std::mt19937 m_generator = seededGenerator();
};

/// Does one operation on both, and returns its name.
QString doOne(Dice &dice, BaseListModel &model, ReferenceList &reference)
{
    const int row = dice.from(-1, int(reference.rows.size()) + 1);
    const int number = dice.from(-1, 4);
    const std::string id = dice.row().first;
    const auto both = [&](const auto &operation, const auto &expected) {
        expected();
        for (const QString &warning : qAsConst(reference.warnings))
            QTest::ignoreMessage(QtWarningMsg, warning.toUtf8().constData());
        operation();
    };
    const int choice = dice.oneIn(50) ? 9 : dice.from(0, 8);
    const std::vector<ModelRow> given = choice < 6 ? dice.rows(5) : dice.changed(reference.rows);
    switch (choice) {
    case 0:
        both([&] { model.appendRows(given); }, [&] { reference.append(given); });
        return QStringLiteral("appendRows");
    case 1:
        both([&] { model.appendOrUpdate(given); }, [&] { reference.appendOrUpdate(given); });
        return QStringLiteral("appendOrUpdate");
    case 2:
        both([&] { model.insertRows(row, given); }, [&] { reference.insert(row, given); });
        return QStringLiteral("insertRows");
    case 3:
    case 4:
        both([&] { model.removeRows(row, number); }, [&] { reference.remove(row, number); });
        return QStringLiteral("removeRows");
    case 5:
        both(
                [&] {
                    model.setRoleValueForRow(id, { { LetterListModel::Number, number } });
                },
                [&] { reference.setNumber(id, number); });
        return QStringLiteral("setRoleValueForRow");
    case 9:
        both([&] { model.clear(); }, [&] { reference.clear(); });
        return QStringLiteral("clear");
    default:
        both([&] { model.replace(given); }, [&] { reference.replace(given); });
        return QStringLiteral("replace");
    }
}

QString textOf(const std::vector<ModelRow> &rows)
{
    QStringList texts;
    for (const ModelRow &row : rows)
        texts += ReferenceList::text(row);
    return texts.join(QLatin1Char(' '));
}

/// Returns the ids that \a model finds elsewhere than \a reference.
QString misfound(const BaseListModel &model, const ReferenceList &reference)
{
    QString ids;
    for (char letter = 'a'; letter < 'a' + letters; ++letter) {
        const std::string id(1, letter);
        const int last = reference.lastPosition(id);
        if (model.hasRow(id) != (last >= 0) || model.getRowIndex(id) != last)
            ids += QLatin1Char(letter);
    }
    return ids;
}

ModelRow firstRow(const ReferenceList &reference, const std::string &id)
{
    const int position = reference.firstPosition(id);
    return position < 0 ? ModelRow() : reference.rows[position];
}

std::vector<ModelRow> withoutRepeats(const std::vector<ModelRow> &rows)
{
    std::vector<ModelRow> result;
    std::set<std::string> ids;
    for (const ModelRow &row : rows) {
        if (ids.insert(row.first).second)
            result.push_back(row);
    }
    return result;
}

/// Does one operation that announces the right number of rows, and returns its name.
QString doOneWithoutRepeats(Dice &dice, LetterListModel &model)
{
    const std::vector<ModelRow> given = withoutRepeats(dice.rows(2 * letters));
    const int size = model.getCount();
    if (size == 0) {
        model.appendRows(given);
        return QStringLiteral("appendRows");
    }
    const int row = dice.from(0, size - 1);
    switch (dice.from(0, 9)) {
    case 0:
        model.removeRows(row, dice.from(1, size - row));
        return QStringLiteral("removeRows");
    case 1:
        model.insertRows(row, dice.rows(3));
        return QStringLiteral("insertRows");
    case 2:
        model.setRoleValueForRow(dice.row().first,
                                 { { LetterListModel::Letter, QStringLiteral("E") } });
        return QStringLiteral("setRoleValueForRow");
    case 3:
    case 4:
    case 5:
        model.appendOrUpdate(given);
        return QStringLiteral("appendOrUpdate");
    default:
        model.replace(dice.changed(model.getRows()));
        return QStringLiteral("replace");
    }
}

/// Accepts other letters in upper than in lower case, so that a change may hide a row.
constexpr char shownLetters[] = "[a-fC-H]";

QString sortedAndFiltered(QString shown)
{
    shown.remove(QRegularExpression(QStringLiteral("[ABgh]")));
    std::sort(shown.begin(), shown.end());
    return shown;
}

} // namespace

void tst_BaseListModel::matchesTheReferenceList()
{
    Dice dice;
    LetterListModel model;
    ReferenceList reference;
    ModelLog log(model);
    for (int i = 0; i < operations; ++i) {
        reference.emitted.clear();
        reference.warnings.clear();
        const QString what = QStringLiteral("%1: %2: ").arg(i).arg(doOne(dice, model, reference));
        if (model.getRows() != reference.rows)
            QFAIL(qPrintable(what + textOf(model.getRows()) + QStringLiteral(", not ")
                             + textOf(reference.rows)));
        QCOMPARE(what + log.take(), what + reference.emitted.join(QLatin1String(" | ")));
        QCOMPARE(what + misfound(model, reference), what);
        const std::string id = dice.row().first;
        QVERIFY2(model.getRowById(id) == firstRow(reference, id), qPrintable(what));
    }
}

void tst_BaseListModel::keepsAProxySortedAndFiltered()
{
    Dice dice;
    LetterListModel model;
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    proxy.setSortRole(LetterListModel::Letter);
    proxy.setFilterRole(LetterListModel::Letter);
    proxy.setFilterRegularExpression(QString::fromLatin1(shownLetters));
    proxy.sort(0);
    for (int i = 0; i < 10000; ++i) {
        const QString before = model.text();
        const QString what = QStringLiteral("%1: %2 of %3: ")
                                     .arg(i)
                                     .arg(doOneWithoutRepeats(dice, model), before);
        QCOMPARE(what + ModelLog::rows(proxy, LetterListModel::Letter),
                 what + sortedAndFiltered(model.text()));
    }
}
