// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/PngFilter.h"

#include <cstdlib>
#include <cstring>
#include <limits>

namespace quorvane {

namespace {

using Byte = std::uint8_t;

constexpr std::ptrdiff_t pixelBytes = 4;

/// How much a filtered row differs from nothing: its bytes as signed differences. Plain loops, which the compiler turns
/// into vector code.
std::uint32_t cost(const Byte* filtered, std::size_t count) {
  std::uint32_t sum = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const int difference = static_cast<std::int8_t>(filtered[i]);
    sum += static_cast<std::uint32_t>(difference < 0 ? -difference : difference);
  }
  return sum;
}

void subtractLeft(const Byte* row, const Byte* /*above*/, Byte* to, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i)
    to[i] = static_cast<Byte>(row[i] - row[static_cast<std::ptrdiff_t>(i) - pixelBytes]);
}

void subtractAbove(const Byte* row, const Byte* above, Byte* to, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) to[i] = static_cast<Byte>(row[i] - above[i]);
}

void subtractMean(const Byte* row, const Byte* above, Byte* to, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i)
    to[i] = static_cast<Byte>(row[i] - ((row[static_cast<std::ptrdiff_t>(i) - pixelBytes] + above[i]) >> 1));
}

/// Paeth's predictor: of left, above and above left, the one nearest to left + above - above left.
void subtractPaeth(const Byte* row, const Byte* above, Byte* to, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    const auto at = static_cast<std::ptrdiff_t>(i);
    const auto left = static_cast<std::int16_t>(row[at - pixelBytes]);
    const auto up = static_cast<std::int16_t>(above[at]);
    const auto corner = static_cast<std::int16_t>(above[at - pixelBytes]);
    const auto fromLeft = static_cast<std::int16_t>(up - corner);
    const auto fromUp = static_cast<std::int16_t>(left - corner);
    const auto fromCorner = static_cast<std::int16_t>(fromLeft + fromUp);
    const auto distanceLeft = static_cast<std::int16_t>(fromLeft < 0 ? -fromLeft : fromLeft);
    const auto distanceUp = static_cast<std::int16_t>(fromUp < 0 ? -fromUp : fromUp);
    const auto distanceCorner = static_cast<std::int16_t>(fromCorner < 0 ? -fromCorner : fromCorner);
    std::int16_t nearest = distanceUp <= distanceCorner ? up : corner;
    nearest = distanceLeft <= distanceUp && distanceLeft <= distanceCorner ? left : nearest;
    to[i] = static_cast<Byte>(row[at] - nearest);
  }
}

}  // namespace

PngFilter::PngFilter(std::size_t rowBytes) : _rowBytes(rowBytes), _candidate(rowBytes) {}

void PngFilter::filter(const Byte* row, const Byte* above, Byte* result) {
  using Way = void (*)(const Byte*, const Byte*, Byte*, std::size_t);
  static constexpr Way ways[] = {subtractLeft, subtractAbove, subtractMean, subtractPaeth};
  result[0] = 0;
  std::memcpy(result + 1, row, _rowBytes);
  std::uint32_t lowest = cost(row, _rowBytes);
  Byte number = 1;
  for (const Way way : ways) {
    if (lowest == 0) return;
    way(row, above, _candidate.data(), _rowBytes);
    if (const std::uint32_t sum = cost(_candidate.data(), _rowBytes); sum < lowest) {
      lowest = sum;
      result[0] = number;
      std::memcpy(result + 1, _candidate.data(), _rowBytes);
    }
    ++number;
  }
}

}  // namespace quorvane
