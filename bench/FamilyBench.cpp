// SPDX-License-Identifier: GPL-3.0-or-later
// A whole icon family against plain libpng on the two pictures in it that are PNG: encoding all twelve elements from a
// 512-pixel picture, resampling included, and decoding every representation.
// Wanted: at most 1.3 times libpng's time both ways, and at most 1.1 times its bytes.
#include "Compare.h"
#include "LibpngReference.h"
#include "iconfamily/IconFamily.h"

namespace quorvane::bench {
namespace {

void encodeFamily(benchmark::State& state) {
  const Image image = Image::imageWithBitmapImageRep(pictures().front().bitmap);
  double ours = 0;
  double reference = 0;
  compare(
      state, [&] { ours = static_cast<double>(IconFamily::iconFamilyWithThumbnailsOfImage(image)->bytes().size()); },
      [&] {
        reference = 0;
        for (const Picture& picture : pictures()) reference += static_cast<double>(encodeWithLibpng(picture).size());
      });
  state.counters["bytes"] = ours;
  state.counters["bytes_ratio"] = ours / reference;
}

void decodeFamily(benchmark::State& state) {
  const auto family =
      *IconFamily::iconFamilyWithThumbnailsOfImage(Image::imageWithBitmapImageRep(pictures().front().bitmap));
  compare(
      state,
      [&] {
        const auto image = family.imageWithAllReps();
        for (const ImageRep& rep : image->representations()) benchmark::DoNotOptimize(rep.bitmap());
      },
      [] {
        for (const Picture& picture : pictures()) benchmark::DoNotOptimize(decodeWithLibpng(picture.png));
      });
}

BENCHMARK(encodeFamily)->Name("encode a family")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(decodeFamily)->Name("decode all of a family")->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quorvane::bench
