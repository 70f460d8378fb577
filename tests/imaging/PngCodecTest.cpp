// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/PngCodec.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <png.h>

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <random>

namespace quorvane {
namespace {

BitmapImageRep randomBitmap(int width, int height, bool isPremultiplied, unsigned seed) {
  std::mt19937 random(seed);
  BitmapLayout layout = BitmapLayout::rgba(width, height);
  layout.isPremultiplied = isPremultiplied;
  auto bitmap = *BitmapImageRep::bitmapImageRepWithLayout(layout);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      std::uint8_t* at = bitmap.mutableRow(y) + x * 4;
      at[3] =
          static_cast<std::uint8_t>(std::array<unsigned long, 4>{0, 255, random() % 256, random() % 8}[random() % 4]);
      for (int channel = 0; channel < 3; ++channel)
        // Runs, so that every filter has its rows.
        at[channel] = static_cast<std::uint8_t>((random() % 5 == 0 ? random() : unsigned(x * 3 + y)) %
                                                (isPremultiplied ? at[3] + 1U : 256U));
    }
  return bitmap;
}

Bytes encoded(const BitmapImageRep& bitmap) {
  auto png = encodePng(bitmap);
  EXPECT_TRUE(png.ok());
  return png.ok() ? *png : Bytes();
}

ByteView pixelsOf(const BitmapImageRep& bitmap) {
  return bitmap.bitmapData();
}

TEST(PngCodec, StraightPixelsComeBackWithBlankColourWhereNothingShowsToAnotherReaderToo) {
  for (const auto& [width, height] : {std::pair{1, 1}, {1, 40}, {33, 17}, {256, 3}}) {
    const auto bitmap = randomBitmap(width, height, false, 1);
    const Bytes png = encoded(bitmap);
    const auto decoded = decodePng(png, 256);
    ASSERT_TRUE(decoded.ok());
    EXPECT_EQ(decoded->layout(), bitmap.layout());
    const QImage image = QImage::fromData(png.data(), static_cast<int>(png.size()), "PNG");
    ASSERT_EQ(image.format(), QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y)
      for (int x = 0; x < width; ++x) {
        const std::uint8_t* in = bitmap.row(y) + x * 4;
        const std::uint8_t* out = decoded->row(y) + x * 4;
        for (int channel = 0; channel < 4; ++channel) ASSERT_EQ(out[channel], in[3] == 0 ? 0 : in[channel]);
        ASSERT_EQ(image.pixel(x, y), qRgba(out[0], out[1], out[2], out[3]));
      }
  }
}

TEST(PngCodec, PremultipliedPixelsSurviveTheWayThereAndBack) {
  const auto bitmap = randomBitmap(61, 45, true, 2);
  const auto decoded = decodePng(encoded(bitmap), 256);
  ASSERT_TRUE(decoded.ok());
  EXPECT_TRUE(std::ranges::equal(pixelsOf(decoded->toStandard()), pixelsOf(bitmap)));
}

TEST(PngCodec, OddLayoutsAreStoredAsRgba) {
  const auto grey = BitmapImageRep::bitmapImageRepWithLayout({2, 1, 8, 1, 8, 0, false}, {7, 250});
  ASSERT_TRUE(grey);
  const Bytes png = encoded(*grey);
  EXPECT_EQ(png[25], 6);  // colour type
  const auto decoded = decodePng(png, 2).value();
  EXPECT_THAT(pixelsOf(decoded), ::testing::ElementsAre(7, 7, 7, 255, 250, 250, 250, 255));
  EXPECT_FALSE(encodePng(BitmapImageRep()).ok());
}

struct Form {
  const char* name;
  int colorType;
  int depth;
  bool isInterlaced = false;
  bool hasTransparentColor = false;
};

/// A picture of 9 x 7 whose samples are the bytes of a counter, written in the given form.
Bytes written(const Form& form) {
  char* data = nullptr;
  std::size_t size = 0;
  FILE* out = ::open_memstream(&data, &size);
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  png_init_io(png, out);
  png_set_IHDR(png, info, 9, 7, form.depth, form.colorType, form.isInterlaced ? PNG_INTERLACE_ADAM7 : 0, 0, 0);
  const png_color palette[4] = {{1, 2, 3}, {40, 50, 60}, {200, 210, 220}, {255, 0, 255}};
  const png_byte alphas[2] = {0, 128};
  png_color_16 transparent{1, 0, 0, 0, 1};
  if (form.colorType == PNG_COLOR_TYPE_PALETTE) png_set_PLTE(png, info, palette, 4);
  if (form.hasTransparentColor) {
    if (form.colorType == PNG_COLOR_TYPE_PALETTE)
      png_set_tRNS(png, info, alphas, 2, nullptr);
    else
      png_set_tRNS(png, info, nullptr, 0, &transparent);
  }
  png_set_gAMA_fixed(png, info, 100000);  // to be ignored
  png_write_info(png, info);
  const std::size_t rowBytes = png_get_rowbytes(png, info);
  Bytes pixels(rowBytes * 7);
  for (std::size_t i = 0; i < pixels.size(); ++i) pixels[i] = static_cast<std::uint8_t>(i * 37 + i / 9);
  // Four colours are all that the palette has.
  if (form.colorType == PNG_COLOR_TYPE_PALETTE && form.depth == 8)
    for (auto& index : pixels) index %= 4;
  std::vector<png_bytep> rows;
  for (int y = 0; y < 7; ++y) rows.push_back(pixels.data() + rowBytes * y);
  png_write_image(png, rows.data());
  png_write_end(png, nullptr);
  png_destroy_write_struct(&png, &info);
  std::fclose(out);
  const Bytes bytes(data, data + size);
  std::free(data);
  return bytes;
}

TEST(PngCodec, EveryFormOfPixelsIsReadAsAnotherReaderReadsIt) {
  for (const Form& form :
       {Form{"grey 1", PNG_COLOR_TYPE_GRAY, 1}, Form{"grey 2 interlaced", PNG_COLOR_TYPE_GRAY, 2, true},
        Form{"grey 4 with a transparent level", PNG_COLOR_TYPE_GRAY, 4, false, true},
        Form{"grey 8", PNG_COLOR_TYPE_GRAY, 8}, Form{"grey alpha", PNG_COLOR_TYPE_GRAY_ALPHA, 8},
        Form{"palette 2", PNG_COLOR_TYPE_PALETTE, 2},
        Form{"palette 8 with alpha", PNG_COLOR_TYPE_PALETTE, 8, false, true},
        Form{"palette interlaced", PNG_COLOR_TYPE_PALETTE, 2, true}, Form{"rgb", PNG_COLOR_TYPE_RGB, 8},
        Form{"rgb with a transparent colour", PNG_COLOR_TYPE_RGB, 8, false, true},
        Form{"rgba interlaced", PNG_COLOR_TYPE_RGBA, 8, true}}) {
    SCOPED_TRACE(form.name);
    const Bytes png = written(form);
    const auto decoded = decodePng(png, 9);
    ASSERT_TRUE(decoded.ok()) << decoded.error().message();
    const QImage image = QImage::fromData(png.data(), static_cast<int>(png.size()), "PNG");
    ASSERT_FALSE(image.isNull());
    for (int y = 0; y < 7; ++y)
      for (int x = 0; x < 9; ++x) {
        const std::uint8_t* at = decoded->row(y) + x * 4;
        const QRgb wanted = image.pixelColor(x, y).rgba();
        const bool isUnseen = at[3] == 0 && qAlpha(wanted) == 0;  // and of any colour
        ASSERT_TRUE(isUnseen || qRgba(at[0], at[1], at[2], at[3]) == wanted) << x << "," << y;
      }
  }
}

TEST(PngCodec, SixteenBitsLoseTheirLowByte) {
  const auto decoded = decodePng(written({"rgba 16", PNG_COLOR_TYPE_RGBA, 16}), 9);
  ASSERT_TRUE(decoded.ok());
  for (std::size_t i = 0; i < pixelsOf(*decoded).size(); ++i)
    ASSERT_EQ(pixelsOf(*decoded)[i], static_cast<std::uint8_t>(i * 2 * 37 + i * 2 / 9));
}

TEST(PngCodec, CutOffFilesFailQuietlyUntilAllPixelsAreThere) {
  for (const bool isInterlaced : {false, true}) {
    const Bytes png = written({"rgba", PNG_COLOR_TYPE_RGBA, 8, isInterlaced});
    const std::size_t lastChunk = 12;
    EXPECT_EQ(*pngSize(ByteView(png).first(26)), (PixelSize{9, 7})) << "the header is enough";
    EXPECT_FALSE(pngSize(ByteView(png).first(25)).ok() || isPng(ByteView(png).first(7)));
    testing::internal::CaptureStderr();
    for (std::size_t length = 0; length < png.size(); ++length) {
      // A copy of its own, so that the sanitizers see a read past the end.
      const Bytes part(png.begin(), png.begin() + static_cast<std::ptrdiff_t>(length));
      EXPECT_EQ(decodePng(part, 9).ok(), length >= png.size() - lastChunk) << length;
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  }
}

TEST(PngCodec, AFlippedByteNeverGivesAnotherSize) {
  const Bytes png = written({"rgba", PNG_COLOR_TYPE_RGBA, 8, true});
  std::size_t failures = 0;
  for (std::size_t at = 0; at < png.size(); ++at) {
    Bytes damaged = png;
    damaged[at] ^= 0x41;
    const auto decoded = decodePng(damaged, 64);
    if (!decoded.ok()) ++failures;
    EXPECT_TRUE(!decoded.ok() || (decoded->pixelsWide() == 9 && decoded->pixelsHigh() == 7)) << at;
  }
  EXPECT_GT(failures, png.size() / 2) << "check sums cover nearly everything";
}

Bytes headerOf(std::uint32_t width, std::uint32_t height, std::uint8_t depth, std::uint8_t colorType) {
  Bytes png = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13, 'I', 'H', 'D', 'R'};
  for (const std::uint32_t value : {width, height})
    for (int shift = 24; shift >= 0; shift -= 8) png.push_back(static_cast<std::uint8_t>(value >> shift));
  png.insert(png.end(), {depth, colorType, 0, 0, 0, 0, 0, 0, 0});
  return png;
}

TEST(PngCodec, AbsurdHeadersAreRefusedBeforeAnyAllocation) {
  using enum ErrorKind;
  const std::tuple<const char*, Bytes, int, ErrorKind> rows[] = {
      {"largest", headerOf(0x7FFFFFFF, 0x7FFFFFFF, 8, 6), 4096, TooLarge},
      {"one too wide", headerOf(4097, 1, 8, 6), 4096, TooLarge},
      {"over the area", headerOf(32768, 32768, 1, 0), 32768, TooLarge},
      {"64 MiB out of 33 bytes", headerOf(4096, 4096, 8, 6), 4096, InvalidInput},
      {"no width", headerOf(0, 16, 8, 6), 4096, InvalidInput},
      {"negative height", headerOf(16, 0x80000000, 8, 6), 4096, InvalidInput},
      {"no such colour type", headerOf(16, 16, 8, 5), 4096, InvalidInput},
      {"no such depth", headerOf(16, 16, 3, 6), 4096, InvalidInput},
      {"nothing", {}, 4096, InvalidInput}};
  for (const auto& [what, png, maxPixels, kind] : rows) {
    const auto decoded = decodePng(png, maxPixels);
    ASSERT_FALSE(decoded.ok()) << what;
    EXPECT_EQ(decoded.error().kind(), kind) << what;
  }
}

TEST(PngCodec, DataFarBeyondThePixelsIsRefusedUnread) {
  const auto png = encoded(randomBitmap(16, 16, false, 3));
  const auto withMoreData = [&](std::uint32_t count) {
    Bytes more = {std::uint8_t(count >> 24), std::uint8_t(count >> 16), std::uint8_t(count >> 8), std::uint8_t(count)};
    more.insert(more.end(), {'I', 'D', 'A', 'T'});
    more.resize(more.size() + count + 4);
    Bytes changed = png;
    changed.insert(changed.end() - 12, more.begin(), more.end());
    return changed;
  };
  EXPECT_TRUE(checkPngData(png).ok());
  EXPECT_TRUE(checkPngData(withMoreData(1000)).ok());
  EXPECT_FALSE(checkPngData(withMoreData(100'000)).ok());
  EXPECT_FALSE(decodePng(withMoreData(100'000), 16).ok());
}

}  // namespace
}  // namespace quorvane
