// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/ResamplerKernels.h"

#include <algorithm>
#include <cstring>

#include "imaging/Premultiply.h"
#include "imaging/ResampleWeights.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace quorvane::kernels {

namespace {

constexpr int rowShift = weightBits - middleBits;
constexpr int rowHalf = 1 << (rowShift - 1);
constexpr std::int16_t middleOne = 255 << middleBits;
constexpr int pixelShift = weightBits + middleBits;
constexpr int pixelHalf = 1 << (pixelShift - 1);

}  // namespace

namespace portable {

void gatherRows(const std::uint8_t* rows, std::ptrdiff_t rowBytes, const std::int16_t* weights, int taps, int count,
                std::int16_t* sums) {
  constexpr int block = 64;
  int accumulators[block];
  for (int at = 0; at < count; at += block) {
    const int width = std::min(block, count - at);
    std::fill_n(accumulators, width, rowHalf);
    for (int tap = 0; tap < taps; ++tap) {
      const std::uint8_t* row = rows + tap * rowBytes + at;
      const int weight = weights[tap];
      for (int i = 0; i < width; ++i) accumulators[i] += weight * row[i];
    }
    for (int i = 0; i < width; i += 4) {
      const int alpha = std::clamp(accumulators[i + 3] >> rowShift, 0, int{middleOne});
      for (int channel = 0; channel < 3; ++channel)
        sums[at + i + channel] = static_cast<std::int16_t>(std::clamp(accumulators[i + channel] >> rowShift, 0, alpha));
      sums[at + i + 3] = static_cast<std::int16_t>(alpha);
    }
  }
}

void gatherPixel(const std::int16_t* pixels, const std::int16_t* weights, int taps, std::uint8_t* result) {
  int sums[4] = {pixelHalf, pixelHalf, pixelHalf, pixelHalf};
  for (int tap = 0; tap < taps; ++tap)
    for (int channel = 0; channel < 4; ++channel) sums[channel] += weights[tap] * pixels[tap * 4 + channel];
  const int alpha = std::clamp(sums[3] >> pixelShift, 0, 255);
  for (int channel = 0; channel < 3; ++channel)
    result[channel] = static_cast<std::uint8_t>(std::clamp(sums[channel] >> pixelShift, 0, alpha));
  result[3] = static_cast<std::uint8_t>(alpha);
}

}  // namespace portable

#if defined(__SSE2__)

namespace {

/// Adds `taps` rows of 16 samples to the four sums. Two rows at a time: their samples side by side, as the
/// multiply-and-add of pairs wants them. The zero behind the weights makes a last odd row harmless; it is then read
/// twice instead of one that may not exist.
void addRows(const std::uint8_t* row, std::ptrdiff_t rowBytes, const std::int16_t* weights, int taps, __m128i* sums) {
  const __m128i zero = _mm_setzero_si128();
  __m128i sum0 = sums[0];
  __m128i sum1 = sums[1];
  __m128i sum2 = sums[2];
  __m128i sum3 = sums[3];
  for (int tap = 0; tap < taps; tap += 2, row += 2 * rowBytes) {
    int pair;
    std::memcpy(&pair, weights + tap, 4);
    const __m128i weight = _mm_set1_epi32(pair);
    const __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(row));
    const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(tap + 1 < taps ? row + rowBytes : row));
    const __m128i low = _mm_unpacklo_epi8(a, b);
    const __m128i high = _mm_unpackhi_epi8(a, b);
    sum0 = _mm_add_epi32(sum0, _mm_madd_epi16(_mm_unpacklo_epi8(low, zero), weight));
    sum1 = _mm_add_epi32(sum1, _mm_madd_epi16(_mm_unpackhi_epi8(low, zero), weight));
    sum2 = _mm_add_epi32(sum2, _mm_madd_epi16(_mm_unpacklo_epi8(high, zero), weight));
    sum3 = _mm_add_epi32(sum3, _mm_madd_epi16(_mm_unpackhi_epi8(high, zero), weight));
  }
  sums[0] = sum0;
  sums[1] = sum1;
  sums[2] = sum2;
  sums[3] = sum3;
}

