// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPalette>

#include "imaging/Image.h"

namespace quorvane {

/// The placeholder of a canvas without a picture, 128 x 128 units, in the palette's colours. Its bitmaps are drawn when
/// they are first asked for, one for each magnification at the usual densities.
[[nodiscard]] Image dropFolderHereImage(const QPalette& palette);

}  // namespace quorvane
