// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a layered picture. A small file must not be able to claim a large picture.
#include <cstdlib>

#include "imaging/Psd.h"

using namespace quorvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const ByteView bytes(data, size);
  const auto file = readPsdFile(bytes);
  if (!file.ok()) return 0;
  // Two bytes hold at most 128 of a row's, each of eight pixels at most.
  const std::size_t area = static_cast<std::size_t>(file->width) * static_cast<std::size_t>(file->height);
  if (area / 512 > size) std::abort();
  const auto decoded = decodePsd(bytes);
  if (decoded.ok() ? decoded->pixelsWide() != file->width || decoded->pixelsHigh() != file->height
                   : decoded.error().kind() == ErrorKind::Broken)
    std::abort();
  return 0;
}
