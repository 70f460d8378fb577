// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/BitmapImageRep.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QColorSpace>
#include <QPainter>
#include <cmath>
#include <limits>

#include "imaging/Premultiply.h"

namespace quorvane {
namespace {

using ::testing::ElementsAre;

std::vector<int> pixel(const BitmapImageRep& bitmap, int x, int y) {
  const std::uint8_t* at = bitmap.row(y) + x * 4;
  return {at[0], at[1], at[2], at[3]};
}

/// Every pixel tells where it came from.
BitmapImageRep numbered(int width, int height) {
  auto bitmap = BitmapImageRep::bitmapImageRepWithSize({float(width), float(height)});
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      std::uint8_t* at = bitmap.mutableRow(y) + x * 4;
      at[0] = static_cast<std::uint8_t>(x + 1);
      at[1] = static_cast<std::uint8_t>(y + 1);
      at[2] = 100;
      at[3] = 200;
    }
  return bitmap;
}

void expectSamePixels(const BitmapImageRep& a, const BitmapImageRep& b) {
  ASSERT_EQ(a.pixelsWide(), b.pixelsWide());
  ASSERT_EQ(a.pixelsHigh(), b.pixelsHigh());
  for (int y = 0; y < a.pixelsHigh(); ++y)
    for (int x = 0; x < a.pixelsWide(); ++x) ASSERT_EQ(pixel(a, x, y), pixel(b, x, y)) << x << "," << y;
}

TEST(BitmapImageRep, SizeIsCutToWholePixelsAndTransparent) {
  const auto bitmap = BitmapImageRep::bitmapImageRepWithSize({16.9F, 16.9F});
  EXPECT_EQ(bitmap.pixelsWide(), 16);
  EXPECT_EQ(bitmap.pixelsHigh(), 16);
  EXPECT_TRUE(bitmap.isStandard());
  EXPECT_THAT(bitmap.bitmapData(), ::testing::Each(0));
  EXPECT_EQ(bitmap.size(), (Size{16, 16}));
}

TEST(BitmapImageRep, ImpossibleSizesGiveAnEmptyBitmapThatSurvivesEveryOperation) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  for (const Size size : {Size{0, 0}, Size{0.9F, 5}, Size{-3, 4}, Size{nan, 4}, Size{1e30F, 1}, Size{32768, 32768}}) {
    auto bitmap = BitmapImageRep::bitmapImageRepWithSize(size);
    EXPECT_EQ(bitmap.pixelsWide(), 0);
    EXPECT_EQ(bitmap.pixelsHigh(), 0);
    EXPECT_TRUE(bitmap.toImage().isNull());
    bitmap.lockFocus().fillRect(0, 0, 9, 9, Qt::red);
    bitmap.unlockFocus();
    EXPECT_EQ(bitmap.bitmapImageRepByRotatingClockwise().pixelsWide(), 0);
    EXPECT_EQ(bitmap.bitmapImageRepByScalingToSize({2, 2}, ImageInterpolation::High, Qt::blue).pixelsWide(), 2);
  }
}

