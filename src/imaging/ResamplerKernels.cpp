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
    for (int i = 0; i < width; ++i)
      sums[at + i] = static_cast<std::int16_t>(std::clamp(accumulators[i] >> rowShift, -32768, 32767));
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

void gatherRows(const std::uint8_t* rows, std::ptrdiff_t rowBytes, const std::int16_t* weights, int taps, int count,
                std::int16_t* sums) {
  const __m128i zero = _mm_setzero_si128();
  const __m128i half = _mm_set1_epi32(rowHalf);
  int at = 0;
  for (; at + 16 <= count; at += 16) {
    __m128i sum0 = half;
    __m128i sum1 = half;
    __m128i sum2 = half;
    __m128i sum3 = half;
    const std::uint8_t* row = rows + at;
    // Two rows at a time: their samples side by side, as the multiply-and-add of pairs wants them. The zero behind the
    // weights makes a last odd row harmless; it is then read twice instead of one that may not exist.
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
    auto* to = reinterpret_cast<__m128i*>(sums + at);
    _mm_storeu_si128(to, _mm_packs_epi32(_mm_srai_epi32(sum0, rowShift), _mm_srai_epi32(sum1, rowShift)));
    _mm_storeu_si128(to + 1, _mm_packs_epi32(_mm_srai_epi32(sum2, rowShift), _mm_srai_epi32(sum3, rowShift)));
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
