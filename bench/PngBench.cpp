// SPDX-License-Identifier: GPL-3.0-or-later
// Our PNG codec against libpng as it comes, on the two pictures that an icon family holds as PNG: 512 and 256 pixels.
// Wanted: encoding at most 0.6 of the time and 1.05 of the bytes, decoding at most 1.1 of the time.
#include "Compare.h"
#include "LibpngReference.h"

namespace quorvane::bench {
namespace {

void encode(benchmark::State& state) {
  double ours = 0;
  double reference = 0;
  compare(
      state,
      [&] {
        ours = 0;
        for (const Picture& picture : pictures()) ours += static_cast<double>(encodePng(picture.bitmap)->size());
      },
      [&] {
        reference = 0;
        for (const Picture& picture : pictures()) reference += static_cast<double>(encodeWithLibpng(picture).size());
      });
  state.counters["bytes"] = ours;
  state.counters["bytes_ratio"] = ours / reference;
}

void decode(benchmark::State& state) {
  pictures();
  compare(
      state,
      [] {
        for (const Picture& picture : pictures()) benchmark::DoNotOptimize(decodePng(picture.png, 512));
      },
      [] {
        for (const Picture& picture : pictures()) benchmark::DoNotOptimize(decodeWithLibpng(picture.png));
      });
}

BENCHMARK(encode)->Name("encode 512 and 256")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(decode)->Name("decode 512 and 256")->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quorvane::bench
