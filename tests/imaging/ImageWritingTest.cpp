// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>
#include <cmath>
#include <filesystem>
#include <fstream>

#include "imaging/AlphaDither.h"
#include "imaging/GifEncoder.h"
#include "imaging/Image.h"
#include "imaging/IndexedColors.h"
#include "imaging/TiffEncoder.h"
#include "support/Bitmaps.h"
#include "support/TemporaryFolder.h"

namespace quorvane {
namespace {

QImage decoded(const Result<Bytes>& data) {
  EXPECT_TRUE(data.ok()) << (data.ok() ? "" : data.error().message());
  if (!data.ok()) return {};
  return QImage::fromData(data.value().data(), static_cast<int>(data.value().size()))
      .convertToFormat(QImage::Format_ARGB32);
}

/// Hues to the right, alpha (0 to 255) downwards; opaque when asked for.
BitmapImageRep gradient(int wide, int high, bool isOpaque) {
  QImage image(wide, high, QImage::Format_ARGB32);
  for (int y = 0; y < high; ++y)
    for (int x = 0; x < wide; ++x) {
      QColor color = QColor::fromHsv(x * 359 / wide, 200, 220 - 60 * y / high);
      color.setAlpha(isOpaque ? 255 : 255 * y / (high - 1));
      image.setPixelColor(x, y, color);
    }
  return *BitmapImageRep::bitmapImageRepWithCGImageRef(image);
}

double meanDifference(const QImage& a, const QImage& b) {
  double sum = 0;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x) {
      const QRgb p = a.pixel(x, y);
      const QRgb q = b.pixel(x, y);
      sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q));
    }
  return sum / (3.0 * a.width() * a.height());
}

TEST(ImageWriting, AJpegIsOnWhiteAndAsGoodAsAskedFor) {
  BitmapImageRep bitmap = test::filledBitmap(64, 64, {128, 0, 0, 128});
  bitmap.setSize({32, 64});
  const Image image = Image::imageWithBitmapImageRep(bitmap);
  const QImage red = decoded(image.JPEGRepresentation(95));
  EXPECT_NEAR(qRed(red.pixel(30, 30)), 255, 2);
  EXPECT_NEAR(qGreen(red.pixel(30, 30)), 127, 2);
  EXPECT_NEAR(red.dotsPerMeterX(), 144 / 0.0254, 1);
  EXPECT_NEAR(red.dotsPerMeterY(), 72 / 0.0254, 1);

  const BitmapImageRep hues = gradient(97, 61, true);
  const Image colours = Image::imageWithBitmapImageRep(hues);
  double best = 0;
  std::size_t length = SIZE_MAX;
  for (const int quality : {100, 90, 60, 20, 0}) {
    const auto jpeg = colours.JPEGRepresentation(quality);
    const double difference = meanDifference(decoded(jpeg), hues.toImage());
    EXPECT_GE(difference, best) << quality;
    EXPECT_LT(jpeg.value().size(), length) << quality;
    best = difference;
    length = jpeg.value().size();
    EXPECT_LT(difference, quality == 100 ? 1 : 255);
    // Sampling factors of the first component, in the frame header: 1 x 1 keeps all colour.
    const Bytes& data = jpeg.value();
    const Bytes frame{0xFF, 0xC0};
    const auto at = std::search(data.begin(), data.end(), frame.begin(), frame.end());
    EXPECT_EQ(at[11], quality >= 90 ? 0x11 : 0x22) << quality;
  }
}

TEST(ImageWriting, TheLimitOfBytesDecidesWhetherAJpegIsWritten) {
  const test::TemporaryFolder folder;
  const auto path = folder.path() / "a.jpg";
  const Image image = Image::imageWithBitmapImageRep(gradient(200, 200, false));
  std::uint64_t length = 0;
  ASSERT_TRUE(image.writeToJPEGFile(path, 80, ByteCount{0}, &length).ok());
  EXPECT_EQ(std::filesystem::file_size(path), length);
  const auto earlier = std::filesystem::last_write_time(path);
  for (const std::uint64_t tooLow : {length, length - 1, std::uint64_t{1}}) {
    std::uint64_t again = 0;
    const auto refused = image.writeToJPEGFile(path, 80, ByteCount{tooLow}, &again);
    ASSERT_FALSE(refused.ok());
    EXPECT_EQ(refused.error().kind(), ErrorKind::TooLarge);
    EXPECT_EQ(again, length);
  }
  EXPECT_EQ(std::filesystem::last_write_time(path), earlier);
  EXPECT_TRUE(image.writeToJPEGFile(path, 80, ByteCount{length + 1}, nullptr).ok());

  for (const std::uint64_t kibibytes : {6, 3}) {
    ASSERT_TRUE(image.writeToJPEGFile(path, 100, Kibibytes{kibibytes}).ok()) << kibibytes;
    EXPECT_LT(std::filesystem::file_size(path), kibibytes * 1024);
    EXPECT_GT(std::filesystem::file_size(path), kibibytes * 512) << "not smaller than need be";
  }
  const auto smallest = std::filesystem::file_size(path);
  const Image large = Image::imageWithBitmapImageRep(gradient(600, 600, false));
  EXPECT_EQ(large.writeToJPEGFile(path, 100, Kibibytes{1}).error().kind(), ErrorKind::TooLarge);
  EXPECT_EQ(std::filesystem::file_size(path), smallest);
  EXPECT_FALSE(image.writeToJPEGFile(folder.path() / "none/a.jpg", 100, Kibibytes{9999}).ok());
}

