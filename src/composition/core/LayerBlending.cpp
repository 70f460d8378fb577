// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/LayerBlending.h"

#include <cmath>
#include <cstdint>

namespace quorvane {

namespace {

/// a * b / 255, rounded, for four bytes of a pixel at once.
std::uint32_t byteProducts(std::uint32_t pixel, std::uint32_t factor) {
  std::uint32_t even = (pixel & 0xFF00FFU) * factor + 0x800080U;
  std::uint32_t odd = ((pixel >> 8) & 0xFF00FFU) * factor + 0x800080U;
  even = ((even + ((even >> 8) & 0xFF00FFU)) >> 8) & 0xFF00FFU;
  odd = (odd + ((odd >> 8) & 0xFF00FFU)) & 0xFF00FF00U;
  return even | odd;
}

}  // namespace

void blend(const LabelLayer& layer, double opacity, BitmapImageRep& bitmap) {
  // By hand, because the drawing library blends between these two formats in threads of its own, which costs more than
  // the blending.
  if (layer.pixels.isNull()) return;
  const auto share = static_cast<std::uint32_t>(std::lround(opacity * 255));
  const QRect rect = QRect(layer.topLeft, layer.pixels.size()) & QRect(0, 0, bitmap.pixelsWide(), bitmap.pixelsHigh());
  for (int y = rect.top(); y <= rect.bottom(); ++y) {
    const auto* from = reinterpret_cast<const QRgb*>(layer.pixels.constScanLine(y - layer.topLeft.y()));
    std::uint8_t* to = bitmap.mutableRow(y) + std::ptrdiff_t{rect.left()} * 4;
    for (int x = rect.left(); x <= rect.right(); ++x, to += 4) {
      const QRgb pixel = from[x - layer.topLeft.x()];
      if (pixel == 0) continue;
      const QRgb source = byteProducts(pixel, share);
      const QRgb under = byteProducts(qRgba(to[0], to[1], to[2], to[3]), 255U - static_cast<unsigned>(qAlpha(source)));
      const QRgb result = source + under;
      to[0] = static_cast<std::uint8_t>(qRed(result));
      to[1] = static_cast<std::uint8_t>(qGreen(result));
      to[2] = static_cast<std::uint8_t>(qBlue(result));
      to[3] = static_cast<std::uint8_t>(qAlpha(result));
    }
  }
}

}  // namespace quorvane
