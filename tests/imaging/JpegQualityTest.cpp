// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/JpegQuality.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "imaging/Image.h"

namespace quorvane {
namespace {

float above(float value) {
  return std::nextafter(value, 10.0F);
}
float below(float value) {
  return std::nextafter(value, 0.0F);
}

TEST(JpegQuality, TheStepFollowsFromHowMuchTooLongAFileIs) {
  // Bound, the steps from 100 and from 94 just above it and just below it.
  struct Row {
    double bound;
    float highAbove, lowAbove, highBelow, lowBelow;
  };
  for (const Row& row : {Row{3.0, 5, 40, 5, 30}, Row{2.0, 5, 30, 5, 20}, Row{1.7, 5, 20, 5, 16}, Row{1.6, 5, 16, 5, 13},
                         Row{1.5, 5, 13, 5, 10}, Row{1.4, 5, 10, 4, 9}, Row{1.3, 4, 9, 4, 8}, Row{1.2, 4, 8, 3, 7},
                         Row{1.17, 3, 7, 2, 6}, Row{1.15, 2, 6, 2, 5}, Row{1.13, 2, 5, 2, 4}, Row{1.1, 2, 4, 2, 3},
                         Row{1.07, 2, 3, 2, 2}, Row{1.03, 2, 2, 1, 1}}) {
    // The nearest single-precision number may lie on either side of the bound.
    const auto nearest = static_cast<float>(row.bound);
    const bool isAbove = static_cast<double>(nearest) > row.bound;
    for (const auto& [ratio, high, low] :
         {std::tuple{above(nearest), row.highAbove, row.lowAbove},
          {nearest, isAbove ? row.highAbove : row.highBelow, isAbove ? row.lowAbove : row.lowBelow},
          {below(nearest), row.highBelow, row.lowBelow}}) {
      EXPECT_EQ(Image::nextFactorForFactor(100, ratio), 100 - high) << row.bound << " " << ratio;
      EXPECT_EQ(Image::nextFactorForFactor(94, ratio), 94 - low) << row.bound << " " << ratio;
      EXPECT_EQ(Image::nextFactorForFactor(below(95), ratio), below(95) - low) << row.bound << " " << ratio;
      if (ratio <= 3) {
        EXPECT_EQ(Image::nextFactorForFactor(95, ratio), 95 - high) << row.bound << " " << ratio;
      }
    }
  }
  EXPECT_EQ(Image::nextFactorForFactor(100, 1.7F), 95) << "1.7 in single precision is more than 1.7";
  EXPECT_EQ(Image::nextFactorForFactor(80, 1.7F), 60);
  EXPECT_EQ(Image::nextFactorForFactor(80, 1.4F), 71) << "and 1.4 less than 1.4";
  for (const float ratio : {1.0F, 0.5F, 0.0F}) EXPECT_EQ(Image::nextFactorForFactor(50, ratio), 49);
  const std::pair<float, float> farTooLong[] = {{100, 95}, {99, 79}, {97, 77}, {96.5F, 56.5F},
                                                {96, 56},  {95, 55}, {94, 54}, {30, -10}};
  for (const auto& [factor, next] : farTooLong) EXPECT_EQ(Image::nextFactorForFactor(factor, above(3)), next);
}

struct Search {
  std::vector<int> tried;
  Result<int> found = Error::broken("not run");
};

/// A search among files of the length that `lengthOf` gives for each quality.
Search search(int from, std::uint64_t limit, const std::function<std::uint64_t(int)>& lengthOf, int failsAt = -1) {
  Search result;
  result.found = searchJpegQuality(from, {limit}, [&](int quality, std::uint64_t& length) -> Result<bool> {
    result.tried.push_back(quality);
    length = lengthOf(quality);
    if (quality == failsAt) return Error::system(ENOSPC, "cannot write");
    return length < limit;
  });
  return result;
}

TEST(JpegQuality, TheSearchGoesDownByThoseStepsUntilOneFits) {
  const auto always = [](std::uint64_t length) { return [length](int) { return length; }; };
  const auto linear = [](int quality) { return static_cast<std::uint64_t>(quality) * 20; };
  using ::testing::ElementsAre;
  const Search hopeless = search(100, 1000, always(3500));
  EXPECT_THAT(hopeless.tried, ElementsAre(100, 95, 55, 15));
  EXPECT_EQ(hopeless.found.error().kind(), ErrorKind::TooLarge);
  const Search fitting = search(100, 1024, linear);
  // 1.95, 1.86, 1.76, 1.37, 1.19, 1.05 and 1.02 times as long; then 1020 bytes.
  EXPECT_THAT(fitting.tried, ElementsAre(100, 95, 90, 70, 61, 54, 52, 51));
  EXPECT_EQ(*fitting.found, 51);
  EXPECT_THAT(search(3, 1000, always(1000)).tried, ElementsAre(3, 2, 1)) << "as long as the limit is too long";
  const Search full = search(100, 1000, always(3500), 95);
  EXPECT_THAT(full.tried, ElementsAre(100, 95)) << "another failure is not tried again";
  EXPECT_EQ(full.found.error().systemCode(), ENOSPC);
  for (const int nothing : {0, -5}) {
    EXPECT_TRUE(search(nothing, 10, always(1)).tried.empty());
    EXPECT_FALSE(search(nothing, 10, always(1)).found.ok());
  }
  EXPECT_EQ(Kibibytes{3}.bytes().value, 3072U);
  EXPECT_EQ(Kibibytes{UINT64_MAX / 2}.bytes().value, UINT64_MAX);
}

}  // namespace
}  // namespace quorvane
