// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

namespace quorvane::bench {

/// Runs ours and the reference in turn, so that a busy machine slows both, and reports ours; the counters hold the
/// reference's time in milliseconds and the quotient of the medians. Register with UseManualTime().
template <typename Ours, typename Reference>
void compare(benchmark::State& state, const Ours& ours, const Reference& reference) {
  using Clock = std::chrono::steady_clock;
  std::vector<double> ourTimes;
  std::vector<double> referenceTimes;
  const auto timed = [](const auto& work) {
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - start).count();
  };
  const auto median = [](std::vector<double>& times) {
    std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2), times.end());
    return times[times.size() / 2];
  };
  for ([[maybe_unused]] const auto& iteration : state) {
    referenceTimes.push_back(timed(reference));
    ourTimes.push_back(timed(ours));
    state.SetIterationTime(ourTimes.back());
  }
  const double referenceTime = median(referenceTimes);
  state.counters["reference_ms"] = referenceTime * 1000;
  state.counters["time_ratio"] = median(ourTimes) / referenceTime;
}

}  // namespace quorvane::bench
