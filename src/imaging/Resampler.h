// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "imaging/BitmapImageRep.h"

namespace quorvane {

/// Shape of the low-pass filter that a pixel is gathered with.
enum class ResampleKernel { Box, Triangle, Mitchell, CatmullRom, Lanczos3 };

/// A rectangle of pixels with real-valued edges, origin at the top left, y downwards (row order).
struct PixelRect {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
};

/// Draws the whole of `source` into `target` of `destination` (a standard bitmap), source over destination.
/// Separable filter on premultiplied values, widened by the shrink factor; edge taps renormalised; results clamped to
/// 0 <= colour <= alpha. None is nearest, Low a triangle, Default and High the kernel that bench/ResampleCompare chose.
/// What falls outside the destination is cut off; a pixel that the target covers in part gets that part of the picture
/// (with None: a pixel belongs to the target when its centre does). An equal size at whole offsets copies exactly.
void drawResampled(const BitmapImageRep& source, BitmapImageRep& destination, const PixelRect& target,
                   ImageInterpolation interpolation);

/// The same with a kernel of choice.
void drawResampled(const BitmapImageRep& source, BitmapImageRep& destination, const PixelRect& target,
                   ResampleKernel kernel);

}  // namespace quorvane
