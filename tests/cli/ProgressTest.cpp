// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Progress.h"

#include <gtest/gtest.h>

namespace quorvane::cli {
namespace {

TEST(Progress, TellsWhatIsKnownInTheRoomThereIs) {
  const ProgressState state{.done = 250, .failed = 3, .total = 1000, .seconds = 25};
  EXPECT_EQ(progressLine(state, 80, false), "[######------------------]  250/1000  3 failed  10/s  1 min 15 s left");
  EXPECT_EQ(progressLine(state, 80, true),
            "[######------------------]  250/1000  \x1b[31m3 failed\x1b[0m  10/s  1 min 15 s left");
  EXPECT_EQ(progressLine({.done = 7, .failed = 0, .total = {}, .seconds = 2}, 80, true), "7 done  3.5/s");
  EXPECT_EQ(progressLine({}, 80, false), "0 done");
  EXPECT_EQ(progressLine({.done = 12, .failed = 0, .total = 10, .seconds = 1}, 80, false),
            "[########################]  12/10  12/s");
  for (int width = 0; width < 100; ++width)
    EXPECT_LT(progressLine(state, width, false).size(), static_cast<std::size_t>(std::max(width, 1)));
}

TEST(Progress, NamesDurationsInOneOrTwoUnits) {
  EXPECT_EQ(durationInWords(12.34), "12.3 s");
  EXPECT_EQ(durationInWords(-1), "0.0 s");
  EXPECT_EQ(durationInWords(65), "1 min 05 s");
  EXPECT_EQ(durationInWords(7620), "2 h 07 min");
}

}  // namespace
}  // namespace quorvane::cli
