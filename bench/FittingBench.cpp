// SPDX-License-Identifier: GPL-3.0-or-later
// How long a label's font size takes to find: from one layout, and by the plain loop that is its definition. The
// counter "of_plain" is the share of the plain loop's time, taken in the same run.
#include <chrono>

#include "LabelBench.h"
#include "composition/core/LabelFitting.h"

namespace {

using namespace quorvane;
using bench::threeLines;

LabelLook lookFrom(double points) {
  LabelLook look;
  look.font = LabelFont{QStringLiteral("DejaVu Sans"), {}, points};
  look.lineSpacingFactor = 1;
  return look;
}

void BM_PlainLoop(benchmark::State& state) {
  const LabelLook look = lookFrom(static_cast<double>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(fitLabelPlainly(threeLines(), look, {128, 128}));
}
BENCHMARK(BM_PlainLoop)->Arg(20)->Arg(50)->Arg(100)->Arg(300)->Unit(benchmark::kMicrosecond);

void BM_FromOneLayout(benchmark::State& state) {
  using Clock = std::chrono::steady_clock;
  const LabelLook look = lookFrom(static_cast<double>(state.range(0)));
  FittedLabel plain;
  constexpr int plainRuns = 20;
  const auto start = Clock::now();
  for (int run = 0; run < plainRuns; ++run) plain = fitLabelPlainly(threeLines(), look, {128, 128});
  const std::chrono::duration<double> plainTime = (Clock::now() - start) / plainRuns;
  if (!(fitLabel(threeLines(), look, {128, 128}).label == plain)) state.SkipWithError("the two differ");
  std::chrono::duration<double> time{};
  for (auto _ : state) {
    const auto begin = Clock::now();
    benchmark::DoNotOptimize(fitLabel(threeLines(), look, {128, 128}));
    time += Clock::now() - begin;
  }
  state.counters["of_plain"] = time.count() / static_cast<double>(state.iterations()) / plainTime.count();
}
BENCHMARK(BM_FromOneLayout)->Arg(20)->Arg(50)->Arg(100)->Arg(300)->Unit(benchmark::kMicrosecond);

}  // namespace
