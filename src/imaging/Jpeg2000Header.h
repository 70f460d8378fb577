// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "imaging/PngCodec.h"

namespace quorvane {

/// What a JPEG 2000 picture says of itself, and how it is wrapped.
struct Jpeg2000Header {
  PixelSize size;
  int components = 0;
  bool isBoxed = false;  ///< a file of boxes, not a bare codestream
};

/// Reads the headers of the whole picture and of its tiles without decoding (ISO/IEC 15444-1, annexes A and I). Fails
/// for components other than 1 to 4 of full size and 1 to 16 bits, and for tiles, code blocks or packets over Limits.h:
/// the decoder allocates for what the headers claim, so nothing else may reach it.
Result<Jpeg2000Header> readJpeg2000Header(ByteView bytes);

}  // namespace quorvane
