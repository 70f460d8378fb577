// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "imaging/BitmapImageRep.h"

namespace quorvane {

/// Width and height in pixels.
struct PixelSize {
  int width = 0;
  int height = 0;
  bool operator==(const PixelSize&) const = default;
};

/// True when the bytes begin as a PNG file does.
bool isPng(ByteView bytes);

/// Pixel size from the header alone.
Result<PixelSize> pngSize(ByteView bytes);

/// Refuses a file that holds far more compressed data than its pixels need: decoders unpack it all.
Result<void> checkPngData(ByteView bytes);

/// Decodes to 8-bit RGBA, not premultiplied (16-bit samples lose their low byte). Refuses a picture wider or higher
/// than `maxPixels` before any allocation.
Result<BitmapImageRep> decodePng(ByteView bytes, int maxPixels);

/// Encodes 8-bit RGBA (premultiplied or not; stored not premultiplied) as a PNG file of colour type 6, or type 2 when
/// every pixel is opaque.
Result<Bytes> encodePng(const BitmapImageRep& bitmap);

}  // namespace quorvane
