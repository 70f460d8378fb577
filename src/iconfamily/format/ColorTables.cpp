// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/format/ColorTables.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quorvane {

namespace {

// The cube's levels lie 0x33 apart; the ramps hold the multiples of 0x11 that the cube lacks. Both count downwards.
constexpr int cubeStep = 0x33;
constexpr int cubeLevels = 6;
constexpr int rampStep = 0x11;
constexpr int rampLevels = 10;
constexpr int redRamp = cubeLevels * cubeLevels * cubeLevels - 1;
constexpr int greenRamp = redRamp + rampLevels;
constexpr int blueRamp = greenRamp + rampLevels;
constexpr int greyRamp = blueRamp + rampLevels;
constexpr int blackIndex = greyRamp + rampLevels;

constexpr std::uint8_t cubeLevel(int position) {
  return static_cast<std::uint8_t>(cubeStep * (cubeLevels - 1 - position));
}

// Between two cube levels stand two ramp levels.
constexpr std::uint8_t rampLevel(int position) {
  return static_cast<std::uint8_t>(rampStep * (3 * (rampLevels / 2 - 1 - position / 2) + 2 - position % 2));
}

constexpr std::array<Rgb, 256> makeSystemColorTable() {
  std::array<Rgb, 256> table{};
  for (int i = 0; i < redRamp; ++i)
    table[i] = {cubeLevel(i / cubeLevels / cubeLevels), cubeLevel(i / cubeLevels % cubeLevels),
                cubeLevel(i % cubeLevels)};
  for (int i = 0; i < rampLevels; ++i) {
    const std::uint8_t level = rampLevel(i);
    table[redRamp + i] = {level, 0, 0};
    table[greenRamp + i] = {0, level, 0};
    table[blueRamp + i] = {0, 0, level};
    table[greyRamp + i] = {level, level, level};
  }
  table[blackIndex] = {0, 0, 0};
  return table;
}

constexpr std::array<Rgb, 256> systemTable = makeSystemColorTable();
static_assert(blackIndex == 255);

constexpr Rgb rgb(std::uint32_t value) {
  return {static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 8),
          static_cast<std::uint8_t>(value)};
}

constexpr std::array<Rgb, 16> smallTable{rgb(0xFFFFFF), rgb(0xFCF305), rgb(0xFF6402), rgb(0xDD0806),
                                         rgb(0xF20884), rgb(0x4600A5), rgb(0x0000D4), rgb(0x02ABEA),
                                         rgb(0x1FB714), rgb(0x006411), rgb(0x562C05), rgb(0x90713A),
                                         rgb(0xC0C0C0), rgb(0x808080), rgb(0x404040), rgb(0x000000)};

// A component in 1/255. A value that is an 8-bit sample but for the rounding of k / 255.0f becomes that sample: then
// all distances are whole numbers, and entries that are equally near come out equal.
double levelOf(float component) {
  if (!(component > 0)) return 0;
  if (component >= 1) return 255;
  const double level = 255.0 * static_cast<double>(component);
  const double sample = static_cast<int>(level + 0.5);
  return std::fabs(level - sample) < 1e-4 ? sample : level;
}

// Positions of the levels next to `level`, 0 to 255; between two, the higher one, which has the lower index.
int nearestCubePosition(double level) {
  return cubeLevels - 1 - static_cast<int>((level + cubeStep / 2.0) / cubeStep);
}

int nearestRampPosition(double level) {
  const double steps = level / rampStep;
  const int gap = std::min(static_cast<int>(steps / 3), rampLevels / 2 - 1);
  return 2 * (rampLevels / 2 - 1 - gap) + (steps - 3 * gap < 1.5 ? 1 : 0);
}

}  // namespace

const std::array<Rgb, 256>& systemColorTable() {
  return systemTable;
}

const std::array<Rgb, 16>& smallColorTable() {
  return smallTable;
}

// The nearest of the cube is the nearest in each channel by itself, that of the grey ramp is the nearest to the mean,
// and that of another ramp depends on its own channel alone. So there is one candidate of each kind.
std::uint8_t nearestSystemColor(float red, float green, float blue) {
  const double r = levelOf(red);
  const double g = levelOf(green);
  const double b = levelOf(blue);
  const int inCube =
      (nearestCubePosition(r) * cubeLevels + nearestCubePosition(g)) * cubeLevels + nearestCubePosition(b);
  const std::array<int, 5> candidates{inCube == redRamp ? blackIndex : inCube, redRamp + nearestRampPosition(r),
                                      greenRamp + nearestRampPosition(g), blueRamp + nearestRampPosition(b),
                                      greyRamp + nearestRampPosition((r + g + b) / 3)};
  std::pair<double, int> best{HUGE_VAL, 0};
  for (const int index : candidates) {
    const Rgb& entry = systemTable[index];
    const double distance =
        (r - entry.red) * (r - entry.red) + (g - entry.green) * (g - entry.green) + (b - entry.blue) * (b - entry.blue);
    best = std::min(best, std::pair{distance, index});
  }
  return static_cast<std::uint8_t>(best.second);
}

}  // namespace quorvane
