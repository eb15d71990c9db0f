// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"

#include <algorithm>
#include <ctime>

namespace {

constexpr char atMost[] = "at_most";
constexpr char atLeast[] = "at_least";

} // namespace

void Comparison::add(double ours, double peer)
{
    m_ours.push_back(ours);
    m_peer.push_back(peer);
    m_state.SetIterationTime(ours * 1e-9);
}

void Comparison::ratioAtMost(double limit)
{
    report(medianOf([](double ours, double peer) { return ours / peer; }), atMost, limit, "ns");
}

void Comparison::gainAtLeast(double limit)
{
    report(medianOf([](double ours, double peer) { return peer / ours; }), atLeast, limit, "ns");
}

void Comparison::excessAtMost(double limit, const char *unit)
{
    report(medianOf([](double ours, double peer) { return ours - peer; }), atMost, limit, unit);
}

void Comparison::timeAtMost(double limit)
{
    report(medianOf([](double ours, double) { return ours; }), atMost, limit, "ns");
}

double Comparison::cpuNanoseconds()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return 1e9 * double(time.tv_sec) + double(time.tv_nsec);
}

template <typename Result>
double Comparison::medianOf(Result result) const
{
    if (m_ours.empty()) // A benchmark that found an error skips its rounds.
        return 0.0;
    std::vector<double> results(m_ours.size());
    std::transform(m_ours.begin(), m_ours.end(), m_peer.begin(), results.begin(), result);
    const auto middle = results.begin() + std::ptrdiff_t(results.size() / 2);
    std::nth_element(results.begin(), middle, results.end());
    return *middle;
}

/// Reports the medians as counters, which tools/bench-table reads by these names.
void Comparison::report(double result, const char *bound, double limit, const char *unit)
{
    m_state.counters["ours"] = medianOf([](double ours, double) { return ours; });
    m_state.counters["peer"] = medianOf([](double, double peer) { return peer; });
    m_state.counters["result"] = result;
    m_state.counters[bound] = limit;
    m_state.SetLabel(unit);
}
