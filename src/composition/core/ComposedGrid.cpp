// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/ComposedGrid.h"

#include <algorithm>
#include <cmath>

#include "foundation/base/Limits.h"
#include "imaging/Coordinates.h"

namespace quorvane {

namespace {

// The largest form of a family that readers commonly show; smaller bases get sharp text by it.
constexpr double fewestPixels = 512;

bool isPositive(double value) {
  return value > 0 && std::isfinite(value);
}

int wholePixels(double pixels) {
  return std::clamp(static_cast<int>(std::lround(pixels)), 1, limits::composedPixels);
}

}  // namespace

ComposedGrid ComposedGrid::forSize(Size size, double density) {
  if (!isPositive(size.width) || !isPositive(size.height) || !isPositive(density)) return {};
  const double most = limits::composedPixels / static_cast<double>(std::max(size.width, size.height));
  const double used = std::min(density, most);
  ComposedGrid grid;
  grid.pixelsWide = wholePixels(size.width * used);
  grid.pixelsHigh = wholePixels(size.height * used);
  grid.perPointX = grid.pixelsWide / static_cast<double>(size.width);
  grid.perPointY = grid.pixelsHigh / static_cast<double>(size.height);
  return grid;
}

ComposedGrid ComposedGrid::forBase(const Image& base) {
  const Size size = base.size();
  const Size largest = base.largestPixelSize();
  const double density =
      std::max({1.0, fewestPixels / std::min(size.width, size.height), static_cast<double>(largest.width / size.width),
                static_cast<double>(largest.height / size.height)});
  return forSize(size, density);
}

QTransform ComposedGrid::toPixels(Point origin) const {
  return QTransform::fromScale(perPointX, perPointY) * flippedTransform(pixelsHigh) *
         QTransform::fromTranslate(origin.x * perPointX, -origin.y * perPointY);
}

}  // namespace quorvane
