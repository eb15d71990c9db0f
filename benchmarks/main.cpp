// SPDX-License-Identifier: Apache-2.0
// The main function of all benchmark programs.

#include <UiElements/app/OxaApplication.h>

#include <benchmark/benchmark.h>

namespace {

/// An outer application whose hooks do nothing.
class BenchmarkApplication final : public OxaApplication
{
public:
    using OxaApplication::OxaApplication;

    void onQmlEngineCreated(OxaQmlEngine *) override { }
    void restart() override { }
    void registerMainWindowShortcuts(OxaMainWindow *) override { }
};

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    const BenchmarkApplication application(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
