// SPDX-License-Identifier: Apache-2.0
#include "ConversationRows.h"
#include "support/Comparison.h"

#include <QStandardItemModel>

namespace {

using namespace ConversationRows;

/// The same rows and index, without a model around them.
struct PlainList
{
    std::vector<ModelRow> rows;
    std::unordered_map<std::string, std::size_t> idIndex;

    void append(const std::vector<ModelRow> &given)
    {
        rows.reserve(rows.size() + given.size());
        idIndex.reserve(rows.size() + given.size());
        for (const ModelRow &row : given) {
            idIndex.emplace(row.first, rows.size());
            rows.push_back(row);
        }
    }

    void removeFirst()
    {
        rows.erase(rows.begin());
        fillIndex();
    }

    void insertFirst(const ModelRow &row)
    {
        rows.insert(rows.begin(), row);
        fillIndex();
    }

    void fillIndex()
    {
        idIndex.clear();
        for (std::size_t i = 0; i < rows.size(); ++i)
            idIndex[rows[i].first] = i;
    }

    void replace(const std::vector<ModelRow> &given)
    {
        idIndex.clear();
        for (std::size_t i = 0; i < given.size(); ++i) {
            idIndex[given[i].first] = i;
            if (rows[i] != given[i])
                rows[i] = given[i];
        }
    }
};

/// The rows in a QStandardItemModel, where each different value is set.
class StandardList
{
public:
    explicit StandardList(const std::vector<ModelRow> &rows)
    {
        for (const ModelRow &row : rows) {
            auto *item = new QStandardItem;
            for (const auto &[role, value] : row.second)
                item->setData(value, role);
            m_model.appendRow(item);
        }
    }

    void replace(const std::vector<ModelRow> &rows)
    {
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const QModelIndex index = m_model.index(int(i), 0);
            for (const auto &[role, value] : rows[i].second) {
                if (m_model.data(index, role) != value)
                    m_model.setData(index, value, role);
            }
        }
    }

    bool holds(const std::vector<ModelRow> &rows) const
    {
        for (std::size_t i = 0; i < rows.size(); ++i) {
            for (const auto &[role, value] : rows[i].second) {
                if (m_model.item(int(i))->data(role) != value)
                    return false;
            }
        }
        return true;
    }

private:
    QStandardItemModel m_model;
};

/// The lists that replace each other: every nth row differs, none for 0.
struct Replacements
{
    explicit Replacements(int nth) : lists { makeAll(nth, 1), makeAll(nth, 2) } { }
    std::vector<ModelRow> lists[2];
};

/// Returns how many runs of changed rows are signalled when all of \a rows are replaced.
int signalsOf(Model &model, const std::vector<ModelRow> &rows)
{
    int count = 0;
    const auto connection = QObject::connect(&model, &QAbstractItemModel::dataChanged,
                                             [&count] { ++count; });
    model.replace(rows);
    QObject::disconnect(connection);
    return count;
}

int expectedSignals(int nth) { return nth > 1 ? rowCount / nth : nth; }

/// Fills \a model with the second list, and returns what is wrong, if anything is.
const char *mistakeOf(Model &model, const Replacements &replacements, int nth)
{
    model.appendRows(makeAll());
    model.replace(replacements.lists[0]);
    if (signalsOf(model, replacements.lists[1]) != expectedSignals(nth))
        return "the runs of changed rows are others";
    return model.getRows() == replacements.lists[1] ? nullptr : "the rows are others";
}

void againstCompareAndAssign(benchmark::State &state, int nth)
{
    const Replacements replacements(nth);
    Model model;
    PlainList plain;
    plain.append(makeAll());
    plain.replace(replacements.lists[1]);
    if (const char *mistake = mistakeOf(model, replacements, nth))
        state.SkipWithError(mistake);
    if (plain.rows != model.getRows())
        state.SkipWithError("the plain list has other rows");

    Comparison comparison(state);
    int next = 0;
    for (auto _ : state) {
        const std::vector<ModelRow> &rows = replacements.lists[next];
        comparison.round([&] { model.replace(rows); }, [&] { plain.replace(rows); });
        next = 1 - next;
    }
    comparison.ratioAtMost(0.9);
}

void againstStandardModel(benchmark::State &state, int nth)
{
    const Replacements replacements(nth);
    Model model;
    StandardList standard(makeAll());
    standard.replace(replacements.lists[1]);
    if (const char *mistake = mistakeOf(model, replacements, nth))
        state.SkipWithError(mistake);
    if (!standard.holds(model.getRows()))
        state.SkipWithError("the standard model has other rows");

    Comparison comparison(state);
    int next = 0;
    for (auto _ : state) {
        const std::vector<ModelRow> &rows = replacements.lists[next];
        comparison.round([&] { model.replace(rows); }, [&] { standard.replace(rows); });
        next = 1 - next;
    }
    comparison.gainAtLeast(1.4);
}

void fill(benchmark::State &state)
{
    const std::vector<ModelRow> rows = makeAll();
    Comparison comparison(state);
    for (auto _ : state) {
        comparison.round(
                [&rows] {
                    Model model;
                    model.appendRows(rows);
                    benchmark::DoNotOptimize(model.getCount());
                },
                [&rows] {
                    PlainList plain;
                    plain.append(rows);
                    benchmark::DoNotOptimize(plain.rows.data());
                });
    }
    comparison.ratioAtMost(1.05);
}
BENCHMARK(fill)->Name("fill/copying rows and index")->Iterations(60)->UseManualTime();

