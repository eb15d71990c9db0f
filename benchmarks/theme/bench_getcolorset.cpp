// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"
#include "support/Stores.h"

#include <UiElements/theme/OxaThemeUtils.h>

namespace {

constexpr int callsPerRound = 1000;

/// Longer than a std::string stores without allocating, as most names are.
const std::string name = "set-399-with-a-name-of-usual-length";

OxaColorSetMap store()
{
    OxaColorSetMap sets = Stores::make(600);
    sets.emplace(name, OxaColorSet(QString::fromStdString(name), Qt::red));
    return sets;
}

void lookUp()
{
    benchmark::DoNotOptimize(OxaThemeUtils::getColorSet(name, OxaThemeUtils::AppThemeType::Dark));
}

void getColorSet(benchmark::State &state)
{
    OxaThemeUtils::setAppOxaColorSets(store());
    OxaThemeUtils::setAppInvertedOxaColorSets(store());
    const OxaColorSetMap &sets = OxaThemeUtils::getAppInvertedOxaColorSets();

    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([] { lookUp(); },
                         [&sets] {
                             benchmark::DoNotOptimize(OxaColorSet(sets.find(name)->second));
                         },
                         callsPerRound);
    comparison.timeAtMost(200);
}
BENCHMARK(getColorSet)
        ->Name("getColorSet/a look-up in the map and a copy")
        ->Iterations(1000)
        ->UseManualTime();

} // namespace
