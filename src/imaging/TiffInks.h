// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "imaging/BitmapImageRep.h"

namespace quorvane {

/// Keeps the TIFF library, ours and the installed readers', from writing to standard error by itself.
void silenceTiffMessages();

/// True when the first picture of a TIFF file is one that the installed readers take for another: of four inks (CMYK),
/// or of grey levels with transparency; 8 or 16 bits, in strips.
bool isInkTiff(ByteView bytes);

/// Decodes such a picture to 8-bit RGBA in sRGB, not premultiplied, through the file's profile and upright. Of further
/// samples the first that the file calls transparency counts. The size is checked before anything is allocated.
Result<BitmapImageRep> decodeInkTiff(ByteView bytes);

}  // namespace quorvane
