// SPDX-License-Identifier: Apache-2.0
#include "Tiles.h"
#include "support/Comparison.h"

#include <string>

namespace {

constexpr int width = 1200;

/// The lower bound: adding up the size hints of the items, which cache them.
int sumOfHints(const std::vector<QLayoutItem *> &items)
{
    int sum = 0;
    for (const QLayoutItem *item : items) {
        const QSize size = item->sizeHint();
        sum += size.width() + size.height();
    }
    return sum;
}

/// The same for a layout that asks the widgets.
int sumOfWidgetHints(const std::vector<QLayoutItem *> &items)
{
    int sum = 0;
    for (QLayoutItem *item : items) {
        const QSize size = item->widget()->sizeHint();
        sum += size.width() + size.height();
    }
    return sum;
}

void measure(benchmark::State &state, Tiles::Kind kind, int count)
{
    const Tiles::Window window(kind, count);
    const auto sum = kind == Tiles::Kind::SmartByWidgets ? sumOfWidgetHints : sumOfHints;
    const int calls = 100000 / count;
    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([&] { benchmark::DoNotOptimize(window.layout->heightForWidth(width)); },
                         [&] { benchmark::DoNotOptimize(sum(window.items)); }, calls);
    comparison.ratioAtMost(4.0);
}

/// Ten times the items, compared with ten calls. A thousand items stay in the processor's caches
/// between calls, ten thousand do not.
void measureManyItems(benchmark::State &state, Tiles::Kind kind)
{
    const Tiles::Window many(kind, 10000);
    const Tiles::Window few(kind, 1000);
    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([&] { benchmark::DoNotOptimize(many.layout->heightForWidth(width)); },
                         [&] {
                             for (int i = 0; i < 10; ++i)
                                 benchmark::DoNotOptimize(few.layout->heightForWidth(width));
                         },
                         10);
    comparison.ratioAtMost(2.0);
}

const bool areAdded = [] {
    for (const auto &[kind, name] : Tiles::kinds) {
        const std::string thing = std::string(name) + "::heightForWidth, ";
        for (const auto &[count, countName] : Tiles::counts)
            benchmark::RegisterBenchmark((thing + countName + " items/a loop over size hints")
                                                 .c_str(),
                                         measure, kind, count)
                    ->Iterations(200)
                    ->UseManualTime();
        benchmark::RegisterBenchmark((thing + "10,000 items/10 times 1,000").c_str(),
                                     measureManyItems, kind)
                ->Iterations(100)
                ->UseManualTime();
    }
    return true;
}();

} // namespace
