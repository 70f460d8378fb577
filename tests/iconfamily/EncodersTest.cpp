// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "foundation/base/Log.h"
#include "iconfamily/IconFamilyInternals.h"
#include "support/Bitmaps.h"

namespace quorvane::internals {
namespace {

/// Collects what is logged while it lives.
class CapturedLog {
 public:
  CapturedLog()
      : _former(setLogSink([this](std::string_view, std::string_view message) { lines.emplace_back(message); })) {}
  ~CapturedLog() { setLogSink(_former); }
  std::vector<std::string> lines;

 private:
  LogSink _former;
};

BitmapImageRep bitmapOf(int n, int bits, int samples, int pixelBits, const Bytes& pixel, bool planar = false) {
  BitmapLayout layout{
      .pixelsWide = n, .pixelsHigh = n, .bitsPerSample = bits, .samplesPerPixel = samples, .bitsPerPixel = pixelBits};
  layout.hasAlpha = samples == 4 || samples == 2;
  layout.isPlanar = planar;
  auto bitmap = BitmapImageRep::bitmapImageRepWithLayout(layout);
  EXPECT_TRUE(bitmap) << bits << "/" << samples << "/" << pixelBits;
  if (!planar)
    for (int y = 0; y < n; ++y)
      for (int i = 0; i < bitmap->bytesPerRow(); ++i)
        bitmap->mutableRow(y)[i] = pixel[static_cast<std::size_t>(i) % pixel.size()];
  return *bitmap;
}

BitmapImageRep rgba(int n, const Bytes& pixel) {
  return bitmapOf(n, 8, 4, 32, pixel);
}

Bytes firstPixel(const std::optional<Bytes>& data) {
  return data ? Bytes(data->begin(), data->begin() + 4) : Bytes();
}

TEST(Get32BitData, UndoesPremultiplicationByTruncationAndWrapsAround) {
  const std::pair<Bytes, Bytes> rows[] = {{{128, 0, 0, 128}, {128, 255, 0, 0}},
                                          {{9, 9, 9, 0}, {0, 0, 0, 0}},
                                          {{100, 0, 0, 200}, {200, 127, 0, 0}},         // 127.5
                                          {{200, 0, 0, 128}, {128, 398 - 256, 0, 0}}};  // the low eight bits of 398.4
  for (const auto& [pixel, stored] : rows)
    EXPECT_EQ(firstPixel(get32BitDataFromBitmapImageRep(rgba(16, pixel), 16)), stored);
  EXPECT_EQ(firstPixel(get32BitDataFromBitmapImageRep(bitmapOf(16, 8, 3, 24, {7, 8, 9}), 16)), (Bytes{255, 7, 8, 9}));
}

TEST(Get8Bit, TakesSamplesAsStoredAndMasksFromGreyOrAlpha) {
  // White at half alpha is stored as grey 128; the table's nearest grey is 0x88.
  EXPECT_EQ(get8BitDataFromBitmapImageRep(rgba(16, {128, 128, 128, 128}), 16)->front(), 249);
  EXPECT_EQ(get8BitDataFromBitmapImageRep(bitmapOf(16, 8, 3, 24, {0xFF, 0xCC, 0x99}), 16)->front(), 6 * 1 + 2);
  EXPECT_EQ(get8BitMaskFromBitmapImageRep(bitmapOf(16, 8, 1, 8, {77}), 16), Bytes(256, 77));
  EXPECT_EQ(get8BitMaskFromBitmapImageRep(bitmapOf(16, 8, 3, 24, {0}), 16), Bytes(256, 255));
  EXPECT_EQ(get8BitMaskFromBitmapImageRep(rgba(32, {0, 0, 255, 200}), 32), Bytes(1024, 200));
}

TEST(Get1BitMask, GoesByTheFirstSampleAndRepeatsItsHalf) {
  // Opaque blue has no red in it and is left out; that is meant.
  EXPECT_EQ(get1BitMaskFromBitmapImageRep(rgba(32, {0, 0, 255, 255}), 32), Bytes(256, 0));
  EXPECT_EQ(get1BitMaskFromBitmapImageRep(bitmapOf(16, 8, 3, 24, {0}), 16), Bytes(64, 0xFF));
  auto bitmap = rgba(16, {0, 0, 0, 0});
  bitmap.mutableRow(0)[0] = 1;
  bitmap.mutableRow(1)[4 * 15] = 1;
  const auto bits = get1BitMaskFromBitmapImageRep(bitmap, 16);
  ASSERT_TRUE(bits);
  EXPECT_EQ((*bits)[0], 0x80);
  EXPECT_EQ((*bits)[3], 0x01);
  EXPECT_TRUE(std::equal(bits->begin(), bits->begin() + 32, bits->begin() + 32));
  EXPECT_EQ(get1BitMaskFromBitmapImageRep(bitmapOf(16, 1, 1, 1, {0xA5}), 16), Bytes(64, 0xA5));
}

TEST(Producers, RefuseWrongSizesSilentlyAndPlanarOrDeepSourcesWithAMessage) {
  CapturedLog log;
  const auto all = [](const BitmapImageRep& bitmap, int n) {
    return get32BitDataFromBitmapImageRep(bitmap, n) || get8BitDataFromBitmapImageRep(bitmap, n) ||
           get8BitMaskFromBitmapImageRep(bitmap, n) || get1BitMaskFromBitmapImageRep(bitmap, n);
  };
  EXPECT_FALSE(all(rgba(16, {0, 0, 0, 0}), 32));
  EXPECT_FALSE(all(bitmapOf(16, 8, 2, 16, {0, 0}), 16));
  EXPECT_TRUE(log.lines.empty());
  EXPECT_FALSE(all(bitmapOf(16, 8, 4, 8, {0}, true), 16));
  EXPECT_FALSE(all(bitmapOf(16, 16, 4, 64, {0}), 16));
  std::vector<std::string> expected;
  for (const char* name : {"get32BitData", "get8BitData", "get8BitMask", "get1BitMask"})
    expected.push_back(std::string(name) +
                       "FromBitmapImageRep:requiredPixelSize: returning NULL due to isPlanar == YES");
  for (const char* name : {"get8BitData", "get8BitMask"})
    expected.push_back(std::string(name) +
                       "FromBitmapImageRep:requiredPixelSize: returning NULL due to bitsPerSample == 16");
  EXPECT_EQ(log.lines, expected);
}

TEST(ResampleImage, FitsWithTheAspectKeptAndMeasuresInPixels) {
  struct Row {
    int wide, high, width;
    int firstRow, lastRow;  // rows with ink
  };
  for (const Row& row : {Row{1000, 500, 512, 128, 383}, Row{3, 2, 16, 2, 13}}) {
    SCOPED_TRACE(std::to_string(row.wide) + " x " + std::to_string(row.high));
    Image image = Image::imageWithBitmapImageRep(test::filledBitmap(row.wide, row.high, Bytes(4, 255)));
    image.setSize({64, 64});
    const auto result = resampleImage(image, row.width, ImageInterpolation::High);
    ASSERT_TRUE(result);
    const auto square = *result->bitmapRepresentation();
    ASSERT_EQ(square.pixelsHigh(), row.width);
    const auto alpha = [&](int y) { return square.row(y)[4 * (row.width / 2) + 3]; };
    EXPECT_GT(alpha(row.firstRow), 100);
    EXPECT_GT(alpha(row.lastRow), 100);
    EXPECT_EQ(alpha(row.firstRow - 1), 0);
    EXPECT_EQ(alpha(row.lastRow + 2), 0);
  }
  EXPECT_FALSE(resampleImage(Image({128, 128}), 512, ImageInterpolation::High));
}

}  // namespace
}  // namespace quorvane::internals
