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

/// The rows in Qt's general model, where each value that differs is set.
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

/// Returns how many runs of changed rows replacing all of \a rows tells of.
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

/// Readies \a model with the second list, and says what is wrong where something is.
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

const bool areSharesRegistered = [] {
    registerShares("compare and assign", againstCompareAndAssign);
    registerShares("setData of a standard model", againstStandardModel);
    return true;
}();

} // namespace
