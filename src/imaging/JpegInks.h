// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "imaging/BitmapImageRep.h"

namespace quorvane {

/// Decodes a JPEG file of four inks (CMYK or YCCK) to 8-bit RGBA in sRGB, through the file's profile. The size is
/// checked before anything is allocated; the orientation is not applied.
Result<BitmapImageRep> decodeInkJpeg(ByteView bytes);

}  // namespace quorvane
