// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QImageWriter>
#include <fstream>

#include "foundation/base/Limits.h"
#include "imaging/Image.h"
#include "imaging/PngCodec.h"
#include "support/TemporaryFolder.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

/// 6 x 4, red at the top left, blue at the bottom right, half-transparent green elsewhere.
QImage testImage(QImage::Format format = QImage::Format_ARGB32) {
  QImage image(6, 4, QImage::Format_ARGB32);
  image.fill(QColor(0, 200, 0, 128));
  image.setPixelColor(0, 0, Qt::red);
  image.setPixelColor(5, 3, Qt::blue);
  return image.convertToFormat(format);
}

Bytes written(const QImage& image, const char* format,
              QImageIOHandler::Transformations orientation = QImageIOHandler::TransformationNone) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, format);
  writer.setTransformation(orientation);
  writer.setQuality(100);
  EXPECT_TRUE(writer.write(image)) << format;
  const QByteArray data = buffer.data();
  return Bytes(data.begin(), data.end());
}

std::optional<BitmapImageRep> read(ByteView bytes) {
  auto image = Image::imageWithData(bytes);
  EXPECT_TRUE(image.ok()) << (image.ok() ? "" : image.error().message());
  return image.ok() ? image->bitmapRepresentation() : std::nullopt;
}

std::vector<int> pixel(const BitmapImageRep& bitmap, int x, int y) {
  const std::uint8_t* at = bitmap.row(y) + x * 4;
  return {at[0], at[1], at[2], at[3]};
}

/// Lossy formats may be off by a little.
void expectPixel(const BitmapImageRep& bitmap, int x, int y, const std::vector<int>& wanted, int tolerance = 0) {
  const auto found = pixel(bitmap, x, y);
  for (std::size_t channel = 0; channel < 4; ++channel)
    EXPECT_NEAR(found[channel], wanted[channel], tolerance) << x << "," << y << ":" << channel;
}

TEST(ImageReading, FormatsAndDepthsBecomeStandardBitmaps) {
  const auto check = [](const Bytes& bytes, int tolerance = 0) {
    const auto bitmap = read(bytes);
    ASSERT_TRUE(bitmap);
    EXPECT_TRUE(bitmap->isStandard());
    EXPECT_EQ(bitmap->size(), (Size{6, 4}));
    expectPixel(*bitmap, 0, 0, {255, 0, 0, 255});
    expectPixel(*bitmap, 2, 2, {0, 100, 0, 128}, tolerance);
    expectPixel(*bitmap, 5, 3, {0, 0, 255, 255});
  };
  check(written(testImage(), "png"));
  check(written(testImage(QImage::Format_RGBA64), "png"), 1);
  check(written(testImage(QImage::Format_RGBA64), "tiff"), 1);
  check(written(testImage(), "tiff"));
  QImage palette(6, 4, QImage::Format_Indexed8);
  palette.setColorTable({qRgba(0, 200, 0, 128), qRgb(255, 0, 0), qRgb(0, 0, 255)});
  palette.fill(0);
  palette.setPixel(0, 0, 1);
  palette.setPixel(5, 3, 2);
  check(written(palette, "png"));
}

TEST(ImageReading, OrientationTagsAreApplied) {
  QImage large = testImage().convertToFormat(QImage::Format_RGB32).scaled(96, 64);
  for (const auto& [orientation, width, redX, redY] : {std::tuple{QImageIOHandler::TransformationNone, 96, 4, 4},
                                                       {QImageIOHandler::TransformationRotate180, 96, 91, 59},
                                                       {QImageIOHandler::TransformationRotate90, 64, 59, 4},
                                                       {QImageIOHandler::TransformationMirror, 96, 91, 4}}) {
    const auto bitmap = read(written(large, "jpeg", orientation));
    ASSERT_TRUE(bitmap);
    EXPECT_EQ(bitmap->pixelsWide(), width);
    expectPixel(*bitmap, redX, redY, {255, 0, 0, 255}, 6);
  }
}

TEST(ImageReading, PicturesInPrintColoursAreConverted) {
  const auto image = Image::imageWithContentsOfFile(fs::path(QUORVANE_TEST_DATA) / "imaging/cmyk.jpg");
  ASSERT_TRUE(image.ok());
  expectPixel(*image->bitmapRepresentation(), 3, 3, {64, 128, 192, 255}, 2);
}

