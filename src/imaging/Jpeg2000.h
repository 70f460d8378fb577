// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "imaging/PngCodec.h"

namespace quorvane {

/// True for a JPEG 2000 file (boxes) or a bare codestream.
bool isJpeg2000(ByteView bytes);

/// Decodes to 8-bit RGBA in sRGB, not premultiplied: 1 (grey), 2 (grey, alpha), 3 or 4 components (the fourth alpha or
/// black ink) of equal size, 1 to 16 bits, or a palette. Through the file's colour profile, if it has one.
/// Sizes and components are checked after the header, before decoding.
Result<BitmapImageRep> decodeJpeg2000(ByteView bytes, int maxPixels);

}  // namespace quorvane
