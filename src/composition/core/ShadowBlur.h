// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

namespace quorvane {

/// Pixels that blurAlpha() carries alpha outwards, at most.
[[nodiscard]] int blurReach(double sigma);

/// Blurs an Alpha8 picture in place by three box averages each way, which together come as near to a Gaussian of that
/// standard deviation (pixels) as the eye can tell. Boxes have fractional edges: every sigma above 0 has its own
/// result, alike in all four directions. Beyond the edges lies transparency; 0 or less changes nothing.
void blurAlpha(QImage& alpha, double sigma);

}  // namespace quorvane
