// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdlib>

#include "iconfamily/format/PackedChannels.h"

using namespace quorvane;

namespace {

// Packing loses nothing but alpha and is never longer than literals alone.
void checkPacking(Bytes argb) {
  const std::size_t pixels = argb.size() / 4;
  for (std::size_t i = 0; i < pixels; ++i) argb[4 * i] = 0;
  const Bytes packed = packColorChannels(argb);
  if (packed.size() > 3 * (pixels + (pixels + 127) / 128)) std::abort();
  const auto unpacked = unpackColorChannels(packed, pixels);
  if (!unpacked || *unpacked != argb) std::abort();
}

}  // namespace

// The first two bytes are the number of pixels to unpack; the input is taken as pixels to pack, too.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* input, std::size_t size) {
  if (size < 2) return 0;
  const std::size_t pixels = input[0] * std::size_t{256} + input[1];
  const ByteView packed(input + 2, size - 2);
  if (const auto argb = unpackColorChannels(packed, pixels)) checkPacking(*argb);
  if (const auto argb = unpackArgbChannels(packed, pixels); argb.ok() && argb->size() != 4 * pixels) std::abort();
  checkPacking(Bytes(packed.begin(), packed.end() - static_cast<std::ptrdiff_t>(packed.size() % 4)));
  return 0;
}
