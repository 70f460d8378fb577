// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "composition/core/LabelRenderer.h"
#include "imaging/BitmapImageRep.h"

namespace quorvane {

/// The layer over the bitmap (a standard one), with its alpha times an opacity of 0 to 1. What falls outside is cut
/// off.
void blend(const LabelLayer& layer, double opacity, BitmapImageRep& bitmap);

}  // namespace quorvane
