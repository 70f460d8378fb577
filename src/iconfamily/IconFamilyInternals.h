// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "foundation/base/Bytes.h"
#include "imaging/BitmapImageRep.h"
#include "imaging/Image.h"

/// The encoding internals of IconFamily: from bitmaps to the unpacked data of elements. Each gives nothing for a bitmap
/// whose size is not n x n or whose layout it does not take; the messages that some of them log are the only words.
namespace quorvane::internals {

/// The image fitted, its aspect kept and measured in pixels, into the middle of a transparent square `width` pixels
/// wide; the result's only representation is that bitmap. nullopt when the image has no bitmap.
std::optional<Image> resampleImage(const Image& image, int toIconWidth, ImageInterpolation interpolation);

/// 4 * n * n bytes: alpha, red, green, blue, not premultiplied.
std::optional<Bytes> get32BitDataFromBitmapImageRep(const BitmapImageRep& bitmapImageRep, int requiredPixelSize);
/// n * n indexes into the system colour table; alpha is ignored.
std::optional<Bytes> get8BitDataFromBitmapImageRep(const BitmapImageRep& bitmapImageRep, int requiredPixelSize);
/// n * n opacities.
std::optional<Bytes> get8BitMaskFromBitmapImageRep(const BitmapImageRep& bitmapImageRep, int requiredPixelSize);
/// n * n / 4 bytes: the same bits as icon and as mask.
std::optional<Bytes> get1BitMaskFromBitmapImageRep(const BitmapImageRep& bitmapImageRep, int requiredPixelSize);

}  // namespace quorvane::internals
