// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "imaging/BitmapImageRep.h"

namespace quorvane {

/// Encodes a bitmap as a GIF file of one picture. Up to 256 colours (one fewer with anything see-through) are kept
/// exactly; more are reduced to a palette made for the picture, and dithered. Partial alpha is dithered, too: into the
/// one see-through colour, which is the last of the palette.
Result<Bytes> encodeGif(const BitmapImageRep& bitmap);

}  // namespace quorvane
