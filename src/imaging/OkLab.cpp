// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/OkLab.h"

#include <algorithm>

namespace quorvane {

namespace {

// Fine enough that the darkest bytes, which lie closest, keep apart.
constexpr std::size_t lightSteps = 16384;
// Rounding alone must not count as out of gamut.
constexpr float gamutSlack = 1e-4F;

double lightOf(double sample) {
  return sample <= 0.04045 ? sample / 12.92 : std::pow((sample + 0.055) / 1.055, 2.4);
}

double sampleOf(double light) {
  return light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}

bool isWithinGamut(const LinearRgb& color) {
  return std::min({color.red, color.green, color.blue}) >= -gamutSlack &&
         std::max({color.red, color.green, color.blue}) <= 1 + gamutSlack;
}

}  // namespace

float linearOfByte(std::uint8_t sample) {
  static const auto table = [] {
    std::array<float, 256> lights{};
    for (std::size_t i = 0; i < lights.size(); ++i)
      lights[i] = static_cast<float>(lightOf(static_cast<double>(i) / 255));
    return lights;
  }();
  return table[sample];
}

std::uint8_t byteOfLinear(float light) {
  static const auto table = [] {
    std::array<std::uint8_t, lightSteps + 1> samples{};
    for (std::size_t i = 0; i < samples.size(); ++i)
      samples[i] = static_cast<std::uint8_t>(std::lround(sampleOf(static_cast<double>(i) / lightSteps) * 255));
    return samples;
  }();
  return table[static_cast<std::size_t>(std::clamp(light, 0.0F, 1.0F) * lightSteps + 0.5F)];
}

OkLab okLabOf(const QColor& color) {
  const QColor rgb = color.toRgb();
  const auto light = [](float sample) { return static_cast<float>(lightOf(static_cast<double>(sample))); };
  return okLabOf(LinearRgb{light(rgb.redF()), light(rgb.greenF()), light(rgb.blueF())});
}

QColor colorOf(const OkLab& color) {
  const LinearRgb rgb = linearRgbOf(withinGamut(color));
  return {byteOfLinear(rgb.red), byteOfLinear(rgb.green), byteOfLinear(rgb.blue)};
}

OkLab withinGamut(const OkLab& color) {
  const float lightness = std::clamp(color.lightness, 0.0F, 1.0F);
  const auto reduced = [&](float share) { return OkLab{lightness, color.a * share, color.b * share}; };
  if (isWithinGamut(linearRgbOf(reduced(1)))) return reduced(1);
  float least = 0;
  float most = 1;
  // Half a step of the chroma's largest value is less than a byte's.
  for (int step = 0; step < 10; ++step) {
    const float middle = (least + most) / 2;
    (isWithinGamut(linearRgbOf(reduced(middle))) ? least : most) = middle;
  }
  return reduced(least);
}

}  // namespace quorvane
