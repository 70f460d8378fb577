// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "foundation/base/Bytes.h"
#include "imaging/BitmapImageRep.h"

namespace quorvane::test {

/// A standard bitmap of one premultiplied colour, R G B A.
inline BitmapImageRep filledBitmap(int width, int height, const Bytes& color = Bytes(4)) {
  auto bitmap = BitmapImageRep::bitmapImageRepWithSize({float(width), float(height)});
  for (int y = 0; y < height; ++y)
    for (int i = 0; i < 4 * width; ++i) bitmap.mutableRow(y)[i] = color[static_cast<std::size_t>(i % 4)];
  return bitmap;
}

/// The four samples of a pixel as they are stored.
inline std::vector<int> pixelAt(const BitmapImageRep& bitmap, int x, int y) {
  const std::uint8_t* at = bitmap.row(y) + x * 4;
  return {at[0], at[1], at[2], at[3]};
}

}  // namespace quorvane::test
