// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/base/Bytes.h"
#include "foundation/base/FourCharCode.h"
#include "foundation/base/Result.h"
#include "imaging/BitmapImageRep.h"

namespace quorvane {

/// Stores an element from its unpacked form, replacing one of the same type; an empty `family` becomes a valid icns
/// resource. 24-bit types take 4 bytes a pixel (alpha, red, green, blue; alpha is dropped) and are packed, 'ic08' and
/// 'ic09' take the same and become PNG; other types are stored as they are. Fails on a wrong number of bytes.
Result<void> setIconFamilyData(Bytes& family, FourCharCode type, ByteView data);

/// The unpacked data of an element: alpha, red, green, blue for 24-bit types (alpha 0 where the colour is packed, so
/// that the mask element gives it) and for 'ic08' and 'ic09' (PNG or JPEG 2000); other types as they are stored.
Result<Bytes> getIconFamilyData(ByteView family, FourCharCode type);

/// The picture of any element that has pixels, its mask applied: 8-bit RGBA, not premultiplied. A missing or short mask
/// makes it opaque. Fails on a type without a picture of its own, and on data that is not what the type holds.
Result<BitmapImageRep> decodeIconFamilyElement(ByteView family, FourCharCode type);

}  // namespace quorvane
