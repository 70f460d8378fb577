// SPDX-License-Identifier: GPL-3.0-or-later
// What colour a picture has, on the whole.
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <span>
#include <vector>

#include "imaging/Premultiply.h"
#include "imaging/Tint.h"

namespace quorvane {

namespace {

// Pixels that are looked at each way: the body of a picture is large.
constexpr int sampledSide = 128;
// Chroma at which a pixel begins to be coloured, and is.
constexpr float faintChroma = 0.015F;
constexpr float plainChroma = 0.045F;
// Share of a picture's area, by alpha, that makes a coloured part its body; a smaller one is a spot.
constexpr float bodyShare = 0.12F;

constexpr std::size_t hueBins = 72;
constexpr std::size_t lightnessBins = 64;

struct Sample {
  OkLab color;
  float weight = 0;
};

float rising(float from, float to, float x) {
  return std::clamp((x - from) / (to - from), 0.0F, 1.0F);
}

std::vector<Sample> samplesOf(const BitmapImageRep& bitmap) {
  const BitmapImageRep standard = bitmap.toStandard();
  const int stepX = std::max(1, standard.pixelsWide() / sampledSide);
  const int stepY = std::max(1, standard.pixelsHigh() / sampledSide);
  std::vector<Sample> samples;
  for (int y = stepY / 2; y < standard.pixelsHigh(); y += stepY) {
    const std::uint8_t* row = standard.row(y);
    for (int x = stepX / 2; x < standard.pixelsWide(); x += stepX) {
      const std::uint8_t* pixel = row + std::ptrdiff_t{x} * 4;
      const unsigned alpha = pixel[3];
      if (alpha == 0) continue;
      const auto light = [&](int channel) { return linearOfByte(unpremultiplied(pixel[channel], alpha)); };
      samples.push_back({okLabOf(LinearRgb{light(0), light(1), light(2)}), static_cast<float>(alpha) / 255});
    }
  }
  return samples;
}

/// The bin in the middle of the fullest neighbourhood of `reach` bins each way.
std::size_t modeOf(std::span<const float> bins, std::size_t reach, bool isCircle) {
  std::size_t best = 0;
  float most = -1;
  for (std::size_t i = 0; i < bins.size(); ++i) {
    float sum = 0;
    for (std::size_t k = 0; k <= 2 * reach; ++k) {
      const std::size_t at = i + k;
      if (!isCircle && (at < reach || at - reach >= bins.size())) continue;
      const float nearness =
          1 + static_cast<float>(reach) - std::abs(static_cast<float>(k) - static_cast<float>(reach));
      sum += bins[(at + bins.size() - reach) % bins.size()] * nearness;
    }
    if (sum > most) {
      most = sum;
      best = i;
    }
  }
  return best;
}

float hueOf(const OkLab& color) {
  const float turns = std::atan2(color.b, color.a) / (2 * std::numbers::pi_v<float>);
  return turns < 0 ? turns + 1 : turns;
}

float hueDistance(float a, float b) {
  const float distance = std::abs(a - b);
  return std::min(distance, 1 - distance);
}

/// The mean of the samples around the commonest lightness.
OkLab commonest(std::span<const Sample> samples) {
  std::array<float, lightnessBins> bins{};
  const auto binOf = [](const Sample& sample) {
    return std::min(static_cast<std::size_t>(std::max(sample.color.lightness, 0.0F) * lightnessBins),
                    lightnessBins - 1);
  };
  for (const Sample& sample : samples) bins[binOf(sample)] += sample.weight;
  const std::size_t mode = modeOf(bins, 2, false);
  OkLab sum;
  float weights = 0;
  for (const Sample& sample : samples) {
    if (binOf(sample) + 2 < mode || binOf(sample) > mode + 2) continue;
    sum.lightness += sample.color.lightness * sample.weight;
    sum.a += sample.color.a * sample.weight;
    sum.b += sample.color.b * sample.weight;
    weights += sample.weight;
  }
  if (weights <= 0) return {0.5F, 0, 0};
  return {sum.lightness / weights, sum.a / weights, sum.b / weights};
}

}  // namespace

BodyColor BodyColor::of(const BitmapImageRep& bitmap) {
  std::vector<Sample> samples = samplesOf(bitmap);
  float area = 0;
  float coloredArea = 0;
  std::array<float, hueBins> hues{};
  for (const Sample& sample : samples) {
    const float colored = sample.weight * rising(faintChroma, plainChroma, sample.color.chroma());
    area += sample.weight;
    coloredArea += colored;
    if (colored > 0) hues[static_cast<std::size_t>(hueOf(sample.color) * hueBins) % hueBins] += colored;
  }
  BodyColor body;
  if (coloredArea <= area * bodyShare) {
    body.color = commonest(samples);
    return body;
  }
  const float hue = (static_cast<float>(modeOf(hues, 3, true)) + 0.5F) / hueBins;
  std::erase_if(samples, [&](const Sample& sample) {
    return sample.color.chroma() < faintChroma || hueDistance(hueOf(sample.color), hue) > 30.0F / 360;
  });
  body.color = commonest(samples);
  body.colorfulness = rising(faintChroma, plainChroma, body.color.chroma());
  return body;
}

}  // namespace quorvane
