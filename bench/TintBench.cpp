// SPDX-License-Identifier: GPL-3.0-or-later
// Tinting pictures of 512 x 512, against a loop that converts every pixel with the library's own functions.
#include <cmath>
#include <random>

#include "Compare.h"
#include "FolderPicture.h"
#include "imaging/Premultiply.h"
#include "imaging/Tint.h"

namespace {

using namespace quorvane;

constexpr int side = 512;

/// Every pixel of a colour of its own: a photograph is not as bad.
BitmapImageRep noise() {
  auto bitmap = BitmapImageRep::bitmapImageRepWithSize({side, side});
  std::mt19937 random(1);
  for (int y = 0; y < side; ++y)
    for (int i = 0; i < 4 * side; ++i) bitmap.mutableRow(y)[i] = i % 4 == 3 ? 255 : static_cast<std::uint8_t>(random());
  return bitmap;
}

double lightOf(double sample) {
  return sample <= 0.04045 ? sample / 12.92 : std::pow((sample + 0.055) / 1.055, 2.4);
}

double sampleOf(double light) {
  return light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}

BitmapImageRep plainLoop(const BitmapImageRep& bitmap, const TintMap& map) {
  BitmapImageRep result = bitmap;
  for (int y = 0; y < side; ++y) {
    std::uint8_t* pixel = result.mutableRow(y);
    for (int x = 0; x < side; ++x, pixel += 4) {
      if (pixel[3] == 0) continue;
      const auto light = [&](int channel) {
        return static_cast<float>(lightOf(unpremultiplied(pixel[channel], pixel[3]) / 255.0));
      };
      const LinearRgb rgb = linearRgbOf(map(okLabOf(LinearRgb{light(0), light(1), light(2)})));
      const float lights[] = {rgb.red, rgb.green, rgb.blue};
      for (int channel = 0; channel < 3; ++channel) {
        const double sample = sampleOf(std::clamp(static_cast<double>(lights[channel]), 0.0, 1.0));
        pixel[channel] = premultiplied(static_cast<unsigned>(std::lround(sample * 255)), pixel[3]);
      }
    }
  }
  return result;
}

void compareOn(benchmark::State& state, const BitmapImageRep& bitmap) {
  const TintMap map(BodyColor::of(bitmap), QColor(0x46, 0xA7, 0x58));
  bench::compare(
      state, [&] { benchmark::DoNotOptimize(tinted(bitmap, map)); },
      [&] { benchmark::DoNotOptimize(plainLoop(bitmap, map)); });
}

void BM_TintFolder(benchmark::State& state) {
  compareOn(state, bench::folderBitmap(side));
}
void BM_TintNoise(benchmark::State& state) {
  compareOn(state, noise());
}
void BM_BodyColor(benchmark::State& state) {
  const BitmapImageRep bitmap = bench::folderBitmap(side);
  for ([[maybe_unused]] const auto& iteration : state) benchmark::DoNotOptimize(BodyColor::of(bitmap));
}

BENCHMARK(BM_TintFolder)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TintNoise)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_BodyColor)->Unit(benchmark::kMillisecond);

}  // namespace
