// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>

namespace quorvane {

/// Dots an inch of so many pixels on so many points (72 points are an inch); 72 when there are no points. At most what
/// 16 bits hold, as in the header of a JPEG.
inline double dotsPerInch(int pixels, float points) {
  return points > 0 ? std::clamp(72.0 * pixels / static_cast<double>(points), 1.0, 65535.0) : 72.0;
}

}  // namespace quorvane
