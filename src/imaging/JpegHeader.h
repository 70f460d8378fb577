// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "imaging/PngCodec.h"

namespace quorvane {

/// What a JPEG file says of itself before its pixels.
struct JpegHeader {
  PixelSize size;
  int components = 0;  ///< 1 grey, 3 colours, 4 inks
  ByteView exif;       ///< the Exif block (a TIFF header and what follows), or empty; a view of the file
};

/// True when the bytes begin as a JPEG file does.
bool isJpeg(ByteView bytes);

/// Walks the markers (ISO/IEC 10918-1, annex B). Refuses a file of more than limits::jpegScans scans: each goes over
/// the whole picture, however few bytes it has.
Result<JpegHeader> readJpegHeader(ByteView bytes);

}  // namespace quorvane
