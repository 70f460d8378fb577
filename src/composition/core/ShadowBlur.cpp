// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/ShadowBlur.h"

#include <algorithm>
#include <cmath>

namespace quorvane {

namespace {

constexpr int passes = 3;

/// A box of 2 * radius + 1 samples of weight 1 and one of weight `edge` (0 to 1) at either side.
struct Box {
  int radius = 0;
  float edge = 0;

  /// The box of which `passes` in a row have the variance sigma squared (the extended box filter of Gwosdek et al.,
  /// "Theoretical Foundations of Gaussian Convolution by Extended Box Filtering", 2011).
  static Box forSigma(double sigma) {
    const double variance = sigma * sigma / passes;
    const double radius = std::floor(0.5 * std::sqrt(12 * variance + 1) - 0.5);
    const double next = radius + 1;
    const double edge = (2 * radius + 1) * (radius * next - 3 * variance) / (6 * (variance - next * next));
    return {static_cast<int>(radius), static_cast<float>(edge)};
  }
};

// Lines are blurred side by side: along a line each sum needs the one before, across them the compiler has free hand.
constexpr int lanes = 16;

/// Several lines side by side, sample by sample, with zeros before and behind as far as a box reaches.
class Strip {
 public:
  Strip(int count, const Box& box)
      : _count(count),
        _room(box.radius + 1),
        _samples(static_cast<std::size_t>(count + 2 * _room) * static_cast<std::size_t>(lanes)) {}

  /// The samples at a place of the lines, -room to count + room.
  [[nodiscard]] std::int16_t* at(int place) { return _samples.data() + std::ptrdiff_t{_room + place} * lanes; }
  [[nodiscard]] const std::int16_t* at(int place) const {
    return _samples.data() + std::ptrdiff_t{_room + place} * lanes;
  }

  void average(const Strip& from, const Box& box) {
    const float share = 1 / (static_cast<float>(2 * box.radius + 1) + 2 * box.edge);
    const float edgeShare = box.edge * share;
    // Sums of whole samples are exact: nothing piles up along a line, and they are the same from both ends.
    std::int32_t sums[lanes] = {};
    for (int place = 0; place < box.radius; ++place) {
      for (int lane = 0; lane < lanes; ++lane) sums[lane] += from.at(place)[lane];
    }
    for (int place = 0; place < _count; ++place) {
      const std::int16_t* entering = from.at(place + box.radius);
      const std::int16_t* leaving = from.at(place - box.radius);
      const std::int16_t* before = from.at(place - box.radius - 1);
      const std::int16_t* behind = from.at(place + box.radius + 1);
      std::int16_t* __restrict out = at(place);
      for (int lane = 0; lane < lanes; ++lane) {
        const std::int32_t sum = sums[lane] + entering[lane];
        const auto edges = static_cast<float>(before[lane] + behind[lane]);
        out[lane] = static_cast<std::int16_t>(
            static_cast<std::int32_t>(static_cast<float>(sum) * share + edges * edgeShare + 0.5F));
        sums[lane] = sum - leaving[lane];
      }
    }
  }

 private:
  int _count;
  int _room;
  std::vector<std::int16_t> _samples;
};

/// `lines` lines of `count` samples, in memory `lineStep` and `sampleStep` apart.
void blurLines(std::int16_t* samples, int lines, std::ptrdiff_t lineStep, int count, std::ptrdiff_t sampleStep,
               const Box& box) {
  Strip strip(count, box);
  Strip other(count, box);
  for (int first = 0; first < lines; first += lanes) {
    const int used = std::min(lanes, lines - first);
    std::int16_t* corner = samples + first * lineStep;
    int seen = 0;
    for (int place = 0; place < count; ++place) {
      std::int16_t* lane = strip.at(place);
      for (int i = 0; i < used; ++i) seen |= lane[i] = corner[place * sampleStep + i * lineStep];
    }
    if (seen == 0) continue;
    other.average(strip, box);
    strip.average(other, box);
    other.average(strip, box);
    for (int place = 0; place < count; ++place) {
      const std::int16_t* lane = other.at(place);
      for (int i = 0; i < used; ++i) corner[place * sampleStep + i * lineStep] = lane[i];
    }
  }
}

}  // namespace

AlphaPlane::AlphaPlane(const QImage& image)
    : _width(image.width()),
      _height(image.height()),
      _samples(static_cast<std::size_t>(_width) * static_cast<std::size_t>(_height)) {
  for (int y = 0; y < _height; ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    std::transform(line, line + _width, _samples.data() + std::ptrdiff_t{y} * _width,
                   [](QRgb pixel) { return static_cast<std::int16_t>(qAlpha(pixel) * unit); });
  }
}

void AlphaPlane::blur(double sigma) {
  if (!(sigma > 0)) return;
  const Box box = Box::forSigma(sigma);
  blurLines(_samples.data(), _height, _width, _width, 1, box);
  blurLines(_samples.data(), _width, 1, _height, _width, box);
}

int AlphaPlane::blurReach(double sigma) {
  return sigma > 0 ? passes * (Box::forSigma(sigma).radius + 1) : 0;
}

}  // namespace quorvane