/// Two groups of four sums as eight clamped samples of two pixels.
__m128i finished(__m128i low, __m128i high) {
  constexpr int alpha = _MM_SHUFFLE(3, 3, 3, 3);
  __m128i pixels = _mm_packs_epi32(_mm_srai_epi32(low, rowShift), _mm_srai_epi32(high, rowShift));
  pixels = _mm_min_epi16(_mm_max_epi16(pixels, _mm_setzero_si128()), _mm_set1_epi16(middleOne));
  return _mm_min_epi16(pixels, _mm_shufflehi_epi16(_mm_shufflelo_epi16(pixels, alpha), alpha));
}

}  // namespace

void gatherRows(const std::uint8_t* rows, std::ptrdiff_t rowBytes, const std::int16_t* weights, int taps, int count,
                std::int16_t* sums) {
  // A block of few rows and some cache lines each: reading all rows of a narrow column would put too many lines that
  // lie a power of two apart into the cache's few places for them.
  constexpr int blockSamples = 256;
  constexpr int blockRows = 16;
  __m128i accumulators[blockSamples / 4];
  int at = 0;
  while (at + 16 <= count) {
    const int width = std::min(blockSamples, (count - at) & ~15);
    std::fill_n(accumulators, width / 4, _mm_set1_epi32(rowHalf));
    for (int tap = 0; tap < taps; tap += blockRows)
      for (int i = 0; i < width; i += 16)
        addRows(rows + tap * rowBytes + at + i, rowBytes, weights + tap, std::min(blockRows, taps - tap),
                accumulators + i / 4);
    for (int i = 0; i < width; i += 8)
      _mm_storeu_si128(reinterpret_cast<__m128i*>(sums + at + i),
                       finished(accumulators[i / 4], accumulators[i / 4 + 1]));
    at += width;
  }
  if (at < count) portable::gatherRows(rows + at, rowBytes, weights, taps, count - at, sums + at);
}

void gatherPixel(const std::int16_t* pixels, const std::int16_t* weights, int taps, std::uint8_t* result) {
  __m128i sum = _mm_set1_epi32(pixelHalf);
  for (int tap = 0; tap < taps; tap += 2) {
    int pair;
    std::memcpy(&pair, weights + tap, 4);
    const __m128i two = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pixels + std::ptrdiff_t{4} * tap));
    const __m128i mixed = _mm_unpacklo_epi16(two, _mm_srli_si128(two, 8));
    sum = _mm_add_epi32(sum, _mm_madd_epi16(mixed, _mm_set1_epi32(pair)));
  }
  const __m128i words = _mm_packs_epi32(_mm_srai_epi32(sum, pixelShift), _mm_setzero_si128());
  const __m128i alpha = _mm_shufflelo_epi16(words, _MM_SHUFFLE(3, 3, 3, 3));
  const __m128i bytes = _mm_packus_epi16(_mm_min_epi16(words, alpha), _mm_setzero_si128());
  const int pixel = _mm_cvtsi128_si32(bytes);
  std::memcpy(result, &pixel, 4);
}

#else

void gatherRows(const std::uint8_t* rows, std::ptrdiff_t rowBytes, const std::int16_t* weights, int taps, int count,
                std::int16_t* sums) {
  portable::gatherRows(rows, rowBytes, weights, taps, count, sums);
}

void gatherPixel(const std::int16_t* pixels, const std::int16_t* weights, int taps, std::uint8_t* result) {
  portable::gatherPixel(pixels, weights, taps, result);
}

#endif

void blendOver(const std::uint8_t* source, std::uint8_t* destination, int count) {
  for (int i = 0; i < count; ++i, source += 4, destination += 4) {
    if (source[3] == 255) {
      std::memcpy(destination, source, 4);
    } else if (std::uint32_t below; std::memcpy(&below, destination, 4), below == 0) {
      std::memcpy(destination, source, 4);
    } else {
      const unsigned rest = 255U - source[3];
      for (int channel = 0; channel < 4; ++channel)
        destination[channel] = static_cast<std::uint8_t>(
            std::min(255U, static_cast<unsigned>(source[channel]) + premultiplied(destination[channel], rest)));
    }
  }
}

}  // namespace quorvane::kernels
