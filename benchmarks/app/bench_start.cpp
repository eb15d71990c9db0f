// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>

namespace {

/// The cost of a program from its start to its first paint.
struct Cost
{
    double nanoseconds = 0; ///< Of CPU time, so that a busy machine changes little.
    double megabytes = 0;   ///< Resident at the first paint.
    bool isValid = false;
};

/// Reads what the program prints; see FirstPaint.
Cost costIn(const char *report)
{
    char *end = nullptr;
    const double nanoseconds = std::strtod(report, &end);
    const double kilobytes = std::strtod(end, nullptr);
    return { nanoseconds, kilobytes / 1024.0, nanoseconds > 0 && kilobytes > 0 };
}

Cost costOf(const char *program)
{
    std::array<int, 2> output = {};
    if (pipe(output.data()) != 0)
        return {};
    const pid_t child = fork();
    if (child == 0) {
        dup2(output[1], STDOUT_FILENO);
        close(output[0]);
        execl(program, program, nullptr);
        _exit(127);
    }
    close(output[1]);
    std::array<char, 64> report = {};
    const ssize_t length = read(output[0], report.data(), report.size() - 1);
    close(output[0]);
    int status = 0;
    waitpid(child, &status, 0);
    const bool hasEndedWell = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    return length > 0 && hasEndedWell ? costIn(report.data()) : Cost();
}

/// Starts both programs in turn and adds the \a quantity of each to \a comparison.
void startBoth(benchmark::State &state, Comparison &comparison, double Cost::*quantity)
{
    for (auto _ : state) {
        const Cost ours = costOf(START_OURS);
        const Cost plain = costOf(START_PLAIN);
        if (!ours.isValid || !plain.isValid) {
            state.SkipWithError("a program did not come to its first paint");
            break;
        }
        comparison.add(ours.*quantity, plain.*quantity);
    }
}

void startTime(benchmark::State &state)
{
    Comparison comparison(state);
    startBoth(state, comparison, &Cost::nanoseconds);
    comparison.ratioAtMost(1.05);
}
BENCHMARK(startTime)
        ->Name("start to first paint of 20 widgets/plain Qt")
        ->Iterations(150) // Starts vary by as much as the bound.
        ->UseManualTime();

void startMemory(benchmark::State &state)
{
    Comparison comparison(state);
    startBoth(state, comparison, &Cost::megabytes);
    comparison.excessAtMost(1.5, "MB");
}
BENCHMARK(startMemory)
        ->Name("memory at first paint of 20 widgets/plain Qt")
        ->Iterations(15)
        ->UseManualTime();

void librarySize(benchmark::State &state)
{
    Comparison comparison(state);
    for (auto _ : state)
        comparison.add(double(std::filesystem::file_size(STRIPPED_LIBRARY)) / (1024 * 1024), 0);
    comparison.excessAtMost(1.5, "MB");
}
BENCHMARK(librarySize)->Name("the stripped library/nothing")->Iterations(1)->UseManualTime();

} // namespace
