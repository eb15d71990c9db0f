// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <string>

namespace {

/// What a program took from its start to its end, which is its first paint.
struct Cost
{
    double nanoseconds = 0; ///< Of CPU time, so that a busy machine changes little.
    double megabytes = 0;   ///< Resident at the first paint.
    bool isValid = false;
};

double nanosecondsOf(const timeval &time)
{
    return 1e9 * double(time.tv_sec) + 1e3 * double(time.tv_usec);
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
    std::array<char, 64> text = {};
    const ssize_t length = read(output[0], text.data(), text.size() - 1);
    close(output[0]);
    int status = 0;
    rusage usage = {};
    wait4(child, &status, 0, &usage);
    return { nanosecondsOf(usage.ru_utime) + nanosecondsOf(usage.ru_stime),
             double(std::strtol(text.data(), nullptr, 10)) / 1024.0,
             length > 0 && WIFEXITED(status) && WEXITSTATUS(status) == 0 };
}

/// Starts both programs in turn and adds to \a comparison what \a quantity of them differs in.
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
        ->Iterations(25)
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

} // namespace
