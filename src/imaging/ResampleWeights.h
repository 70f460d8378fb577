// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "imaging/Resampler.h"

namespace quorvane {

/// Weights of whole pixels in one direction are fractions of this.
inline constexpr int weightBits = 14;
inline constexpr int weightOne = 1 << weightBits;

/// For each destination pixel of one direction, which source pixels it is made of and to what share.
struct ResampleWeights {
  struct Span {
    int firstSource = 0;
    int count = 0;        ///< 0: nothing of the source reaches this pixel
    int firstWeight = 0;  ///< index into `weights`
  };

  int firstDestination = 0;  ///< destination pixel of spans[0]
  std::vector<Span> spans;
  /// Of one span they add up to weightOne times the part of the pixel that the target covers. Every span is followed by
  /// a zero, so that they can be read in pairs.
  std::vector<std::int16_t> weights;
  bool isCopy = false;  ///< each span is a single whole pixel, one after the other
};

/// The weights that draw `sourcePixels` onto [start, start + length), cut to 0 ... destinationPixels. Nothing for a
/// length that is not positive or not finite.
ResampleWeights makeResampleWeights(int sourcePixels, int destinationPixels, double start, double length,
                                    ResampleKernel kernel);

/// The same for the nearest pixel: a destination pixel belongs to the target when its centre does.
ResampleWeights makeNearestWeights(int sourcePixels, int destinationPixels, double start, double length);

}  // namespace quorvane
