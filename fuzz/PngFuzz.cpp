// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a PNG file. What decodes must keep its promises, and survive being written and read again.
#include <algorithm>
#include <cstdlib>

#include "imaging/PngCodec.h"

using namespace quorvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr int maxPixels = 512;
  const ByteView bytes(data, size);
  const auto decoded = decodePng(bytes, maxPixels);
  if (!decoded.ok()) {
    if (decoded.error().kind() == ErrorKind::Broken) std::abort();
    return 0;
  }
  const auto stated = pngSize(bytes);
  if (!stated.ok() || *stated != PixelSize{decoded->pixelsWide(), decoded->pixelsHigh()}) std::abort();
  const auto again = encodePng(*decoded);
  if (!again.ok()) std::abort();
  const auto twice = decodePng(*again, maxPixels);
  if (!twice.ok() || !std::ranges::equal(twice->toStandard().bitmapData(), decoded->toStandard().bitmapData()))
    std::abort();
  return 0;
}
