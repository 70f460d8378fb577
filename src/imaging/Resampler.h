// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "imaging/BitmapImageRep.h"

namespace quorvane {

/// A rectangle of pixels with real-valued edges, origin at the top left, y downwards (row order).
struct PixelRect {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
};

/// Draws the whole of `source` into `target` of `destination` (both standard bitmaps), source over destination.
/// Separable filter on premultiplied values, widened by the shrink factor; edge taps renormalised; results clamped to
/// 0 <= colour <= alpha. None is nearest, Low a triangle, Default and High the kernel that bench/ chose.
/// What falls outside the destination is cut off. An equal size at whole offsets copies exactly.
void drawResampled(const BitmapImageRep& source, BitmapImageRep& destination, const PixelRect& target,
                   ImageInterpolation interpolation);

}  // namespace quorvane
