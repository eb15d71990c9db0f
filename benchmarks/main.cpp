// SPDX-License-Identifier: Apache-2.0
// The main function of all benchmark programs.

#include "support/BenchmarkApplication.h"

#include <benchmark/benchmark.h>

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    const BenchmarkApplication application(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
