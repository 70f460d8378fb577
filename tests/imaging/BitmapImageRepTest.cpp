// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/BitmapImageRep.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <limits>

#include "imaging/Premultiply.h"
#include "support/Bitmaps.h"

namespace quorvane {
namespace {

using ::testing::ElementsAre;

using test::filledBitmap;
constexpr auto pixel = test::pixelAt;

/// Every pixel tells where it came from.
BitmapImageRep numbered(int width, int height) {
  auto bitmap = BitmapImageRep::bitmapImageRepWithSize({float(width), float(height)});
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      const int samples[] = {x + 1, y + 1, 100, 200};
      std::copy_n(samples, 4, bitmap.mutableRow(y) + x * 4);
    }
  return bitmap;
}

void expectSamePixels(const BitmapImageRep& a, const BitmapImageRep& b) {
  ASSERT_EQ(a.pixelsWide(), b.pixelsWide());
  ASSERT_EQ(a.pixelsHigh(), b.pixelsHigh());
  EXPECT_TRUE(std::ranges::equal(a.bitmapData(), b.bitmapData()));
}

TEST(BitmapImageRep, SizesAreCutToWholePixelsAndImpossibleOnesSurviveEveryOperation) {
  EXPECT_EQ(BitmapImageRep::bitmapImageRepWithSize({16.9F, 16.9F}).size(), (Size{16, 16}));
  const float nan = std::numeric_limits<float>::quiet_NaN();
  for (const Size size : {Size{0, 0}, Size{0.9F, 5}, Size{-3, 4}, Size{nan, 4}, Size{1e30F, 1}, Size{32768, 32768}}) {
    auto bitmap = BitmapImageRep::bitmapImageRepWithSize(size);
    EXPECT_EQ(bitmap.pixelsWide(), 0);
    EXPECT_TRUE(bitmap.toImage().isNull());
    bitmap.lockFocus().fillRect(0, 0, 9, 9, Qt::red);
    bitmap.unlockFocus();
    EXPECT_EQ(bitmap.bitmapImageRepByRotatingClockwise().pixelsWide(), 0);
    EXPECT_EQ(bitmap.bitmapImageRepByScalingToSize({2, 2}, ImageInterpolation::High, Qt::blue).pixelsWide(), 2);
  }
}

struct LayoutCase {
  const char* name;
  BitmapLayout layout;
  Bytes bytes;
  std::vector<int> left;  // as premultiplied RGBA
  std::vector<int> right;
};

std::vector<LayoutCase> layoutCases() {
  return {
      {"1-bit grey", {2, 1, 1, 1, 1, 0, false}, {0b01000000}, {0, 0, 0, 255}, {255, 255, 255, 255}},
      {"4-bit grey", {2, 1, 4, 1, 4, 0, false}, {0x3F}, {51, 51, 51, 255}, {255, 255, 255, 255}},
      {"grey and alpha", {2, 1, 8, 2, 16, 0, true, false, false}, {200, 128, 9, 0}, {100, 100, 100, 128}, {0, 0, 0, 0}},
      {"RGB in 32 bits", {2, 1, 8, 3, 32, 0, false}, {1, 2, 3, 9, 4, 5, 6, 9}, {1, 2, 3, 255}, {4, 5, 6, 255}},
      {"5-bit gaps: 4-bit RGB in 13 bits",
       {2, 1, 4, 3, 13, 0, false},
       {0xF0, 0x80, 0x7F, 0x80},  // 1111 0000 1000 0|000 0111 1111 1...
       {255, 0, 136, 255},
       {0, 255, 255, 255}},
      {"RGBA not premultiplied",
       {2, 1, 8, 4, 32, 0, true, false, false},
       {255, 128, 0, 128, 9, 9, 9, 0},
       {128, 64, 0, 128},
       {0, 0, 0, 0}},
      {"alpha first", {2, 1, 8, 4, 32, 0, true, true}, {4, 1, 2, 3, 8, 5, 6, 7}, {1, 2, 3, 4}, {5, 6, 7, 8}},
      {"planar RGB", {2, 1, 8, 3, 8, 0, false, false, true, true}, {1, 4, 2, 5, 3, 6}, {1, 2, 3, 255}, {4, 5, 6, 255}},
      {"16-bit RGB",
       {2, 1, 16, 3, 48, 0, false},
       {1, 99, 2, 99, 3, 99, 4, 99, 5, 99, 6, 99},
       {1, 2, 3, 255},
       {4, 5, 6, 255}},
  };
}

TEST(BitmapImageRep, EveryLayoutBecomesStandardAndRowsMayBeLongerThanNeeded) {
  for (auto [name, layout, bytes, left, right] : layoutCases()) {
    SCOPED_TRACE(name);
    const auto tight = BitmapImageRep::bitmapImageRepWithLayout(layout, bytes);
    ASSERT_TRUE(tight);
    EXPECT_EQ(pixel(tight->toStandard(), 0, 0), left);
    // Two rows, the first of them blank, and three bytes at the end of each.
    const int planes = layout.isPlanar ? layout.samplesPerPixel : 1;
    const int needed = tight->bytesPerRow();
    layout.pixelsHigh = 2;
    layout.bytesPerRow = needed + 3;
    Bytes padded;
    for (int plane = 0; plane < planes; ++plane) {
      padded.insert(padded.end(), layout.bytesPerRow, 0);
      padded.insert(padded.end(), bytes.begin() + plane * needed, bytes.begin() + (plane + 1) * needed);
      padded.insert(padded.end(), 3, 0xEE);
    }
    const auto bitmap = BitmapImageRep::bitmapImageRepWithLayout(layout, padded);
    ASSERT_TRUE(bitmap);
    EXPECT_EQ(pixel(bitmap->toStandard(), 0, 1), left);
    EXPECT_EQ(pixel(bitmap->toStandard(), 1, 1), right);
    EXPECT_EQ(bitmap->toImage().pixel(0, 1), qRgba(left[0], left[1], left[2], left[3]));
  }
}

TEST(BitmapImageRep, ContradictoryLayoutsAreRefused) {
  const BitmapLayout good = BitmapLayout::rgba(4, 4);
  ASSERT_TRUE(BitmapImageRep::bitmapImageRepWithLayout(good));
  const std::tuple<const char*, int BitmapLayout::*, int> rows[] = {
      {"wide", &BitmapLayout::pixelsWide, 0},
      {"high", &BitmapLayout::pixelsHigh, -1},
      {"higher", &BitmapLayout::pixelsHigh, std::numeric_limits<int>::max()},
      {"sample bits", &BitmapLayout::bitsPerSample, 7},
      {"alpha and four colours", &BitmapLayout::samplesPerPixel, 5},
      {"alpha and two colours", &BitmapLayout::samplesPerPixel, 3},
      {"too few bits a pixel", &BitmapLayout::bitsPerPixel, 24},
      {"odd bits a pixel", &BitmapLayout::bitsPerPixel, 33},
      {"short rows", &BitmapLayout::bytesPerRow, 15},
      {"endless rows", &BitmapLayout::bytesPerRow, std::numeric_limits<int>::max()}};
  for (const auto& [what, field, value] : rows) {
    BitmapLayout bad = good;
    bad.*field = value;
    EXPECT_FALSE(BitmapImageRep::bitmapImageRepWithLayout(bad)) << what;
  }
  for (bool BitmapLayout::*const field : {&BitmapLayout::hasAlpha, &BitmapLayout::isPlanar}) {
    BitmapLayout bad = good;
    bad.*field = !(bad.*field);
    EXPECT_FALSE(BitmapImageRep::bitmapImageRepWithLayout(bad));
  }
  EXPECT_FALSE(BitmapImageRep::bitmapImageRepWithLayout(good, Bytes(63)));
}

TEST(BitmapImageRep, LocksNestAndCopiesStayOutside) {
  auto bitmap = BitmapImageRep::bitmapImageRepWithSize({4, 4});
  QPainter& outer = bitmap.lockFocus();
  outer.translate(2, 0);
  outer.setOpacity(0.5);
  BitmapImageRep copy = bitmap;
  copy.unlockFocus();  // was never locked
  QPainter& inner = bitmap.lockFocus();
  inner.fillRect(0, 0, 1, 1, Qt::red);  // in a state of its own
  bitmap.unlockFocus();
  outer.fillRect(0, 3, 1, 1, Qt::blue);  // in the outer one again
  EXPECT_EQ(pixel(bitmap, 0, 3)[3], 0) << "pixels change at the last unlock";
  bitmap.unlockFocus();
  EXPECT_THAT(pixel(bitmap, 0, 3), ElementsAre(255, 0, 0, 255));
  EXPECT_NEAR(pixel(bitmap, 2, 0)[2], 128, 1);
  EXPECT_NEAR(pixel(bitmap, 2, 0)[3], 128, 1);
  EXPECT_THAT(copy.bitmapData(), ::testing::Each(0));
}

TEST(BitmapImageRep, FocusDrawsFromTheBottomLeftAndMakesTheLayoutStandard) {
  auto bitmap = BitmapImageRep::bitmapImageRepWithLayout({1, 2, 8, 1, 8, 0, false}, {7, 250});
  ASSERT_TRUE(bitmap);
  bitmap->lockFocus().fillRect(0, 0, 1, 1, QColor(10, 20, 30));
  bitmap->unlockFocus();
  EXPECT_TRUE(bitmap->isStandard());
  EXPECT_THAT(pixel(*bitmap, 0, 0), ElementsAre(7, 7, 7, 255));
  EXPECT_THAT(pixel(*bitmap, 0, 1), ElementsAre(10, 20, 30, 255));
}

TEST(BitmapImageRep, RotationsAreExact) {
  const auto source = numbered(4, 2);
  const auto clockwise = source.bitmapImageRepByRotatingClockwise();
  // The top left pixel goes to the top right, the bottom left one to the top left.
  EXPECT_THAT(pixel(clockwise, 1, 0), ElementsAre(1, 1, 100, 200));
  EXPECT_THAT(pixel(clockwise, 0, 0), ElementsAre(1, 2, 100, 200));
  expectSamePixels(clockwise.bitmapImageRepByRotatingClockwise(), source.bitmapImageRepByRotating180());
  expectSamePixels(clockwise.bitmapImageRepByRotatingCounterClockwise(), source);
}

TEST(BitmapImageRep, ApplyingTransformMovesUpwardsAndLeavesTheTransformInverted) {
  const auto source = numbered(2, 2);
  QTransform transform = QTransform::fromTranslate(1, 2);
  const auto moved = source.bitmapImageRepByApplyingTransform(transform, {4, 5});
  EXPECT_EQ(transform, QTransform::fromTranslate(-1, -2));
  // Bottom left pixel of the source: now one to the right and two up from the bottom left.
  EXPECT_EQ(pixel(moved, 1, 2), pixel(source, 0, 1));
  EXPECT_EQ(pixel(moved, 0, 4)[3], 0);

  // x' = x + y: near the bottom hardly moved, at the top by seven and a half.
  QTransform shear(1, 0, 1, 1, 0, 0);
  const auto sheared = numbered(8, 8).bitmapImageRepByApplyingTransform(shear, {16, 8});
  EXPECT_GT(pixel(sheared, 4, 7)[3], 190);
  EXPECT_EQ(pixel(sheared, 4, 0)[3], 0);
  EXPECT_GT(pixel(sheared, 11, 0)[3], 190);
}

TEST(BitmapImageRep, ATurnThatShrinksDoesNotAlias) {
  // One-pixel stripes shrunk to a sixteenth: nothing but an even grey may be left.
  auto stripes = filledBitmap(256, 256, {0, 0, 0, 255});
  for (int y = 0; y < 256; ++y)
    for (int x = 0; x < 256; x += 2) std::fill_n(stripes.mutableRow(y) + x * 4, 3, std::uint8_t{255});
  QTransform transform =
      QTransform::fromScale(1 / 16.0, 1 / 16.0) * QTransform().rotate(45) * QTransform::fromTranslate(16, 4);
  const auto shrunk = stripes.bitmapImageRepByApplyingTransform(transform, {32, 32});
  for (int y = 13; y < 20; ++y)
    for (int x = 13; x < 20; ++x) EXPECT_NEAR(pixel(shrunk, x, y)[0], 128, 3) << x << "," << y;
}

TEST(BitmapImageRep, TransformsWithoutInverseDrawNothing) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (QTransform transform :
       {QTransform(0, 0, 0, 0, 1, 1), QTransform(1, 1, 1, 1, 0, 0), QTransform(nan, 0, 0, 1, 0, 0)})
    EXPECT_THAT(numbered(2, 2).bitmapImageRepByApplyingTransform(transform, {4, 4}).bitmapData(), ::testing::Each(0));
}

