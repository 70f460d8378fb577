// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/ShadowBlur.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quorvane {
namespace {

QImage square(int side, int from, int size) {
  QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  for (int y = from; y < from + size; ++y) {
    for (int x = from; x < from + size; ++x) image.setPixelColor(x, y, Qt::black);
  }
  return image;
}

TEST(ShadowBlur, SpreadsAsAGaussianOfThatDeviationDoes) {
  for (const double sigma : {0.25, 0.5, 1.75, 7.0}) {
    SCOPED_TRACE(sigma);
    // Across the edge of a square whose middle keeps its alpha.
    AlphaPlane plane(square(160, 40, 80));
    plane.blur(sigma);
    double variance = 0;
    for (int distance = -30; distance < 30; ++distance) {
      const double step = (plane.alpha(120 + distance - 1, 80) - plane.alpha(120 + distance, 80)) / 255.0;
      variance += step * distance * distance;
      // Three boxes are a good Gaussian once they are wider than a pixel.
      const double gaussian = 255 * 0.5 * std::erfc((distance + 0.5) / (sigma * std::sqrt(2.0)));
      EXPECT_NEAR(plane.alpha(120 + distance, 80), gaussian, sigma < 1 ? 16 : 4) << distance;
    }
    EXPECT_NEAR(variance, sigma * sigma, 0.03 * sigma * sigma + 0.005);
  }
}

TEST(ShadowBlur, IsAlikeInAllDirectionsAndStaysWithinItsReach) {
  for (const double sigma : {0.3, 1.1, 3.7}) {
    AlphaPlane plane(square(81, 37, 7));
    plane.blur(sigma);
    const int first = 37 - AlphaPlane::blurReach(sigma);
    for (int y = 0; y < 81; ++y)
      for (int x = 0; x < 81; ++x) {
        const int alpha = plane.alpha(x, y);
        ASSERT_TRUE(alpha == plane.alpha(80 - x, y) && alpha == plane.alpha(x, 80 - y)) << sigma;
        ASSERT_NEAR(alpha, plane.alpha(y, x), 1) << sigma;  // rows first, then columns: roundings may differ
        ASSERT_TRUE(alpha == 0 || (x >= first && y >= first)) << sigma;
      }
  }
}

TEST(ShadowBlur, NoBlurKeepsEveryAlphaAndALargeOneRunsOffTheEdge) {
  for (const double sigma : {0.0, -3.0, std::nan("")}) {
    AlphaPlane plane(square(8, 2, 4));
    plane.blur(sigma);
    for (int x = 0; x < 8; ++x) EXPECT_EQ(plane.alpha(x, 3), x >= 2 && x < 6 ? 255 : 0);
  }
  AlphaPlane plane(square(1, 0, 1));
  plane.blur(500);
  EXPECT_LT(plane.alpha(0, 0), 2);
}

}  // namespace
}  // namespace quorvane
