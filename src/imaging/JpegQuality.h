// SPDX-License-Identifier: GPL-3.0-or-later
// How a JPEG quality is found at which a picture stays below a number of bytes.
#pragma once

#include <cstdint>
#include <functional>

#include "foundation/base/Bytes.h"
#include "foundation/base/Result.h"
#include "imaging/ByteCount.h"
#include "imaging/JpegEncoder.h"

namespace quorvane {

/// The next, lower, quality after `factor` gave a file `ratio` times as long as it may be. The steps are large while
/// there is much to save and small near the goal, and smaller at the top, where one step changes the length most.
float nextFactorForFactor(float factor, float ratio);

/// `quality` (0 to 100) as the encoder takes it, 0 to 1.
float compressionFactor(int quality);

/// The error of a picture that is as long as its limit, or longer.
Error overByteLimit(std::uint64_t length, ByteCount limit);

/// One try at a quality: true when what came out was short enough and is kept. It always tells the length. A failure of
/// any other kind ends the search.
using JpegAttempt = std::function<Result<bool>(int quality, std::uint64_t& length)>;

/// Tries `startingQuality`, then ever lower ones until an attempt is kept; the quality of that one. TooLarge when there
/// is none above 0.
Result<int> searchJpegQuality(int startingQuality, ByteCount limit, const JpegAttempt& attempt);

/// The bytes of the first such JPEG shorter than `limit` (0: of any length).
Result<Bytes> encodeJpegUnderLimit(const JpegSource& source, int startingQuality, Kibibytes limit);

}  // namespace quorvane
