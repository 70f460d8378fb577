// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"

namespace quorvane {

/// Packs n x n pixels of 4 interleaved bytes (alpha, red, green, blue) the way 24-bit elements store colour: red, then
/// green, then blue, each by itself (a run never crosses into the next channel). Alpha is not stored.
Bytes packColorChannels(ByteView argb);

/// Unpacks a 24-bit element's data (the four zero bytes of 'it32' already taken off) to alpha, red, green, blue with
/// alpha 0, `pixels` pixels. Data that does not unpack exactly and is exactly 3 or 4 bytes a pixel is taken as unpacked
/// (red, green, blue or x, red, green, blue). One or two stray bytes behind the packed data are ignored.
Result<Bytes> unpackColorChannels(ByteView packed, std::size_t pixels);

/// Unpacks "ARGB" elements (the four letters already taken off): alpha, red, green, blue channels, to interleaved
/// bytes.
Result<Bytes> unpackArgbChannels(ByteView packed, std::size_t pixels);

}  // namespace quorvane
