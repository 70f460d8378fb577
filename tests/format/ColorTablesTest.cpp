// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/format/ColorTables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace quorvane {
namespace {

// Level is 0 to 255 in each channel; `index` that of the nearest entry, the lowest of equals.
template <typename Level>
double bruteForce(Level red, Level green, Level blue, int& index) {
  double best = HUGE_VAL;
  for (int i = 0; i < 256; ++i) {
    const Rgb& entry = systemColorTable()[i];
    const double r = red - entry.red, g = green - entry.green, b = blue - entry.blue;
    if (const double distance = r * r + g * g + b * b; distance < best) {
      best = distance;
      index = i;
    }
  }
  return best;
}

TEST(ColorTables, HoldTheColoursAtTheirPlaces) {
  const auto& table = systemColorTable();
  const std::pair<int, Rgb> rows[] = {{0, {255, 255, 255}}, {1, {255, 255, 0xCC}},    {6, {255, 0xCC, 255}},
                                      {214, {0, 0, 0x33}},  {215, {0xEE, 0, 0}},      {225, {0, 0xEE, 0}},
                                      {244, {0, 0, 0x11}},  {254, {0x11, 0x11, 0x11}}};
  for (const auto& [index, color] : rows) EXPECT_EQ(table[index], color) << index;
  EXPECT_EQ(smallColorTable()[1], (Rgb{0xFC, 0xF3, 0x05}));
  EXPECT_EQ(smallColorTable()[15], (Rgb{0, 0, 0}));
}

TEST(ColorTables, NearestIsThatOfASearchThroughAll) {
  std::mt19937 random(7);
  std::uniform_int_distribution<int> any(0, 255);
  int expected = 0;
  const auto check = [&](int red, int green, int blue) {
    bruteForce(red, green, blue, expected);
    ASSERT_EQ(nearestSystemColor(static_cast<float>(red) / 255.0F, static_cast<float>(green) / 255.0F,
                                 static_cast<float>(blue) / 255.0F),
              expected)
        << red << " " << green << " " << blue;
  };
  for (const Rgb& entry : systemColorTable()) check(entry.red, entry.green, entry.blue);
  for (int level = 0; level < 256; ++level) {
    for (int low : {0, 1, 8, 12, 25, 26}) {
      check(level, low, low);
      check(low, level, 0);
      check(0, low, level);
    }
    for (int shift = -3; shift <= 3; ++shift) check(level, std::clamp(level + shift, 0, 255), level);
  }
  for (int i = 0; i < 20000; ++i) check(any(random), any(random), any(random));

  std::uniform_real_distribution<float> component(0, 1);
  for (int i = 0; i < 5000; ++i) {
    const float r = component(random), g = component(random), b = component(random);
    const double best = bruteForce(255.0 * r, 255.0 * g, 255.0 * b, expected);
    const Rgb& found = systemColorTable()[nearestSystemColor(r, g, b)];
    const double distance =
        std::pow(255.0 * r - found.red, 2) + std::pow(255.0 * g - found.green, 2) + std::pow(255.0 * b - found.blue, 2);
    ASSERT_NEAR(distance, best, 1e-3);
  }
  EXPECT_EQ(nearestSystemColor(std::nanf(""), -1, -HUGE_VALF), 255) << "what is outside is pulled in";
  EXPECT_EQ(nearestSystemColor(2, HUGE_VALF, 1e30F), 0);
}

}  // namespace
}  // namespace quorvane
