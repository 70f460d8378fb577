// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/AlphaDither.h"

namespace quorvane {

namespace {

/// -47 to 48 for a place, as if at random: moves the threshold, so that even surfaces get no worms and no chessboards.
/// What it moves, the diffusion of the error makes good again.
int jitter(int x, int y) {
  auto hash = static_cast<std::uint32_t>(x) * 0x9E3779B1U ^ static_cast<std::uint32_t>(y) * 0x85EBCA77U;
  hash ^= hash >> 15;
  hash *= 0x2C1B3C6DU;
  hash ^= hash >> 12;
  return static_cast<int>(hash % 96) - 47;
}

}  // namespace

std::vector<std::uint8_t> ditheredAlpha(const BitmapImageRep& bitmap) {
  const int wide = bitmap.pixelsWide();
  const auto rowLength = static_cast<std::size_t>(wide);
  std::vector<std::uint8_t> shown(rowLength * static_cast<std::size_t>(bitmap.pixelsHigh()));
  // Sixteenths of alpha levels; one place more at both ends saves asking for the edges.
  std::vector<int> errors(rowLength + 2);
  std::vector<int> below(rowLength + 2);
  for (int y = 0; y < bitmap.pixelsHigh(); ++y) {
    const std::uint8_t* row = bitmap.row(y);
    std::uint8_t* to = shown.data() + rowLength * static_cast<std::size_t>(y);
    // Every other row backwards, so that nothing leans to one side.
    const int step = y % 2 == 0 ? 1 : -1;
    for (int x = step > 0 ? 0 : wide - 1; x >= 0 && x < wide; x += step) {
      const int alpha = row[x * 4 + 3];
      if (alpha == 0 || alpha == 255) {
        // An edge ends the pattern: what is left over must not make holes or dots beyond it.
        to[x] = alpha == 255 ? 1 : 0;
        continue;
      }
      int* here = errors.data() + x + 1;
      const int wanted = alpha + *here / 16;
      to[x] = wanted > 127 + jitter(x, y) ? 1 : 0;
      const int error = wanted - (to[x] != 0 ? 255 : 0);
      int* under = below.data() + x + 1;
      here[step] += error * 7;
      under[-step] += error * 3;
      under[0] += error * 5;
      under[step] += error;
    }
    errors.swap(below);
    below.assign(below.size(), 0);
  }
  return shown;
}

}  // namespace quorvane
