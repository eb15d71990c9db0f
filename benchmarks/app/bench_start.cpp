// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>

namespace {

/// What a program prints; see FirstPaint, and many_labels.
using Numbers = std::array<double, 2>;

Numbers numbersIn(const char *report)
{
    char *end = nullptr;
    const double first = std::strtod(report, &end);
    return { first, std::strtod(end, nullptr) };
}

/// Runs a program, with \a argument unless it is null. Zeros mean that it has failed.
Numbers run(const char *program, const char *argument)
{
    std::array<int, 2> output = {};
    if (pipe(output.data()) != 0)
        return {};
    const pid_t child = fork();
    if (child == 0) {
        dup2(output[1], STDOUT_FILENO);
        close(output[0]);
        execl(program, program, argument, nullptr);
        _exit(127);
    }
    close(output[1]);
    std::array<char, 64> report = {};
    const ssize_t length = read(output[0], report.data(), report.size() - 1);
    close(output[0]);
    int status = 0;
    waitpid(child, &status, 0);
    const bool hasEndedWell = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    return length > 0 && hasEndedWell ? numbersIn(report.data()) : Numbers();
}

/// Runs both programs in turn, the \a peer with \a argument, and adds one number of each to
/// \a comparison.
void runBoth(benchmark::State &state, Comparison &comparison, std::size_t index, const char *ours,
             const char *peer, const char *argument = nullptr)
{
    bool isOursFirst = false; // In turns: the second finds what the first has left in the caches.
    for (auto _ : state) {
        isOursFirst = !isOursFirst;
        double oursCost = isOursFirst ? run(ours, nullptr).at(index) : 0;
        const double peerCost = run(peer, argument).at(index);
        if (!isOursFirst)
            oursCost = run(ours, nullptr).at(index);
        if (oursCost <= 0 || peerCost <= 0) {
            state.SkipWithError("a program has failed");
            break;
        }
        comparison.add(oursCost, peerCost);
    }
}

void startTime(benchmark::State &state)
{
    Comparison comparison(state);
    runBoth(state, comparison, 0, START_OURS, START_PLAIN);
    comparison.ratioAtMost(1.05);
}
BENCHMARK(startTime)
        ->Name("start to first paint of 20 widgets/plain Qt")
        ->Iterations(150) // Starts vary by as much as the bound.
        ->UseManualTime();

void startMemory(benchmark::State &state)
{
    Comparison comparison(state);
    runBoth(state, comparison, 1, START_OURS, START_PLAIN);
    comparison.excessAtMost(1.5, "MB");
}
BENCHMARK(startMemory)
        ->Name("memory at first paint of 20 widgets/plain Qt")
        ->Iterations(15)
        ->UseManualTime();

/// No assistive technology is running. Qt asks for an interface of each widget that gets a text all
/// the same, and the library's has one of Qt's in it.
void accessibility(benchmark::State &state, const char *program, std::size_t index, double limit)
{
    Comparison comparison(state);
    runBoth(state, comparison, index, program, program, "Qt");
    comparison.ratioAtMost(limit);
}
BENCHMARK_CAPTURE(accessibility, start, START_OURS, 0, 1.02)
        ->Name("start to first paint of 20 widgets/accessibility left to Qt")
        ->Iterations(150)
        ->UseManualTime();
BENCHMARK_CAPTURE(accessibility, making, MANY_LABELS, 0, 1.2)
        ->Name("1,000 labels with texts/accessibility left to Qt")
        ->Iterations(60)
        ->UseManualTime();
BENCHMARK_CAPTURE(accessibility, themeSwitch, MANY_LABELS, 1, 1.05)
        ->Name("theme switch of 1,000 labels/accessibility left to Qt")
        ->Iterations(60)
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
