// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <benchmark/benchmark.h>

#include <vector>

/// Measures ours against a peer that does the same work, in one run.
///
///     Comparison comparison(state);
///     for (auto _ : state)
///         comparison.round([] { ours(); }, [] { peer(); });
///     comparison.ratioAtMost(0.6);
///
/// Both take turns in each round, ours first in one round and last in the next, so that a machine
/// that slows down slows both. Times are the thread's CPU time in nanoseconds. The medians
/// over the rounds are reported, so that one disturbed round changes nothing. The last call selects
/// what is compared, and its bound.
class Comparison
{
public:
    explicit Comparison(benchmark::State &state) : m_state(state) { }

    /// Times \a calls calls of each side.
    template <typename Ours, typename Peer>
    void round(Ours ours, Peer peer, int calls = 1)
    {
        round(
                ours, peer, [] {}, calls);
    }

    /// Does the same, and after each side calls \a tidyUp, whose time does not count.
    template <typename Ours, typename Peer, typename TidyUp>
    void round(Ours ours, Peer peer, TidyUp tidyUp, int calls = 1)
    {
        const bool oursFirst = m_ours.size() % 2 == 0;
        const double first = oursFirst ? timeOf(ours, calls) : timeOf(peer, calls);
        tidyUp();
        const double second = oursFirst ? timeOf(peer, calls) : timeOf(ours, calls);
        tidyUp();
        add(oursFirst ? first : second, oursFirst ? second : first);
    }

    /// Adds a round that was measured elsewhere, in whatever unit.
    void add(double ours, double peer);

    /// Ours over the peer's.
    void ratioAtMost(double limit);

    /// The peer's over ours: how many times faster ours is.
    void gainAtLeast(double limit);

    /// How much more ours takes, in the unit of the rounds, which is called \a unit.
    void excessAtMost(double limit, const char *unit);

    /// Ours by itself, in nanoseconds.
    void timeAtMost(double limit);

    /// Returns the time of one of \a calls calls.
    template <typename Work>
    static double timeOf(Work &&work, int calls = 1)
    {
        const double start = cpuNanoseconds();
        for (int i = 0; i < calls; ++i)
            work();
        return (cpuNanoseconds() - start) / calls;
    }

private:
    static double cpuNanoseconds();

    template <typename Result>
    double medianOf(Result result) const;
    void report(double result, const char *bound, double limit, const char *unit);

    benchmark::State &m_state;
    std::vector<double> m_ours;
    std::vector<double> m_peer;
};
