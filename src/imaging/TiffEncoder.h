// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "imaging/BitmapImageRep.h"

namespace quorvane {

/// Encodes a bitmap as a TIFF file with LZW: 8-bit RGBA whose colours are multiplied by alpha, or RGB when every pixel
/// is opaque, with the bitmap's density.
Result<Bytes> encodeTiff(const BitmapImageRep& bitmap);

/// The same file with further pages behind those it has.
Result<Bytes> appendTiffPages(Bytes tiff, const std::vector<BitmapImageRep>& pages);

/// How many pages (directories in the main chain) a TIFF file has; 0 when it is none.
int tiffPageCount(ByteView tiff);

}  // namespace quorvane