TEST(BitmapImageRep, ScalingWithAndWithoutBackground) {
  const auto source = filledBitmap(2, 2, Bytes(4, 64));  // white at a quarter
  const auto bare = source.bitmapImageRepByScalingToSize({5.9F, 3.2F}, ImageInterpolation::High, std::nullopt);
  EXPECT_EQ(bare.pixelsWide(), 5);
  EXPECT_EQ(bare.pixelsHigh(), 3);
  EXPECT_THAT(pixel(bare, 4, 2), ElementsAre(64, 64, 64, 64));
  const auto onBlue = source.bitmapImageRepByScalingToSize({5, 3}, ImageInterpolation::Low, QColor(0, 0, 255));
  EXPECT_THAT(pixel(onBlue, 0, 0), ElementsAre(64, 64, 255, 255));
  const auto onHalfRed = source.bitmapImageRepByScalingToSize({2, 2}, ImageInterpolation::None, QColor(255, 0, 0, 128));
  EXPECT_THAT(pixel(onHalfRed, 1, 1), ElementsAre(160, 64, 64, 160));
}

TEST(BitmapImageRep, BrightnessIsWeightedForThreeSamplesOnly) {
  const auto rgb = BitmapImageRep::bitmapImageRepWithLayout({4, 1, 8, 3, 24, 12, false},
                                                            {255, 255, 255, 255, 0, 0, 0, 255, 0, 0, 0, 255});
  ASSERT_TRUE(rgb);
  const unsigned wanted[] = {255, 57, 180, 18};
  for (int x = 0; x < 4; ++x) EXPECT_EQ(rgb->brightnessAtX(x, 0), wanted[x]);
  EXPECT_EQ(numbered(4, 2).brightnessAtX(2, 1), 3U);  // red alone
}

TEST(Premultiply, RoundsToNearestForAllBytes) {
  for (unsigned alpha = 0; alpha < 256; ++alpha)
    for (unsigned color = 0; color < 256; ++color) {
      ASSERT_EQ(premultiplied(color, alpha), std::lround(color * alpha / 255.0)) << color << " " << alpha;
      const long wanted = alpha == 0 ? 0 : std::min(255L, (2L * color * 255 + alpha) / (2L * alpha));
      ASSERT_EQ(unpremultiplied(color, alpha), wanted) << color << " " << alpha;
    }
}

}  // namespace
}  // namespace quorvane
