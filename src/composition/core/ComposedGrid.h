// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTransform>

#include "imaging/Image.h"

namespace quorvane {

/// The pixels of a picture of a size in points.
struct ComposedGrid {
  int pixelsWide = 0;
  int pixelsHigh = 0;
  double perPointX = 0;  ///< density; the two differ by what rounding to whole pixels adds
  double perPointY = 0;

  /// No pixels when the size or the density is not a positive, finite number. Never more than limits::composedPixels
  /// a side.
  static ComposedGrid forSize(Size size, double density);
  /// For a composed icon: see LabelRenderer::_iconWithBase().
  static ComposedGrid forBase(const Image& base);

  [[nodiscard]] bool isEmpty() const { return pixelsWide <= 0 || pixelsHigh <= 0; }
  /// From points (y upwards) of a picture whose bottom-left corner is at `origin` points of this one, to pixels.
  [[nodiscard]] QTransform toPixels(Point origin) const;
};

}  // namespace quorvane
