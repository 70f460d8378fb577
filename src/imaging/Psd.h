// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "imaging/BitmapImageRep.h"
#include "imaging/PsdFile.h"

namespace quorvane {

/// Decodes the flattened picture of a layered file (PSD or PSB) to 8-bit RGBA, not premultiplied, in sRGB: bitmap,
/// grey, duotone (as grey), indexed, RGB, CMYK and Lab, with the file's colour profile and its transparency. Sizes are
/// checked before anything is allocated.
Result<BitmapImageRep> decodePsd(ByteView bytes);

}  // namespace quorvane
