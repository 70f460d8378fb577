// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/ShadowBlur.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace quorvane {

namespace {

constexpr int passes = 3;

// Samples have 16 bits between the passes: in 8 bits six roundings would show as steps in a wide blur.
constexpr int fullSample = 257;  // times an 8-bit alpha

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

/// A row of samples with zeros before and behind it.
class Row {
 public:
  Row(int count, int room) : _room(room), _samples(static_cast<std::size_t>(count + 2 * room)) {}
  [[nodiscard]] std::uint16_t* samples() { return _samples.data() + _room; }
  [[nodiscard]] const std::uint16_t* samples() const { return _samples.data() + _room; }

 private:
  int _room;
  std::vector<std::uint16_t> _samples;
};

class RowBlur {
 public:
  RowBlur(const Box& box, int count) : _box(box), _count(count), _row(count, box.radius + 1), _other(_row) {}

  /// Where the row to be blurred is put.
  [[nodiscard]] std::uint16_t* samples() { return _row.samples(); }
  /// The blurred row; samples() is lost.
  const std::uint16_t* blurred() {
    average(_row, _other);
    average(_other, _row);
    average(_row, _other);
    return _other.samples();
  }

 private:
  void average(const Row& from, Row& to) const {
    const int radius = _box.radius;
    const float share = 1 / (static_cast<float>(2 * radius + 1) + 2 * _box.edge);
    const std::uint16_t* in = from.samples();
    std::uint16_t* out = to.samples();
    // A sum of whole samples is exact, so no error is carried along the row, and it is the same from both ends.
    std::uint32_t sum = 0;
    for (int i = -radius; i < radius; ++i) sum += in[i];
    for (int i = 0; i < _count; ++i) {
      // The room behind the row is one box wide: i + radius + 1 reaches into it, not past it.
      sum += in[i + radius];
      const auto edges = static_cast<float>(in[i - radius - 1] + in[i + radius + 1]);
      out[i] = static_cast<std::uint16_t>((static_cast<float>(sum) + _box.edge * edges) * share + 0.5F);
      sum -= in[i - radius];
    }
  }

  Box _box;
  int _count;
  Row _row;
  Row _other;
};

bool isBlank(const std::uint8_t* row, int count) {
  return std::all_of(row, row + count, [](std::uint8_t alpha) { return alpha == 0; });
}

}  // namespace

int blurReach(double sigma) {
  return sigma > 0 ? passes * (Box::forSigma(sigma).radius + 1) : 0;
}

void blurAlpha(QImage& alpha, double sigma) {
  if (!(sigma > 0) || alpha.isNull()) return;
  const Box box = Box::forSigma(sigma);
  const int width = alpha.width();
  const int height = alpha.height();

  // Rows go into a turned copy, so that columns are rows in the second half.
  std::vector<std::uint16_t> turned(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  RowBlur across(box, width);
  for (int y = 0; y < height; ++y) {
    const std::uint8_t* line = alpha.constScanLine(y);
    if (isBlank(line, width)) continue;
    std::transform(line, line + width, across.samples(),
                   [](std::uint8_t value) { return static_cast<std::uint16_t>(value * fullSample); });
    const std::uint16_t* blurred = across.blurred();
    for (int x = 0; x < width; ++x) {
      turned[static_cast<std::size_t>(x) * static_cast<std::size_t>(height) + static_cast<std::size_t>(y)] = blurred[x];
    }
  }
  RowBlur down(box, height);
  std::uint8_t* pixels = alpha.bits();
  const qsizetype stride = alpha.bytesPerLine();
  for (int x = 0; x < width; ++x) {
    const auto* column = turned.data() + static_cast<std::size_t>(x) * static_cast<std::size_t>(height);
    std::copy(column, column + height, down.samples());
    const std::uint16_t* blurred = down.blurred();
    for (int y = 0; y < height; ++y) {
      pixels[y * stride + x] = static_cast<std::uint8_t>((blurred[y] + fullSample / 2) / fullSample);
    }
  }
}

}  // namespace quorvane