TEST(ImageWriting, ATiffKeepsAlphaAndEveryRepresentation) {
  Image image({40, 30});
  const BitmapImageRep large = gradient(80, 60, false);
  std::vector<BitmapImageRep> all{large};
  for (const int side : {16, 24, 32, 48, 64}) all.push_back(gradient(side, side, side == 48));
  for (const BitmapImageRep& one : all) image.addRepresentation(one);
  const auto tiff = image.TIFFRepresentation();
  ASSERT_TRUE(tiff.ok());
  EXPECT_EQ(tiffPageCount(tiff.value()), 6);
  const auto back = Image::imageWithData(tiff.value());
  ASSERT_TRUE(back.ok());
  EXPECT_TRUE(std::ranges::equal(back.value().bitmapRepresentation()->bitmapData(), large.bitmapData()));
  EXPECT_EQ(tiffPageCount(ByteView(tiff.value()).first(7)), 0);
  EXPECT_FALSE(appendTiffPages({1, 2, 3}, {large}).ok());
}

TEST(ImageWriting, AGifKeepsFewColoursExactlyAndManyNearly) {
  QImage few(16, 16, QImage::Format_ARGB32);
  for (int i = 0; i < 256; ++i) few.setPixel(i % 16, i / 16, qRgb(i, 255 - i, i * 7 % 256));
  EXPECT_EQ(decoded(encodeGif(*BitmapImageRep::bitmapImageRepWithCGImageRef(few))), few) << "all 256 places used";
  const QRgb hole = qRgba(255, 255, 255, 0);
  few.setPixel(3, 5, hole);
  EXPECT_EQ(decoded(encodeGif(*BitmapImageRep::bitmapImageRepWithCGImageRef(few))), few) << "255 and a hole";
  EXPECT_EQ(decoded(encodeGif(test::filledBitmap(3, 2))).pixel(1, 1), hole) << "nothing but a hole";

  for (const bool isOpaque : {true, false}) {
    const BitmapImageRep many = gradient(256, 128, isOpaque);
    const auto colors = indexedColors(many);
    ASSERT_TRUE(colors.ok());
    EXPECT_EQ(colors.value().transparentIndex.has_value(), !isOpaque);
    EXPECT_LE(colors.value().palette.size(), 256U);
    const auto gif = encodeGif(many);
    EXPECT_EQ(gif.value(), encodeGif(many).value()) << "the same each time";
    const QImage image = decoded(gif);
    const std::vector<std::uint8_t> shown = ditheredAlpha(many);
    QImage wanted = many.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < 128; ++y)
      for (int x = 0; x < 256; ++x) {
        const int alpha = qAlpha(image.pixel(x, y));
        ASSERT_EQ(alpha, shown[std::size_t(y) * 256 + std::size_t(x)] != 0 ? 255 : 0);
        if (alpha == 0 || y < 20) wanted.setPixel(x, y, image.pixel(x, y));  // faint colours are not exact
      }
    EXPECT_LT(meanDifference(image, wanted), isOpaque ? 4 : 3);
  }
}

TEST(ImageWriting, PartialAlphaBecomesThatShareOfShownPixels) {
  for (const int alpha : {0, 3, 40, 128, 200, 252, 255}) {
    const BitmapImageRep even = test::filledBitmap(120, 120, Bytes(4, static_cast<std::uint8_t>(alpha)));
    const std::vector<std::uint8_t> shown = ditheredAlpha(even);
    const auto count = std::ranges::count(shown, 1);
    EXPECT_NEAR(static_cast<double>(count) / 14400, alpha / 255.0, alpha % 255 == 0 ? 0 : 0.01) << alpha;
    // Also in every part of it: a quarter of the surface has a quarter of them.
    int inCorner = 0;
    for (std::size_t y = 60; y < 120; ++y)
      inCorner += static_cast<int>(
          std::ranges::count(shown.begin() + std::ptrdiff_t(y * 120), shown.begin() + std::ptrdiff_t(y * 120 + 60), 1));
    EXPECT_NEAR(inCorner / 3600.0, alpha / 255.0, alpha % 255 == 0 ? 0 : 0.02) << alpha;
  }
}

TEST(ImageWriting, WhatHasNoPixelsIsDrawnOrRefused) {
  const test::TemporaryFolder folder;
  const auto path = folder.path() / "a";
  const Image empty({5.5F, 3});
  const QImage white = decoded(empty.JPEGRepresentation(90));
  EXPECT_EQ(white.size(), QSize(6, 3));
  EXPECT_EQ(white.pixel(2, 2), 0xFFFFFFFF);
  EXPECT_EQ(decoded(empty.PNGRepresentation()).pixel(2, 2), 0U);
  Image broken({4, 4});
  broken.addRepresentation(ImageRep::pending(4, 4, {4, 4}, [] { return std::nullopt; }));
  for (const Image& image : {Image(), broken}) {
    EXPECT_FALSE(image.writeToJPEGFile(path, 90, ByteCount{}, nullptr).ok());
    EXPECT_FALSE(image.writeToJPEGFile(path, 90, Kibibytes{}).ok());
    EXPECT_FALSE(image.writeToTIFFFile(path).ok());
    EXPECT_FALSE(image.writeToPNGFile(path).ok());
    EXPECT_EQ(image.writeToGIFFile(path).error().where(), path);
  }
  EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
  ASSERT_TRUE(empty.writeToGIFFile(path).ok() && empty.writeToTIFFFile(path).ok() && empty.writeToPNGFile(path).ok());
  std::filesystem::create_symlink("/dev/null", folder.path() / "link");
  EXPECT_EQ(empty.writeToPNGFile(folder.path() / "link").error().kind(), ErrorKind::Refused);
}

}  // namespace
}  // namespace quorvane
