// SPDX-License-Identifier: GPL-3.0-or-later
#include "Coverage.h"

#include <QRgba64>
#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace quorvane::baseicons {

namespace {

// Half of a bell curve, whose whole sums up to 1; cut where it has fallen below what 16 bits show.
std::vector<float> bell(double deviation) {
  const int reach = static_cast<int>(std::ceil(deviation * 3.5));
  std::vector<float> weights(static_cast<std::size_t>(reach) + 1);
  double sum = 0;
  for (int i = 0; i <= reach; ++i) {
    const double weight = std::exp(-0.5 * i * i / (deviation * deviation));
    weights[static_cast<std::size_t>(i)] = static_cast<float>(weight);
    sum += i == 0 ? weight : 2 * weight;
  }
  for (float& weight : weights) weight = static_cast<float>(weight / sum);
  return weights;
}

}  // namespace

Coverage Coverage::ofAlpha(const QImage& picture) {
  Coverage result(picture.width());
  const QImage samples = picture.convertToFormat(QImage::Format_RGBA64_Premultiplied);
  for (int y = 0; y < result._side; ++y) {
    const auto* row = reinterpret_cast<const QRgba64*>(samples.constScanLine(y));
    for (int x = 0; x < result._side; ++x) result.set(x, y, static_cast<float>(row[x].alpha()) / 65535);
  }
  return result;
}

float Coverage::at(int x, int y) const {
  return x < 0 || y < 0 || x >= _side || y >= _side ? 0 : _values[index(x, y)];
}

Coverage Coverage::blurred(double deviation) const {
  if (deviation <= 0) return *this;
  const std::vector<float> weights = bell(deviation);
  const int reach = static_cast<int>(weights.size()) - 1;
  // Whole rows at a time, so that the compiler can take several pixels at once: a column's spread adds rows, a row's
  // adds the row to itself, moved.
  const auto add = [](float* to, const float* from, std::size_t count, float weight) {
    for (std::size_t i = 0; i < count; ++i) to[i] += weight * from[i];
  };
  const auto length = static_cast<std::size_t>(_side);
  Coverage across(_side);
  Coverage result(_side);
  for (int y = 0; y < _side; ++y) {
    const float* from = &_values[index(0, y)];
    if (std::all_of(from, from + _side, [](float value) { return value == 0; })) continue;
    float* to = &across._values[index(0, y)];
    add(to, from, length, weights[0]);
    for (std::size_t i = 1; i < std::min(weights.size(), length); ++i) {
      add(to + i, from, length - i, weights[i]);
      add(to, from + i, length - i, weights[i]);
    }
    for (int i = -reach; i <= reach; ++i)
      if (y + i >= 0 && y + i < _side)
        add(&result._values[index(0, y + i)], to, length, weights[static_cast<std::size_t>(std::abs(i))]);
  }
  return result;
}

Coverage Coverage::moved(double right, double down) const {
  const int wholeRight = static_cast<int>(std::floor(right));
  const int wholeDown = static_cast<int>(std::floor(down));
  const auto partRight = static_cast<float>(right - wholeRight);
  const auto partDown = static_cast<float>(down - wholeDown);
  Coverage result(_side);
  for (int y = 0; y < _side; ++y)
    for (int x = 0; x < _side; ++x) {
      const int fromX = x - wholeRight;
      const int fromY = y - wholeDown;
      const auto row = [&](int line) { return (1 - partRight) * at(fromX, line) + partRight * at(fromX - 1, line); };
      result.set(x, y, (1 - partDown) * row(fromY) + partDown * row(fromY - 1));
    }
  return result;
}

QImage Coverage::inColor(const QColor& color, double opacity) const {
  QImage result(_side, _side, QImage::Format_RGBA64_Premultiplied);
  const double strength = opacity * color.alphaF();
  for (int y = 0; y < _side; ++y) {
    auto* row = reinterpret_cast<QRgba64*>(result.scanLine(y));
    for (int x = 0; x < _side; ++x) {
      const double alpha = strength * static_cast<double>(std::clamp(at(x, y), 0.0F, 1.0F));
      const auto channel = [alpha](double value) { return static_cast<quint16>(std::lround(value * alpha * 65535)); };
      row[x] = qRgba64(channel(color.redF()), channel(color.greenF()), channel(color.blueF()), channel(1));
    }
  }
  return result;
}

}  // namespace quorvane::baseicons
