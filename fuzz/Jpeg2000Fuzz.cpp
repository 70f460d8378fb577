// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a JPEG 2000 picture. The library that decodes has a long record of memory faults: what is hunted here is
// memory and time that a small file should not be able to cost.
#include <cstdlib>

#include "imaging/Jpeg2000.h"

using namespace quorvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr int maxPixels = 256;
  const auto decoded = decodeJpeg2000(ByteView(data, size), maxPixels);
  if (decoded.ok()) {
    if (decoded->pixelsWide() > maxPixels || decoded->pixelsHigh() > maxPixels) std::abort();
  } else if (decoded.error().kind() == ErrorKind::Broken) {
    std::abort();
  }
  return 0;
}
