// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

namespace quorvane {

struct Rgb {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Rgb&) const = default;
};

/// The 256-entry system colour table over which 8-bit elements are defined: a 6 x 6 x 6 cube without black, ramps of
/// red, green, blue and grey, and black last.
const std::array<Rgb, 256>& systemColorTable();

/// The 16-entry table of 4-bit elements.
const std::array<Rgb, 16>& smallColorTable();

/// Index of the nearest entry of systemColorTable() by squared distance of the components (0 to 1 each; NaN and values
/// outside are pulled in); the lowest index of equals.
std::uint8_t nearestSystemColor(float red, float green, float blue);

}  // namespace quorvane
