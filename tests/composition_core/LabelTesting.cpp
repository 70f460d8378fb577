// SPDX-License-Identifier: GPL-3.0-or-later
#include "LabelTesting.h"

#include <algorithm>
#include <cstdlib>

namespace quorvane {

LabelLook plainLook(double fontSize) {
  LabelLook look;
  look.font = LabelFont{QStringLiteral("DejaVu Sans"), {}, fontSize};
  look.labelCenter = {64, 64};
  return look;
}

QImage pixelsOf(const Image& image) {
  const auto bitmap = image.bitmapRepresentation();
  return bitmap ? bitmap->toImage() : QImage();
}

QRectF inkOf(const Image& image, int alpha) {
  const QImage pixels = pixelsOf(image);
  QRect ink;
  for (int y = 0; y < pixels.height(); ++y) {
    for (int x = 0; x < pixels.width(); ++x) {
      if (qAlpha(pixels.pixel(x, y)) >= alpha) ink |= QRect(x, y, 1, 1);
    }
  }
  if (ink.isEmpty()) return {};
  const double toPoints = static_cast<double>(image.size().width) / pixels.width();
  return {ink.x() * toPoints, (pixels.height() - ink.y() - ink.height()) * toPoints, ink.width() * toPoints,
          ink.height() * toPoints};
}

Image squareBase(float points, int pixels) {
  BitmapImageRep bitmap =
      BitmapImageRep::bitmapImageRepWithSize({static_cast<float>(pixels), static_cast<float>(pixels)});
  for (int y = 0; y < pixels; ++y) {
    std::uint8_t* row = bitmap.mutableRow(y);
    for (int x = 0; x < pixels; ++x, row += 4) {
      row[0] = static_cast<std::uint8_t>(255 * x / pixels);
      row[1] = static_cast<std::uint8_t>(255 * y / pixels);
      row[2] = 200;
      row[3] = 255;
    }
  }
  bitmap.setSize({points, points});
  return Image::imageWithBitmapImageRep(bitmap);
}

int largestDifference(const QImage& a, const QImage& b) {
  if (a.size() != b.size()) return 256;
  int largest = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const QColor one = QColor::fromRgba(a.pixel(x, y));
      const QColor other = QColor::fromRgba(b.pixel(x, y));
      largest = std::max({largest, std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                          std::abs(one.blue() - other.blue()), std::abs(one.alpha() - other.alpha())});
    }
  }
  return largest;
}

}  // namespace quorvane
