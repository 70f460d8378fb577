// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "imaging/BitmapImageRep.h"

namespace quorvane {

/// For each pixel of a standard bitmap, row by row: 1 where it shows, 0 where it is see-through. Partial alpha becomes
/// a pattern of as many shown pixels as it is opaque, so that soft edges and shadows stay soft; fully opaque and fully
/// transparent pixels stay as they are. The same bitmap always gives the same pattern.
std::vector<std::uint8_t> ditheredAlpha(const BitmapImageRep& bitmap);

}  // namespace quorvane