TEST(ImageReading, ColourProfilesAreConvertedToOurs) {
  QImage grey(2, 2, QImage::Format_RGB32);
  grey.fill(QColor(100, 100, 100));
  expectPixel(*read(written(grey, "png")), 0, 0, {100, 100, 100, 255});
  grey.setColorSpace(QColorSpace(QColorSpace::SRgb));
  expectPixel(*read(written(grey, "png")), 0, 0, {100, 100, 100, 255});
  grey.setColorSpace(QColorSpace(QColorSpace::SRgbLinear));
  expectPixel(*read(written(grey, "png")), 0, 0, {168, 168, 168, 255}, 1);
  QImage green(16, 16, QImage::Format_RGB32);
  green.fill(QColor(100, 180, 100));
  green.setColorSpace(QColorSpace(QColorSpace::AdobeRgb));
  EXPECT_LT(pixel(*read(written(green, "jpeg")), 0, 0)[0], 60) << "a wider space's green has less red in ours";
}

TEST(ImageReading, AProfileThatSaysNothingUsefulIsNoReasonToFail) {
  // A profile chunk of rubbish, right behind the header.
  Bytes png = written(testImage(), "png");
  const Bytes chunk = {0, 0, 0, 4, 'i', 'C', 'C', 'P', 'x', 0, 0, 7, 1, 2, 3, 4};
  png.insert(png.begin() + 33, chunk.begin(), chunk.end());
  const auto bitmap = read(png);
  ASSERT_TRUE(bitmap);
  expectPixel(*bitmap, 0, 0, {255, 0, 0, 255});
}

TEST(ImageReading, TheFuzzersSeedsAreAllGoodPictures) {
  int count = 0;
  for (const char* name : {"PngFuzz", "Jpeg2000Fuzz"})
    for (const auto& entry : fs::directory_iterator(fs::path(QUORVANE_TEST_DATA) / "../../fuzz/corpus" / name)) {
      const auto image = Image::imageWithContentsOfFile(entry.path());
      EXPECT_TRUE(image.ok()) << (image.ok() ? "" : image.error().message());
      ++count;
    }
  EXPECT_GE(count, 16);
}

TEST(ImageReading, TheContentDecidesNotTheName) {
  const test::TemporaryFolder folder;
  test::writeFile(folder / "picture.txt", written(testImage(), "png"));
  EXPECT_TRUE(Image::imageWithContentsOfFile(folder / "picture.txt").ok());
  test::writeFile(folder / "jpeg.PNG", written(testImage().convertToFormat(QImage::Format_RGB32), "jpeg"));
  EXPECT_TRUE(Image::imageWithContentsOfFile(folder / "jpeg.PNG").ok());
  EXPECT_TRUE(BitmapImageRep::bitmapImageRepWithContentsOfFile(folder / "jpeg.PNG"));
  fs::create_symlink("picture.txt", folder / "link");
  EXPECT_TRUE(Image::imageWithContentsOfFile(folder / "link").ok());
  const fs::path notUtf8 = folder / "\xFF\r.png";
  test::writeFile(notUtf8, written(testImage(), "png"));
  EXPECT_TRUE(Image::imageWithContentsOfFile(notUtf8).ok());
}

TEST(ImageReading, WhatIsNoPictureFailsWithPathAndReason) {
  const test::TemporaryFolder folder;
  const auto failure = [](const fs::path& path) {
    const auto image = Image::imageWithContentsOfFile(path);
    EXPECT_FALSE(image.ok());
    EXPECT_FALSE(BitmapImageRep::bitmapImageRepWithContentsOfFile(path));
    return image.ok() ? Error::broken("read") : image.error();
  };
  test::writeFile(folder / "empty.png", std::string());
  EXPECT_THAT(failure(folder / "empty.png").message(), HasSubstr("empty.png: file is empty"));
  test::writeFile(folder / "program.png", std::string("#!/bin/sh\nexit 0\n"));
  EXPECT_EQ(failure(folder / "program.png").kind(), ErrorKind::InvalidInput);
  test::writeFile(folder / "layers.psd", std::string("8BPS") + std::string(60, '\0'));
  EXPECT_THAT(failure(folder / "layers.psd").why(), HasSubstr("PSD"));
  fs::create_directory(folder / "folder.png");
  EXPECT_EQ(failure(folder / "folder.png").kind(), ErrorKind::Refused);
  ASSERT_EQ(::mkfifo((folder / "fifo.png").c_str(), 0600), 0);
  EXPECT_EQ(failure(folder / "fifo.png").kind(), ErrorKind::Refused) << "and does not wait for a writer";
  EXPECT_EQ(failure("/dev/zero").kind(), ErrorKind::Refused);
  EXPECT_EQ(failure(folder / "missing.png").kind(), ErrorKind::NotFound);
  EXPECT_EQ(failure("").kind(), ErrorKind::NotFound);
  // Sparse, so that it costs nothing.
  test::writeFile(folder / "long.png", std::string("x"));
  fs::resize_file(folder / "long.png", limits::pictureFileBytes + 1);
  EXPECT_EQ(failure(folder / "long.png").kind(), ErrorKind::TooLarge);
}

