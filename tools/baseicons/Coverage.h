// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <vector>

namespace quorvane::baseicons {

/// How much of each pixel of a square picture something covers, 0 to 1: a shape to be blurred, moved and coloured.
class Coverage {
 public:
  explicit Coverage(int side) : _side(side), _values(static_cast<std::size_t>(side) * static_cast<std::size_t>(side)) {}
  /// The opacity of a square picture.
  static Coverage ofAlpha(const QImage& picture);

  [[nodiscard]] int side() const { return _side; }
  /// 0 outside the picture.
  [[nodiscard]] float at(int x, int y) const;
  void set(int x, int y, float value) { _values[index(x, y)] = value; }

  /// Spread by a bell curve of that standard deviation, in pixels.
  [[nodiscard]] Coverage blurred(double deviation) const;
  /// Moved to the right and down, by parts of pixels too.
  [[nodiscard]] Coverage moved(double right, double down) const;

  /// 16 bits a channel, premultiplied: the colour where the shape is.
  [[nodiscard]] QImage inColor(const QColor& color, double opacity = 1) const;

 private:
  [[nodiscard]] std::size_t index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(_side) + static_cast<std::size_t>(x);
  }

  int _side;
  std::vector<float> _values;
};

}  // namespace quorvane::baseicons