TEST(BitmapImageRep, CopiesShareUntilWritten) {
  auto first = numbered(3, 2);
  const auto second = first;
  EXPECT_EQ(first.bitmapData().data(), second.bitmapData().data());
  first.mutableRow(1)[0] = 77;
  EXPECT_EQ(pixel(second, 0, 1)[0], 1);
  EXPECT_EQ(pixel(first, 0, 1)[0], 77);
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
      {"8-bit grey", {2, 1, 8, 1, 8, 0, false}, {7, 250}, {7, 7, 7, 255}, {250, 250, 250, 255}},
      {"grey and alpha", {2, 1, 8, 2, 16, 0, true, false, false}, {200, 128, 9, 0}, {100, 100, 100, 128}, {0, 0, 0, 0}},
      {"24-bit RGB", {2, 1, 8, 3, 24, 0, false}, {1, 2, 3, 4, 5, 6}, {1, 2, 3, 255}, {4, 5, 6, 255}},
      {"RGB in 32 bits", {2, 1, 8, 3, 32, 0, false}, {1, 2, 3, 9, 4, 5, 6, 9}, {1, 2, 3, 255}, {4, 5, 6, 255}},
      {"5-bit gaps: 4-bit RGB in 13 bits",
       {2, 1, 4, 3, 13, 0, false},
       {0xF0, 0x80, 0x7F, 0x80},  // 1111 0000 1000 0|000 0111 1111 1...
       {255, 0, 136, 255},
       {0, 255, 255, 255}},
      {"RGBA", {2, 1}, {1, 2, 3, 4, 5, 6, 7, 8}, {1, 2, 3, 4}, {5, 6, 7, 8}},
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

TEST(BitmapImageRep, EveryLayoutBecomesStandard) {
  for (const auto& [name, layout, bytes, left, right] : layoutCases()) {
    SCOPED_TRACE(name);
    const auto bitmap = BitmapImageRep::bitmapImageRepWithLayout(layout, bytes);
    ASSERT_TRUE(bitmap);
    const auto standard = bitmap->toStandard();
    EXPECT_TRUE(standard.isStandard());
    EXPECT_EQ(pixel(standard, 0, 0), left);
    EXPECT_EQ(pixel(standard, 1, 0), right);
    const QImage image = bitmap->toImage();
    EXPECT_EQ(image.format(), QImage::Format_ARGB32_Premultiplied);
    EXPECT_EQ(image.pixel(1, 0), qRgba(right[0], right[1], right[2], right[3]));
  }
}

TEST(BitmapImageRep, RowsMayBeLongerThanNeeded) {
  for (auto [name, layout, bytes, left, right] : layoutCases()) {
    SCOPED_TRACE(name);
    const auto tight = BitmapImageRep::bitmapImageRepWithLayout(layout, bytes);
    ASSERT_TRUE(tight);
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
  const auto refused = [&](auto change) {
    BitmapLayout layout = good;
    change(layout);
    return !BitmapImageRep::bitmapImageRepWithLayout(layout).has_value();
  };
  EXPECT_TRUE(refused([](auto& l) { l.pixelsWide = 0; }));
  EXPECT_TRUE(refused([](auto& l) { l.pixelsHigh = -1; }));
  EXPECT_TRUE(refused([](auto& l) { l.pixelsWide = l.pixelsHigh = 32768; }));
  EXPECT_TRUE(refused([](auto& l) { l.bitsPerSample = 7; }));
  EXPECT_TRUE(refused([](auto& l) { l.samplesPerPixel = 5; }));
  EXPECT_TRUE(refused([](auto& l) { l.hasAlpha = false; }));
  EXPECT_TRUE(refused([](auto& l) { l.samplesPerPixel = 3; }));
  EXPECT_TRUE(refused([](auto& l) { l.bitsPerPixel = 24; }));
  EXPECT_TRUE(refused([](auto& l) { l.bitsPerPixel = 33; }));
  EXPECT_TRUE(refused([](auto& l) { l.isPlanar = true; }));
  EXPECT_TRUE(refused([](auto& l) { l.bytesPerRow = 15; }));
  EXPECT_TRUE(refused([](auto& l) { l.bytesPerRow = std::numeric_limits<int>::max(); }));
  EXPECT_FALSE(BitmapImageRep::bitmapImageRepWithLayout(good, Bytes(63)));
}

TEST(BitmapImageRep, FocusDrawsInUnitsFromTheBottomLeft) {
  auto bitmap = BitmapImageRep::bitmapImageRepWithSize({4, 3});
  bitmap.lockFocus().fillRect(0, 0, 1, 1, QColor(10, 20, 30, 255));
  bitmap.unlockFocus();
  EXPECT_THAT(pixel(bitmap, 0, 2), ElementsAre(10, 20, 30, 255));
  EXPECT_THAT(pixel(bitmap, 0, 0), ElementsAre(0, 0, 0, 0));
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

TEST(BitmapImageRep, FocusTurnsAnotherLayoutIntoTheStandardOne) {
  auto bitmap = BitmapImageRep::bitmapImageRepWithLayout({2, 1, 8, 1, 8, 0, false}, {7, 250});
  ASSERT_TRUE(bitmap);
  bitmap->lockFocus().fillRect(1, 0, 1, 1, Qt::green);
  bitmap->unlockFocus();
  EXPECT_TRUE(bitmap->isStandard());
  EXPECT_THAT(pixel(*bitmap, 0, 0), ElementsAre(7, 7, 7, 255));
  EXPECT_THAT(pixel(*bitmap, 1, 0), ElementsAre(0, 255, 0, 255));
}

TEST(BitmapImageRep, RotationsAreExact) {
  const auto source = numbered(4, 2);
  const auto clockwise = source.bitmapImageRepByRotatingClockwise();
  EXPECT_EQ(clockwise.pixelsWide(), 2);
  EXPECT_EQ(clockwise.pixelsHigh(), 4);
  // The top left pixel goes to the top right, the bottom left one to the top left.
  EXPECT_THAT(pixel(clockwise, 1, 0), ElementsAre(1, 1, 100, 200));
  EXPECT_THAT(pixel(clockwise, 0, 0), ElementsAre(1, 2, 100, 200));

  expectSamePixels(clockwise.bitmapImageRepByRotatingClockwise(), source.bitmapImageRepByRotating180());
  expectSamePixels(clockwise.bitmapImageRepByRotatingCounterClockwise(), source);
  const auto turned = source.bitmapImageRepByRotating180();
  EXPECT_THAT(pixel(turned, 0, 0), ElementsAre(4, 2, 100, 200));
  expectSamePixels(turned.bitmapImageRepByRotating180(), source);
}

TEST(BitmapImageRep, ApplyingTransformMovesUpwardsAndLeavesTheTransformInverted) {
  const auto source = numbered(2, 2);
  QTransform transform = QTransform::fromTranslate(1, 2);
  const auto moved = source.bitmapImageRepByApplyingTransform(transform, {4, 5});
  EXPECT_EQ(transform, QTransform::fromTranslate(-1, -2));
  // Bottom left pixel of the source: now one to the right and two up from the bottom left.
  EXPECT_EQ(pixel(moved, 1, 2), pixel(source, 0, 1));
  EXPECT_EQ(pixel(moved, 0, 4)[3], 0);

  QTransform mirror(-1, 0, 0, 1, 2, 0);
  const auto mirrored = source.bitmapImageRepByApplyingTransform(mirror, {2, 2});
  EXPECT_EQ(pixel(mirrored, 0, 0), pixel(source, 1, 0));
}

TEST(BitmapImageRep, ApplyingAShearKeepsTheBottomRowInPlace) {
  const auto source = numbered(8, 8);
  QTransform shear(1, 0, 1, 1, 0, 0);  // x' = x + y
  const auto sheared = source.bitmapImageRepByApplyingTransform(shear, {16, 8});
  EXPECT_NEAR(shear.m21(), -1, 1e-9);
  EXPECT_GT(pixel(sheared, 4, 7)[3], 190);  // near the bottom: hardly moved
  EXPECT_EQ(pixel(sheared, 4, 0)[3], 0);    // at the top: moved by seven and a half
  EXPECT_GT(pixel(sheared, 11, 0)[3], 190);
}

TEST(BitmapImageRep, ATurnThatShrinksDoesNotAlias) {
  // One-pixel stripes shrunk to a sixteenth: nothing but an even grey may be left.
  auto stripes = BitmapImageRep::bitmapImageRepWithSize({256, 256});
  for (int y = 0; y < 256; ++y)
    for (int x = 0; x < 256; ++x) {
      std::uint8_t* at = stripes.mutableRow(y) + x * 4;
      at[0] = at[1] = at[2] = x % 2 == 0 ? 255 : 0;
      at[3] = 255;
    }
  QTransform transform =
      QTransform::fromScale(1 / 16.0, 1 / 16.0) * QTransform().rotate(45) * QTransform::fromTranslate(16, 4);
  const auto shrunk = stripes.bitmapImageRepByApplyingTransform(transform, {32, 32});
  for (int y = 13; y < 20; ++y)
    for (int x = 13; x < 20; ++x) EXPECT_NEAR(pixel(shrunk, x, y)[0], 128, 3) << x << "," << y;
}

TEST(BitmapImageRep, TransformsWithoutInverseDrawNothingAndStay) {
  const auto source = numbered(2, 2);
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (QTransform transform : {QTransform(0, 0, 0, 0, 1, 1), QTransform(1, 1, 1, 1, 0, 0)}) {
    const QTransform before = transform;
    EXPECT_THAT(source.bitmapImageRepByApplyingTransform(transform, {4, 4}).bitmapData(), ::testing::Each(0));
    EXPECT_EQ(transform, before);
  }
  QTransform broken(nan, 0, 0, 1, 0, 0);
  EXPECT_THAT(source.bitmapImageRepByApplyingTransform(broken, {4, 4}).bitmapData(), ::testing::Each(0));
}

TEST(BitmapImageRep, ScalingWithAndWithoutBackground) {
  auto source = BitmapImageRep::bitmapImageRepWithSize({2, 2});
  std::fill_n(source.mutableRow(0), 16, std::uint8_t{64});  // grey at a quarter
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
  const auto rgb = BitmapImageRep::bitmapImageRepWithLayout(
      {3, 2, 8, 3, 24, 12, false},
      {255, 255, 255, 0, 255, 0, 0, 0, 0, 0, 0, 0, 255, 0, 0, 0, 0, 255, 7, 7, 7, 0, 0, 0});
  ASSERT_TRUE(rgb);
  EXPECT_EQ(rgb->brightnessAtX(0, 0), 255U);
  EXPECT_EQ(rgb->brightnessAtX(1, 0), 180U);
  EXPECT_EQ(rgb->brightnessAtX(0, 1), 57U);
  EXPECT_EQ(rgb->brightnessAtX(1, 1), 18U);
  EXPECT_EQ(numbered(4, 2).brightnessAtX(2, 1), 3U);  // red alone
}

TEST(BitmapImageRep, ADecodedPictureKeepsItsColoursInOneSpace) {
  EXPECT_FALSE(BitmapImageRep::bitmapImageRepWithCGImageRef(QImage()));
  QImage image(2, 1, QImage::Format_ARGB32);
  image.setPixelColor(0, 0, QColor(255, 0, 0, 128));
  image.setPixelColor(1, 0, QColor(100, 100, 100));
  auto bitmap = BitmapImageRep::bitmapImageRepWithCGImageRef(image);
  ASSERT_TRUE(bitmap);
  EXPECT_THAT(pixel(*bitmap, 0, 0), ElementsAre(128, 0, 0, 128));
  image.setColorSpace(QColorSpace(QColorSpace::SRgbLinear));
  bitmap = BitmapImageRep::bitmapImageRepWithCGImageRef(image);
  ASSERT_TRUE(bitmap);
  EXPECT_NEAR(pixel(*bitmap, 1, 0)[0], 168, 1);  // linear 0.392 is sRGB 0.66
  // A palette with a colour space of its own.
  QImage palette(1, 1, QImage::Format_Indexed8);
  palette.setColorTable({qRgb(100, 100, 100)});
  palette.fill(0);
  palette.setColorSpace(QColorSpace(QColorSpace::SRgbLinear));
  bitmap = BitmapImageRep::bitmapImageRepWithCGImageRef(palette);
  ASSERT_TRUE(bitmap);
  EXPECT_NEAR(pixel(*bitmap, 0, 0)[1], 168, 1);
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
