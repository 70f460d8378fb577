// SPDX-License-Identifier: GPL-3.0-or-later
// The pictures of a whole icon family, all from the 512-pixel one, against the drawing library's area average.
// Wanted: well under 8 ms for the family.
#include "Compare.h"
#include "FolderPicture.h"
#include "imaging/Resampler.h"

namespace quorvane::bench {
namespace {

constexpr int familySizes[] = {256, 128, 32, 16};

void family(benchmark::State& state) {
  const BitmapImageRep source = folderBitmap(512);
  const QImage image = folderPicture(512);
  compare(
      state,
      [&] {
        for (const int width : familySizes)
          benchmark::DoNotOptimize(source.bitmapImageRepByScalingToSize(
              {static_cast<float>(width), static_cast<float>(width)}, ImageInterpolation::High, std::nullopt));
      },
      [&] {
        for (const int width : familySizes)
          benchmark::DoNotOptimize(image.scaled(width, width, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
      });
}

/// One size to another: the arguments are both.
void single(benchmark::State& state) {
  const auto from = static_cast<int>(state.range(0));
  const auto to = static_cast<float>(state.range(1));
  const BitmapImageRep source = folderBitmap(from);
  for ([[maybe_unused]] const auto& iteration : state)
    benchmark::DoNotOptimize(source.bitmapImageRepByScalingToSize({to, to}, ImageInterpolation::High, std::nullopt));
}

BENCHMARK(family)->Name("family from 512")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(single)
    ->Name("scale")
    ->Args({512, 256})
    ->Args({512, 128})
    ->Args({512, 32})
    ->Args({512, 16})
    ->Args({1024, 512})
    ->Args({128, 512})
    ->Args({512, 512})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quorvane::bench
