// SPDX-License-Identifier: GPL-3.0-or-later
#include "LabelTesting.h"

#include <algorithm>
#include <cstdlib>

#include "support/Bitmaps.h"

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
  BitmapImageRep bitmap = test::filledBitmap(pixels, pixels, {0, 0, 200, 255});
  for (int y = 0; y < pixels; ++y) {
    std::uint8_t* row = bitmap.mutableRow(y);
    for (int x = 0; x < pixels; ++x, row += 4) {
      row[0] = static_cast<std::uint8_t>(255 * x / pixels);
      row[1] = static_cast<std::uint8_t>(255 * y / pixels);
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
      const QRgb one = a.pixel(x, y), other = b.pixel(x, y);
      for (const int shift : {0, 8, 16, 24})
        largest = std::max(largest, std::abs(int(one >> shift & 0xFF) - int(other >> shift & 0xFF)));
    }
  }
  return largest;
}

}  // namespace quorvane