TEST(ImageReading, TooManyPixelsAreRefusedBeforeDecoding) {
  const std::string header = "P6\n30000 30000\n255\n";
  const auto image = Image::imageWithData(Bytes(header.begin(), header.end()));
  ASSERT_FALSE(image.ok());
  EXPECT_EQ(image.error().kind(), ErrorKind::TooLarge);
  EXPECT_THAT(image.error().why(), HasSubstr("30000 x 30000"));
}

TEST(ImageReading, IconFamiliesAreNotTakenForPictures) {
  const Bytes icns = {'i', 'c', 'n', 's', 0, 0, 0, 16, 'I', 'C', 'N', '#', 0, 0, 0, 8};
  EXPECT_FALSE(Image::imageWithData(icns).ok());
}

Bytes svg(const std::string& inside, const std::string& before = {}) {
  const std::string text = "<?xml version=\"1.0\"?>" + before +
                           "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
                           "width=\"20\" height=\"10\">" +
                           inside + "</svg>";
  return Bytes(text.begin(), text.end());
}

bool canReadSvg() {
  return QImageReader::supportedImageFormats().contains("svg");
}

TEST(ImageReading, VectorPicturesAreDrawnLarge) {
  if (!canReadSvg()) GTEST_SKIP() << "no reader for vector pictures is installed";
  const auto bitmap =
      read(svg("<defs><rect id=\"r\" width=\"10\" height=\"10\" fill=\"#00f\"/></defs>"
               "<use xlink:href=\"#r\"/>"));
  ASSERT_TRUE(bitmap);
  EXPECT_EQ(bitmap->pixelsWide(), 1024);
  EXPECT_EQ(bitmap->pixelsHigh(), 512);
  expectPixel(*bitmap, 200, 200, {0, 0, 255, 255});
  expectPixel(*bitmap, 800, 200, {0, 0, 0, 0});
}

TEST(ImageReading, VectorPicturesThatReachOutOrExplodeAreRefused) {
  if (!canReadSvg()) GTEST_SKIP() << "no reader for vector pictures is installed";
  std::string doubling = "<g id=\"a0\"><rect width=\"1\" height=\"1\"/></g>";
  for (int i = 1; i < 40; ++i) {
    const std::string before = "<use xlink:href=\"#a" + std::to_string(i - 1) + "\"/>";
    doubling += "<g id=\"a" + std::to_string(i) + "\">" + before + before + "</g>";
  }
  std::string nested;
  for (int i = 0; i < 5000; ++i) nested += "<g>";
  for (int i = 0; i < 5000; ++i) nested += "</g>";
  const std::pair<const char*, Bytes> bad[] = {
      {"picture file", svg("<image xlink:href=\"/etc/icon.png\" width=\"9\" height=\"9\"/>")},
      {"address", svg("<image href=\"http://localhost/icon.png\" width=\"9\" height=\"9\"/>")},
      {"style", svg("<style>@import 'other.css';</style>")},
      {"paint server elsewhere", svg("<rect width=\"9\" height=\"9\" fill=\"url(other.svg#a)\"/>")},
      {"style sheet", svg("", "<?xml-stylesheet type=\"text/css\" href=\"/etc/x.css\"?>")},
      {"entity", svg("<text>&a;</text>", "<!DOCTYPE svg [<!ENTITY a \"lol\">]>")},
      {"doubling", svg(doubling)},
      {"circle", svg("<g id=\"a\"><use xlink:href=\"#a\"/></g>")},
      {"depth", svg(nested)},
      {"cut off", svg("<g>")},
  };
  for (const auto& [name, bytes] : bad) EXPECT_FALSE(Image::imageWithData(bytes).ok()) << name;
  EXPECT_TRUE(Image::imageWithData(svg("<rect width=\"9\" height=\"9\" fill=\"url(#a)\"/>")).ok());
}

}  // namespace
}  // namespace quorvane
