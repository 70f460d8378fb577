// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/Resampler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>

#include "imaging/ResampleWeights.h"
#include "imaging/ResamplerKernels.h"
#include "support/Bitmaps.h"

namespace quorvane {
namespace {

constexpr ImageInterpolation allInterpolations[] = {ImageInterpolation::Default, ImageInterpolation::None,
                                                    ImageInterpolation::Low, ImageInterpolation::High};
constexpr ResampleKernel allKernels[] = {ResampleKernel::Box, ResampleKernel::Triangle, ResampleKernel::Mitchell,
                                         ResampleKernel::CatmullRom, ResampleKernel::Lanczos3};

BitmapImageRep blank(int width, int height) {
  return test::filledBitmap(width, height);
}

/// Any premultiplied picture, with hard edges in colour and alpha.
BitmapImageRep noise(int width, int height, unsigned seed) {
  std::mt19937 random(seed);
  auto bitmap = blank(width, height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      std::uint8_t* at = bitmap.mutableRow(y) + x * 4;
      const unsigned kind = random() % 4;
      at[3] = static_cast<std::uint8_t>(kind == 0 ? 0 : kind == 1 ? 255 : random() % 256);
      for (int channel = 0; channel < 3; ++channel)
        at[channel] = static_cast<std::uint8_t>(random() % 2 == 0 ? at[3] : random() % (at[3] + 1U));
    }
  return bitmap;
}

int sample(const BitmapImageRep& bitmap, int x, int y, int channel) {
  return bitmap.row(y)[x * 4 + channel];
}

TEST(Resampler, ConstantColourStaysConstantAtEverySize) {
  const auto source = test::filledBitmap(37, 23, {10, 77, 128, 129});
  for (const auto interpolation : allInterpolations)
    for (const auto& [width, height] : {std::pair{37, 23}, {16, 16}, {1, 1}, {5, 200}, {74, 46}, {36, 24}}) {
      auto target = blank(width, height);
      drawResampled(source, target, {0, 0, double(width), double(height)}, interpolation);
      for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
          ASSERT_TRUE(std::equal(target.row(y) + x * 4, target.row(y) + x * 4 + 4, source.row(0)))
              << width << "x" << height << " at " << x << "," << y << " setting " << int(interpolation);
    }
}

TEST(Resampler, NoColourAboveAlphaWhateverThePicture) {
  const auto source = noise(61, 47, 1);
  for (const auto kernel : allKernels)
    for (const auto& [width, height] : {std::pair{200, 130}, {30, 31}, {7, 5}, {61, 46}}) {
      auto target = blank(width, height);
      drawResampled(source, target, {0.3, -0.4, width - 0.2, height + 0.7}, kernel);
      for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
          for (int channel = 0; channel < 3; ++channel)
            ASSERT_LE(sample(target, x, y, channel), sample(target, x, y, 3));
    }
}

TEST(Resampler, ShrinkingKeepsTheSumAndTheCentre) {
  // A soft blob away from the middle; sum and centre of gravity of its alpha must survive.
  auto source = blank(200, 160);
  const auto moments = [](const BitmapImageRep& bitmap) {
    double sum = 0, x = 0, y = 0;
    for (int row = 0; row < bitmap.pixelsHigh(); ++row)
      for (int column = 0; column < bitmap.pixelsWide(); ++column) {
        const double value = sample(bitmap, column, row, 3);
        sum += value;
        x += value * (column + 0.5);
        y += value * (row + 0.5);
      }
    return std::array{sum, x / sum, y / sum};
  };
  for (int y = 0; y < 160; ++y)
    for (int x = 0; x < 200; ++x) {
      const double squared = (x - 60.0) * (x - 60.0) + (y - 100.0) * (y - 100.0);
      source.mutableRow(y)[x * 4 + 3] = static_cast<std::uint8_t>(std::lround(255 * std::exp(-squared / 500)));
    }
  const auto before = moments(source);
  for (const auto kernel : allKernels) {
    auto target = blank(60, 50);
    drawResampled(source, target, {3.25, 1.5, 50, 40}, kernel);
    const auto after = moments(target);
    EXPECT_NEAR(after[0] * 16 / before[0], 1, 0.01);
    EXPECT_NEAR(after[1], 3.25 + before[1] / 4, 0.03);
    EXPECT_NEAR(after[2], 1.5 + before[2] / 4, 0.03);
  }
}

TEST(Resampler, PartlyCoveredPixelsGetTheirPart) {
  const auto source = test::filledBitmap(3, 2, {255, 255, 255, 255});
  auto target = blank(16, 16);
  drawResampled(source, target, {0, 2.5, 16, 11}, ImageInterpolation::High);  // 3 x 2 fitted into 16
  EXPECT_EQ(sample(target, 5, 1, 3), 0);
  EXPECT_EQ(sample(target, 5, 2, 3), 128);
  EXPECT_EQ(sample(target, 5, 3, 3), 255);
  EXPECT_EQ(sample(target, 5, 12, 3), 255);
  EXPECT_EQ(sample(target, 5, 13, 3), 128);
  EXPECT_EQ(sample(target, 5, 14, 3), 0);

  auto small = blank(4, 4);
  drawResampled(source, small, {1.25, 1.25, 0.5, 0.5}, ImageInterpolation::High);  // less than a pixel
  EXPECT_EQ(sample(small, 1, 1, 3), 64);
  EXPECT_EQ(sample(small, 0, 1, 3) + sample(small, 2, 1, 3), 0);
}

TEST(Resampler, NearestTakesWholePixelsByTheirCentres) {
  const auto source = noise(5, 5, 2);
  auto target = blank(12, 12);
  drawResampled(source, target, {1.4, 1.6, 10, 10}, ImageInterpolation::None);
  for (int y = 0; y < 12; ++y)
    for (int x = 0; x < 12; ++x) {
      const bool inside = x >= 1 && x < 11 && y >= 2 && y < 12;
      const auto at = [&](double offset, int i) { return std::clamp(int((i + 0.5 - offset) / 2), 0, 4); };
      for (int channel = 0; channel < 4; ++channel)
        ASSERT_EQ(sample(target, x, y, channel), inside ? sample(source, at(1.4, x), at(1.6, y), channel) : 0);
    }
}

TEST(Resampler, EqualSizeAtWholeOffsetsCopiesAndCuts) {
  const auto source = noise(20, 10, 3);
  for (const auto interpolation : allInterpolations) {
    auto target = blank(20, 10);
    drawResampled(source, target, {-4, 3, 20, 10}, interpolation);
    for (int y = 0; y < 10; ++y)
      for (int x = 0; x < 20; ++x)
        for (int channel = 0; channel < 4; ++channel)
          ASSERT_EQ(sample(target, x, y, channel), x < 16 && y >= 3 ? sample(source, x + 4, y - 3, channel) : 0);
  }
}

TEST(Resampler, CuttingDoesNotChangeWhatIsLeft) {
  const auto source = noise(90, 90, 4);
  auto whole = blank(60, 60);
  drawResampled(source, whole, {7.5, 3.25, 40, 50}, ImageInterpolation::High);
  auto part = blank(20, 20);  // the window at (20, 20)
  drawResampled(source, part, {7.5 - 20, 3.25 - 20, 40, 50}, ImageInterpolation::High);
  for (int y = 0; y < 20; ++y) ASSERT_TRUE(std::equal(part.row(y), part.row(y) + 80, whole.row(y + 20) + 80)) << y;
}

TEST(Resampler, NonsenseTargetsDrawNothing) {
  const auto source = test::filledBitmap(4, 4, {255, 255, 255, 255});
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  const std::array<double, 4> rects[] = {{0, 0, 0, 4},   {0, 0, 4, -4},    {nan, 0, 4, 4}, {0, 0, infinity, 4},
                                         {0, nan, 4, 4}, {1e300, 0, 4, 4}, {9, 0, 4, 4},   {0, -4, 4, 4}};
  for (const auto& [x, y, width, height] : rects)
    for (const auto interpolation : allInterpolations) {
      auto target = blank(4, 4);
      drawResampled(source, target, {x, y, width, height}, interpolation);
      EXPECT_THAT(target.bitmapData(), ::testing::Each(0)) << x << " " << width;
    }
  // Huge, but the part that is seen is an ordinary one.
  auto target = blank(4, 4);
  drawResampled(source, target, {-1e9, -1e9, 2e9, 2e9}, ImageInterpolation::High);
  EXPECT_THAT(target.bitmapData(), ::testing::Each(255));
}

TEST(Resampler, SourceAndDestinationMayBeOneBitmap) {
  auto bitmap = noise(16, 16, 5);
  auto expected = blank(16, 16);
  const BitmapImageRep before = bitmap;
  std::copy_n(before.row(0), 16 * 16 * 4, expected.mutableRow(0));
  drawResampled(before, expected, {0, 0, 8, 8}, ImageInterpolation::High);
  drawResampled(bitmap, bitmap, {0, 0, 8, 8}, ImageInterpolation::High);
  EXPECT_TRUE(std::ranges::equal(bitmap.bitmapData(), expected.bitmapData()));
}

TEST(ResampleWeights, AddUpToOneAlsoForThousandsOfTaps) {
  for (const auto kernel : allKernels)
    for (const int source : {1, 2, 3, 17, 512, 20000})
      for (const int destination : {1, 2, 16, 33, 700}) {
        const auto result = makeResampleWeights(source, destination, 0, destination, kernel);
        ASSERT_EQ(result.spans.size(), std::size_t(destination));
        for (const auto& span : result.spans) {
          int sum = 0;
          for (int i = 0; i < span.count; ++i) sum += result.weights[span.firstWeight + i];
          ASSERT_EQ(sum, weightOne);
          ASSERT_EQ(result.weights[span.firstWeight + span.count], 0);
          ASSERT_GE(span.firstSource, 0);
          ASSERT_LE(span.firstSource + span.count, source);
        }
      }
}

TEST(ResamplerKernels, BothFormsGiveTheSameBytes) {
  std::mt19937 random(6);
  for (int round = 0; round < 300; ++round) {
    const int taps = 1 + int(random() % 40);
    const int count = 4 * (1 + int(random() % 30));
    const std::ptrdiff_t rowBytes = count + int(random() % 8);
    std::vector<std::uint8_t> rows(rowBytes * taps);
    for (auto& value : rows) value = static_cast<std::uint8_t>(random());
    std::vector<std::int16_t> weights(taps + 1);
    // As far as real weights go and a little beyond; the sums then leave 0 ... 255 on both sides.
    for (int i = 0; i < taps; ++i) weights[i] = static_cast<std::int16_t>((int(random() % 40000) - 16000) / taps);
    std::vector<std::int16_t> sums(count + 4), otherSums(count + 4);
    kernels::gatherRows(rows.data(), rowBytes, weights.data(), taps, count, sums.data());
    kernels::portable::gatherRows(rows.data(), rowBytes, weights.data(), taps, count, otherSums.data());
    ASSERT_EQ(sums, otherSums);

    std::vector<std::int16_t> pixels(4 * taps + 4);
    for (auto& value : pixels) value = static_cast<std::int16_t>(int(random() % 24000) - 4000);
    std::uint8_t pixel[4], otherPixel[4];
    kernels::gatherPixel(pixels.data(), weights.data(), taps, pixel);
    kernels::portable::gatherPixel(pixels.data(), weights.data(), taps, otherPixel);
    ASSERT_TRUE(std::equal(pixel, pixel + 4, otherPixel)) << taps;
  }
}

}  // namespace
}  // namespace quorvane
