// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

namespace quorvane {

/// colour * alpha / 255, rounded to nearest; exact for all bytes.
constexpr std::uint8_t premultiplied(unsigned color, unsigned alpha) {
  const unsigned product = color * alpha + 128;
  return static_cast<std::uint8_t>((product + (product >> 8)) >> 8);
}

/// 255 / alpha with 16 fractional bits, rounded up; 0 for alpha 0.
inline constexpr std::array<std::uint32_t, 256> inverseAlpha = [] {
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t alpha = 1; alpha < 256; ++alpha) table[alpha] = ((255U << 16) + alpha - 1) / alpha;
  return table;
}();

/// color * 255 / alpha, rounded to nearest, at most 255; 0 for alpha 0.
constexpr std::uint8_t unpremultiplied(unsigned color, unsigned alpha) {
  return static_cast<std::uint8_t>(std::min((color * inverseAlpha[alpha] + 0x8000U) >> 16, 255U));
}

}  // namespace quorvane
