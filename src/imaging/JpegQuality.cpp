// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/JpegQuality.h"

#include <array>
#include <string>

namespace quorvane {

namespace {

/// What is taken off above a ratio: from quality 95 on, and below.
struct Step {
  double ratio;
  float high;
  float low;
};

// The first row whose ratio is exceeded counts. Its bounds are decimals in double precision: a single-precision ratio
// of "1.7" is a little more than 1.7 and so above it, one of "1.6" likewise, one of "1.4" below 1.4.
constexpr std::array<Step, 14> steps{{{2.0, 5, 30},
                                      {1.7, 5, 20},
                                      {1.6, 5, 16},
                                      {1.5, 5, 13},
                                      {1.4, 5, 10},
                                      {1.3, 4, 9},
                                      {1.2, 4, 8},
                                      {1.17, 3, 7},
                                      {1.15, 2, 6},
                                      {1.13, 2, 5},
                                      {1.1, 2, 4},
                                      {1.07, 2, 3},
                                      {1.03, 2, 2},
                                      {0.0, 1, 1}}};

/// Far too long. A first try at full quality says little about the second one, so it takes a small step; that the next
/// ones are uneven is meant.
float stepWhenFarTooLong(float factor) {
  if (factor == 100.0F) return 5;
  return factor >= 97.0F ? 20 : 40;
}

}  // namespace

float nextFactorForFactor(float factor, float ratio) {
  if (ratio > 3.0F) return factor - stepWhenFarTooLong(factor);
  for (const Step& step : steps)
    if (static_cast<double>(ratio) > step.ratio) return factor - (factor >= 95.0F ? step.high : step.low);
  return factor - 1;
}

float compressionFactor(int quality) {
  return static_cast<float>(quality / 100.0);
}

Error overByteLimit(std::uint64_t length, ByteCount limit) {
  return Error::tooLarge("a JPEG of " + std::to_string(length) + " bytes, which should be below " +
                         std::to_string(limit.value));
}

Result<int> searchJpegQuality(int startingQuality, ByteCount limit, const JpegAttempt& attempt) {
  std::uint64_t length = 0;
  for (int quality = startingQuality; quality > 0;) {
    if (TRY(attempt(quality, length))) return quality;
    const float ratio = static_cast<float>(length) / static_cast<float>(limit.value);
    quality = static_cast<int>(nextFactorForFactor(static_cast<float>(quality), ratio));
  }
  if (length == 0) return Error::invalidInput("the quality of a JPEG must be above 0");
  return overByteLimit(length, limit);
}

Result<Bytes> encodeJpegUnderLimit(const JpegSource& source, int startingQuality, Kibibytes limit) {
  const ByteCount most = limit.bytes();
  Bytes jpeg;
  TRY_VOID(searchJpegQuality(startingQuality, most, [&](int quality, std::uint64_t& length) -> Result<bool> {
    jpeg = TRY(source.encode(compressionFactor(quality)));
    length = jpeg.size();
    return most.value == 0 || length < most.value;
  }));
  return jpeg;
}

}  // namespace quorvane
