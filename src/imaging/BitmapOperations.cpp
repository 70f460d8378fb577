// SPDX-License-Identifier: GPL-3.0-or-later
// Scaling, transforming and measuring bitmaps.
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

#include "imaging/BitmapImageRep.h"
#include "imaging/Coordinates.h"
#include "imaging/Premultiply.h"
#include "imaging/Resampler.h"

namespace quorvane {

namespace {

void fill(BitmapImageRep& bitmap, const QColor& color) {
  const QColor rgb = color.toRgb();
  const auto alpha = static_cast<unsigned>(rgb.alpha());
  const std::uint8_t pixel[4] = {
      premultiplied(static_cast<unsigned>(rgb.red()), alpha), premultiplied(static_cast<unsigned>(rgb.green()), alpha),
      premultiplied(static_cast<unsigned>(rgb.blue()), alpha), static_cast<std::uint8_t>(alpha)};
  for (int y = 0; y < bitmap.pixelsHigh(); ++y) {
    std::uint8_t* row = bitmap.mutableRow(y);
    for (int x = 0; x < bitmap.pixelsWide(); ++x) std::memcpy(row + std::ptrdiff_t{4} * x, pixel, 4);
  }
}

/// What an axis-parallel transform does to a picture, in row order: first an exact rearrangement, then a placing.
struct AxisPlacement {
  bool swapsAxes = false;
  bool mirrorsX = false;
  bool mirrorsY = false;
  PixelRect target;
};

double snapped(double value) {
  const double whole = std::round(value);
  return std::abs(value - whole) < 1e-6 ? whole : value;
}

/// `matrix` takes source rows to destination rows, both y downwards. nullopt when it shears or turns by other angles.
std::optional<AxisPlacement> axisPlacement(const QTransform& matrix, double width, double height) {
  constexpr double negligible = 1e-6;  // of a pixel over the whole picture
  const auto placed = [&](double xScale, double yScale, bool swaps) {
    const double wide = (swaps ? height : width) * xScale;
    const double high = (swaps ? width : height) * yScale;
    return AxisPlacement{
        swaps,
        wide < 0,
        high < 0,
        {snapped(std::min(matrix.dx(), matrix.dx() + wide)), snapped(std::min(matrix.dy(), matrix.dy() + high)),
         snapped(std::abs(wide)), snapped(std::abs(high))}};
  };
  if (!matrix.isAffine()) return std::nullopt;
  if (std::abs(matrix.m12()) * width < negligible && std::abs(matrix.m21()) * height < negligible)
    return placed(matrix.m11(), matrix.m22(), false);
  if (std::abs(matrix.m11()) * width < negligible && std::abs(matrix.m22()) * height < negligible)
    return placed(matrix.m21(), matrix.m12(), true);
  return std::nullopt;
}

BitmapImageRep rearranged(const BitmapImageRep& source, const AxisPlacement& how) {
  if (!how.swapsAxes && !how.mirrorsX && !how.mirrorsY) return source;
  const int width = how.swapsAxes ? source.pixelsHigh() : source.pixelsWide();
  const int height = how.swapsAxes ? source.pixelsWide() : source.pixelsHigh();
  auto result = BitmapImageRep::bitmapImageRepWithSize({static_cast<float>(width), static_cast<float>(height)});
  const std::uint8_t* from = source.row(0);
  const std::ptrdiff_t fromRow = source.bytesPerRow();
  constexpr std::ptrdiff_t pixelBytes = 4;
  for (int y = 0; y < height; ++y) {
    std::uint8_t* to = result.mutableRow(y);
    const int v = how.mirrorsY ? height - 1 - y : y;
    for (int x = 0; x < width; ++x, to += 4) {
      const int u = how.mirrorsX ? width - 1 - x : x;
      std::memcpy(to, from + (how.swapsAxes ? u * fromRow + pixelBytes * v : v * fromRow + pixelBytes * u), 4);
    }
  }
  return result;
}

bool isFinite(const QTransform& matrix) {
  return std::isfinite(matrix.m11()) && std::isfinite(matrix.m12()) && std::isfinite(matrix.m13()) &&
         std::isfinite(matrix.m21()) && std::isfinite(matrix.m22()) && std::isfinite(matrix.m23()) &&
         std::isfinite(matrix.m31()) && std::isfinite(matrix.m32()) && std::isfinite(matrix.m33());
}

/// The drawing library does not filter when it shrinks, so what a transform shrinks is shrunk before, by ours.
BitmapImageRep preshrunk(const BitmapImageRep& source, const QTransform& transform) {
  const auto shrunk = [](int pixels, double scale) {
    return scale < 1 ? std::max(1, static_cast<int>(std::ceil(pixels * scale))) : pixels;
  };
  const int width = shrunk(source.pixelsWide(), std::hypot(transform.m11(), transform.m12()));
  const int height = shrunk(source.pixelsHigh(), std::hypot(transform.m21(), transform.m22()));
  if (width == source.pixelsWide() && height == source.pixelsHigh()) return source;
  return source.bitmapImageRepByScalingToSize({static_cast<float>(width), static_cast<float>(height)},
                                              ImageInterpolation::High, std::nullopt);
}

}  // namespace

BitmapImageRep BitmapImageRep::bitmapImageRepByScalingToSize(Size size, ImageInterpolation interpolation,
                                                             const std::optional<QColor>& backgroundColor) const {
  BitmapImageRep scaled = bitmapImageRepWithSize(size);
  if (backgroundColor) fill(scaled, *backgroundColor);
  drawResampled(*this, scaled,
                {0, 0, static_cast<double>(scaled.pixelsWide()), static_cast<double>(scaled.pixelsHigh())},
                interpolation);
  return scaled;
}

BitmapImageRep BitmapImageRep::bitmapImageRepByApplyingTransform(QTransform& transform, Size size) const {
  BitmapImageRep result = bitmapImageRepWithSize(size);
  bool invertible = isFinite(transform);
  const QTransform inverse = invertible ? transform.inverted(&invertible) : QTransform();
  if (!invertible) return result;

  if (result.pixelsWide() > 0 && pixelsWide() > 0) {
    const QTransform inRows = flippedTransform(pixelsHigh()) * transform * flippedTransform(result.pixelsHigh());
    if (const auto placement = axisPlacement(inRows, pixelsWide(), pixelsHigh())) {
      drawResampled(rearranged(toStandard(), *placement), result, placement->target, ImageInterpolation::Default);
    } else {
      const BitmapImageRep source = preshrunk(*this, transform);
      QPainter& painter = result.lockFocus();
      painter.setTransform(transform, true);
      painter.scale(static_cast<double>(pixelsWide()) / source.pixelsWide(),
                    static_cast<double>(pixelsHigh()) / source.pixelsHigh());
      painter.setTransform(flippedTransform(source.pixelsHigh()), true);
      painter.drawImage(0, 0, source.toImage());
      result.unlockFocus();
    }
  }
  transform = inverse;
  return result;
}

BitmapImageRep BitmapImageRep::bitmapImageRepByRotatingClockwise() const {
  QTransform transform = QTransform::fromTranslate(-pixelsWide(), 0) * QTransform().rotate(270);
  return bitmapImageRepByApplyingTransform(transform,
                                           {static_cast<float>(pixelsHigh()), static_cast<float>(pixelsWide())});
}

BitmapImageRep BitmapImageRep::bitmapImageRepByRotatingCounterClockwise() const {
  QTransform transform = QTransform::fromTranslate(0, -pixelsHigh()) * QTransform().rotate(90);
  return bitmapImageRepByApplyingTransform(transform,
                                           {static_cast<float>(pixelsHigh()), static_cast<float>(pixelsWide())});
}

BitmapImageRep BitmapImageRep::bitmapImageRepByRotating180() const {
  QTransform transform = QTransform::fromTranslate(-pixelsWide(), -pixelsHigh()) * QTransform().rotate(180);
  return bitmapImageRepByApplyingTransform(transform,
                                           {static_cast<float>(pixelsWide()), static_cast<float>(pixelsHigh())});
}

unsigned BitmapImageRep::brightnessAtX(int x, int y) const {
  const std::uint8_t* sample =
      _pixels->data() + std::ptrdiff_t{_layout.bytesPerRow} * y + std::ptrdiff_t{_layout.samplesPerPixel} * x;
  if (_layout.samplesPerPixel != 3) return sample[0];
  return static_cast<unsigned>(std::rint(0.222 * sample[0] + 0.707 * sample[1] + 0.071 * sample[2]));
}

}  // namespace quorvane