void lookUp(benchmark::State &state)
{
    const std::vector<ModelRow> rows = makeAll();
    const std::vector<std::string> ids = shuffledIds(rows);
    Model model;
    model.appendRows(rows);
    PlainList plain;
    plain.append(rows);
    for (const std::string &id : ids) {
        if (model.getRowIndex(id) != int(plain.idIndex.find(id)->second))
            state.SkipWithError("the positions are others");
    }

    Comparison comparison(state);
    for (auto _ : state) {
        comparison.round(
                [&] {
                    for (const std::string &id : ids)
                        benchmark::DoNotOptimize(model.getRowIndex(id));
                },
                [&] {
                    for (const std::string &id : ids)
                        benchmark::DoNotOptimize(plain.idIndex.find(id));
                });
    }
    comparison.ratioAtMost(1.05);
}
BENCHMARK(lookUp)->Name("getRowIndex/bare hash map")->Iterations(400)->UseManualTime();

/// Returns the first \a count of all rows.
std::vector<ModelRow> firstRows(int count)
{
    const std::vector<ModelRow> rows = makeAll();
    return { rows.begin(), rows.begin() + count };
}

/// Removes \a count rows at the front of a model and of a plain list of \a size, one by one, and
/// inserts them there again.
void oneByOne(benchmark::State &state, int size, double gain)
{
    constexpr int count = 20;
    const std::vector<ModelRow> rows = firstRows(size);
    Model model;
    model.appendRows(rows);
    PlainList plain;
    plain.append(rows);
    Comparison comparison(state);
    for (auto _ : state) {
        comparison.round(
                [&] {
                    for (int i = 0; i < count; ++i)
                        model.removeRows(0, 1);
                    for (int i = count - 1; i >= 0; --i)
                        model.insertRows(0, { rows[std::size_t(i)] });
                },
                [&] {
                    for (int i = 0; i < count; ++i)
                        plain.removeFirst();
                    for (int i = count - 1; i >= 0; --i)
                        plain.insertFirst(rows[std::size_t(i)]);
                });
    }
    if (model.getRows() != rows || plain.rows != rows || model.getRowIndex(rows[7].first) != 7)
        state.SkipWithError("the rows are others");
    comparison.gainAtLeast(gain);
}
BENCHMARK_CAPTURE(oneByOne, small, 2500, 1.5)
        ->Name("2,500 rows: remove and insert one by one/filling the index anew")
        ->Iterations(20)
        ->UseManualTime();
BENCHMARK_CAPTURE(oneByOne, large, rowCount, 1.5)
        ->Name("10,000 rows: remove and insert one by one/filling the index anew")
        ->Iterations(20)
        ->UseManualTime();

/// An operation on a model with rows.
using Work = void (*)(Model &, const std::vector<ModelRow> &);

/// Compares \a work on four times the rows with \a work on a quarter of them.
void growth(benchmark::State &state, Work work)
{
    const std::vector<ModelRow> many = firstRows(rowCount);
    const std::vector<ModelRow> few = firstRows(rowCount / 4);
    Comparison comparison(state);
    for (auto _ : state) {
        Model large;
        Model small;
        comparison.round([&] { work(large, many); }, [&] { work(small, few); });
    }
    // Four times the rows, of which fewer fit the caches.
    comparison.ratioAtMost(8);
}

void appendSingly(Model &model, const std::vector<ModelRow> &rows)
{
    for (const ModelRow &row : rows)
        model.appendRows({ row });
}

void removeTheLastSingly(Model &model, const std::vector<ModelRow> &rows)
{
    model.appendRows(rows);
    while (model.getCount() > 0)
        model.removeRows(model.getCount() - 1, 1);
}

void writeByIds(Model &model, const std::vector<ModelRow> &rows)
{
    model.appendRows(rows);
    for (const ModelRow &row : rows)
        model.setRoleValueForRow(row.first, { { firstRole, 1 } });
}

void updateBackwards(Model &model, const std::vector<ModelRow> &given)
{
    std::vector<ModelRow> rows = given;
    model.appendRows(rows);
    std::reverse(rows.begin(), rows.end());
    model.appendOrUpdate(rows);
}

/// Each row takes another's place, so that all ids move.
void replaceByRotated(Model &model, const std::vector<ModelRow> &given)
{
    std::vector<ModelRow> rows = given;
    model.appendRows(rows);
    std::rotate(rows.begin(), rows.begin() + 1, rows.end());
    model.replace(rows);
}

/// Registers \a function for each share of changed rows, as "every nth".
void registerShares(const std::string &peer, void (*function)(benchmark::State &, int))
{
    const std::pair<const char *, int> shares[] = {
        { "0 %", 0 }, { "1 %", 100 }, { "10 %", 10 }, { "100 %", 1 }
    };
    for (const auto &[share, nth] : shares) {
        const std::string name = std::string("replace ") + share + "/" + peer;
        benchmark::RegisterBenchmark(name.c_str(), function, nth)->Iterations(60)->UseManualTime();
    }
}

/// Registers the operations that go through all that they are given.
void registerGrowths()
{
    const std::pair<const char *, Work> works[] = {
        { "append one by one", appendSingly },
        { "remove the last one by one", removeTheLastSingly },
        { "write values by id", writeByIds },
        { "update backwards", updateBackwards },
        { "replace by rotated", replaceByRotated },
    };
    for (const auto &[what, work] : works) {
        const std::string name = std::string("10,000 rows: ") + what + "/2,500 rows";
        benchmark::RegisterBenchmark(name.c_str(), growth, work)->Iterations(20)->UseManualTime();
    }
}

const bool areRegistered = [] {
    registerGrowths();
    registerShares("compare and assign", againstCompareAndAssign);
    registerShares("setData of a standard model", againstStandardModel);
    return true;
}();

} // namespace
