// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/base/Bytes.h"
#include "imaging/BitmapImageRep.h"

namespace quorvane {

/// The orientation tag (1 to 8) of a JPEG, PNG or WebP file's Exif block; 1, upright, when there is none or it is
/// broken.
int exifOrientation(ByteView file);

/// The picture turned and mirrored as the tag says it is to be shown. Any layout of 32 bits a pixel.
BitmapImageRep uprightBitmap(const BitmapImageRep& bitmap, int orientation);

}  // namespace quorvane
