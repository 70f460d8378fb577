// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace quorvane {

/// The alpha of a picture, finer than 8 bits: six roundings to 8 bits would show as steps in a wide blur.
class AlphaPlane {
 public:
  /// The alpha of an ARGB32_Premultiplied picture.
  explicit AlphaPlane(const QImage& image);

  [[nodiscard]] int width() const { return _width; }
  [[nodiscard]] int height() const { return _height; }
  /// 0 to 255.
  [[nodiscard]] std::uint8_t alpha(int x, int y) const {
    const int sample = _samples[static_cast<std::size_t>(y) * static_cast<std::size_t>(_width) + x];
    return static_cast<std::uint8_t>((sample + unit / 2) / unit);
  }

  /// Blurs by three box averages each way, which together come as near to a Gaussian of that standard deviation (in
  /// pixels) as the eye can tell. Boxes have fractional edges, so that every sigma above 0 has its own result, alike in
  /// all four directions. Beyond the plane lies transparency. 0 or less changes nothing.
  void blur(double sigma);
  /// Pixels that blur() carries alpha outwards, at most.
  static int blurReach(double sigma);

 private:
  static constexpr int unit = 128;  ///< a sample of one level of alpha: 255 levels fill 15 bits

  int _width;
  int _height;
  std::vector<std::int16_t> _samples;
};

}  // namespace quorvane
