// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "imaging/BitmapImageRep.h"

namespace quorvane {

/// A picture of at most 256 colours.
struct IndexedColors {
  int pixelsWide = 0;
  int pixelsHigh = 0;
  std::vector<std::array<std::uint8_t, 3>> palette;  ///< red, green, blue
  std::optional<std::uint8_t> transparentIndex;      ///< its colour in the palette does not show
  Bytes indices;                                     ///< one a pixel, row by row
};

/// Reduces any bitmap; see encodeGif() for how.
Result<IndexedColors> indexedColors(const BitmapImageRep& bitmap);

}  // namespace quorvane
