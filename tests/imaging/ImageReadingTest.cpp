// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <libdeflate.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QImageWriter>
#include <QtEndian>
#include <fstream>

#include "foundation/base/Limits.h"
#include "imaging/Image.h"
#include "imaging/PngCodec.h"
#include "support/Bitmaps.h"
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

/// Lossy formats may be off by a little.
void expectPixel(const BitmapImageRep& bitmap, int x, int y, const std::vector<int>& wanted, int tolerance = 0) {
  const auto found = test::pixelAt(bitmap, x, y);
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
  check(written(testImage(QImage::Format_RGBA64), "png"), 1);
  check(written(testImage(QImage::Format_RGBA64), "tiff"), 1);
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
                                                       {QImageIOHandler::TransformationRotate90, 64, 59, 4},
                                                       {QImageIOHandler::TransformationMirror, 96, 91, 4}}) {
    const auto bitmap = read(written(large, "jpeg", orientation));
    ASSERT_TRUE(bitmap);
    EXPECT_EQ(bitmap->pixelsWide(), width);
    expectPixel(*bitmap, redX, redY, {255, 0, 0, 255}, 6);
  }
}

TEST(ImageReading, ColoursAreConvertedToOurs) {
  QImage grey(2, 2, QImage::Format_RGB32);
  grey.fill(QColor(100, 100, 100));
  for (const auto& [space, level] : {std::pair{QColorSpace(), 100},
                                     {QColorSpace(QColorSpace::SRgb), 100},
                                     {QColorSpace(QColorSpace::SRgbLinear), 168}}) {
    grey.setColorSpace(space);
    expectPixel(*read(written(grey, "png")), 0, 0, {level, level, level, 255}, 1);
  }
  QImage green(16, 16, QImage::Format_RGB32);
  green.fill(QColor(100, 180, 100));
  green.setColorSpace(QColorSpace(QColorSpace::AdobeRgb));
  EXPECT_LT(test::pixelAt(*read(written(green, "jpeg")), 0, 0)[0], 60) << "a wider space's green has less red in ours";
  // Print colours, and a profile of rubbish right behind the header.
  const fs::path print = fs::path(QUORVANE_TEST_DATA) / "imaging/cmyk.jpg";
  expectPixel(*read(test::readFile(print)), 3, 3, {64, 128, 192, 255}, 2);
  Bytes png = written(testImage(), "png");
  const Bytes chunk = {0, 0, 0, 4, 'i', 'C', 'C', 'P', 'x', 0, 0, 7, 1, 2, 3, 4};
  png.insert(png.begin() + 33, chunk.begin(), chunk.end());
  expectPixel(read(png).value(), 0, 0, {255, 0, 0, 255});
}

TEST(ImageReading, TextsOfAPngAreNotUnpacked) {
  // Each becomes 7 million letters. The brightness keeps our own decoder, which reads no texts, from taking the file.
  const QByteArray packed = qCompress(QByteArray(7'000'000, 'a'), 9).mid(4);
  const auto chunk = [](const QByteArray& typed) {
    QByteArray bytes(8, '\0');
    qToBigEndian(static_cast<quint32>(typed.size() - 4), bytes.data());
    qToBigEndian(::libdeflate_crc32(0, typed.constData(), static_cast<std::size_t>(typed.size())), bytes.data() + 4);
    return bytes.first(4) + typed + bytes.sliced(4);
  };
  QByteArray chunks = chunk(QByteArray("gAMA\0\1\x86\xA0", 8));
  for (int i = 0; i < 40; ++i) chunks += chunk("zTXtkey" + QByteArray(2, '\0') + packed);
  Bytes png = written(testImage(), "png");
  png.insert(png.begin() + 33, chunks.begin(), chunks.end());
  // The same as the picture of an icon file.
  Bytes icon = {0, 0, 1, 0, 1, 0, 6, 4, 0, 0, 1, 0, 32, 0, 0, 0, 0, 0, 22, 0, 0, 0};
  qToLittleEndian(static_cast<quint32>(png.size()), icon.data() + 14);
  icon.insert(icon.end(), png.begin(), png.end());
  rusage before{}, after{};
  ::getrusage(RUSAGE_SELF, &before);
  for (const Bytes& bytes : {png, icon}) expectPixel(read(bytes).value(), 0, 0, {255, 0, 0, 255});
  ::getrusage(RUSAGE_SELF, &after);
  EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 100'000) << "kilobytes";
}

TEST(ImageReading, TheContentDecidesNotTheName) {
  const test::TemporaryFolder folder;
  test::writeFile(folder / "jpeg.PNG", written(testImage().convertToFormat(QImage::Format_RGB32), "jpeg"));
  fs::create_symlink("jpeg.PNG", folder / "link.txt");
  test::writeFile(folder / "\xFF\r", written(testImage(), "png"));
  for (const char* name : {"jpeg.PNG", "link.txt", "\xFF\r"})
    EXPECT_TRUE(BitmapImageRep::bitmapImageRepWithContentsOfFile(folder / name)) << name;
}

TEST(ImageReading, WhatIsNoPictureFailsWithPathAndReason) {
  const test::TemporaryFolder folder;
  test::writeFile(folder / "empty.png", std::string());
  test::writeFile(folder / "program.png", std::string("#!/bin/sh\nexit 0\n"));
  test::writeFile(folder / "layers.psd", std::string("8BPS\0\1", 6) + std::string(60, '\0'));
  test::writeFile(folder / "family.icns", std::string("icns\0\0\0\x10ICN#\0\0\0\x08", 16));
  test::writeFile(folder / "pixels.ppm", std::string("P6\n30000 30000\n255\n"));
  fs::create_directory(folder / "folder.png");
  ASSERT_EQ(::mkfifo((folder / "fifo.png").c_str(), 0600), 0);
  // Sparse, so that it costs nothing.
  test::writeFile(folder / "long.png", std::string("x"));
  fs::resize_file(folder / "long.png", limits::pictureFileBytes + 1);
  const std::tuple<const char*, ErrorKind, const char*> rows[] = {
      {"empty.png", ErrorKind::InvalidInput, "empty.png: file is empty"},
      {"program.png", ErrorKind::InvalidInput, "program.png: "},
      {"layers.psd", ErrorKind::InvalidInput, "layers.psd: PSD"},
      {"family.icns", ErrorKind::InvalidInput, ""},
      {"pixels.ppm", ErrorKind::TooLarge, "30000 x 30000"},
      {"folder.png", ErrorKind::Refused, ""},
      {"fifo.png", ErrorKind::Refused, ""},  // without waiting for a writer
      {"/dev/zero", ErrorKind::Refused, ""},
      {"missing.png", ErrorKind::NotFound, ""},
      {"long.png", ErrorKind::TooLarge, ""}};
  for (const auto& [name, kind, text] : rows) {
    const auto image = Image::imageWithContentsOfFile(folder / name);
    ASSERT_FALSE(image.ok()) << name;
    EXPECT_EQ(image.error().kind(), kind) << name;
    EXPECT_THAT(image.error().message(), HasSubstr(text));
  }
  EXPECT_EQ(Image::imageWithContentsOfFile("").error().kind(), ErrorKind::NotFound);
}

Bytes svg(const std::string& inside, const std::string& before = {}) {
  const std::string text = "<?xml version=\"1.0\"?>" + before +
                           "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
                           "width=\"20\" height=\"10\">" +
                           inside + "</svg>";
  return Bytes(text.begin(), text.end());
}

TEST(ImageReading, VectorPicturesAreDrawnLargeUnlessTheyReachOutOrExplode) {
  if (!QImageReader::supportedImageFormats().contains("svg"))
    GTEST_SKIP() << "no reader for vector pictures is installed";
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
  const auto bitmap =
      read(svg("<defs><rect id=\"r\" width=\"10\" height=\"10\" fill=\"#00f\"/></defs><use xlink:href=\"#r\"/>"
               "<rect width=\"9\" height=\"9\" fill=\"url(#a)\"/>"));
  ASSERT_TRUE(bitmap);
  EXPECT_EQ(bitmap->pixelsWide(), 1024);
  EXPECT_EQ(bitmap->pixelsHigh(), 512);
  expectPixel(*bitmap, 200, 200, {0, 0, 255, 255});
  expectPixel(*bitmap, 800, 200, {0, 0, 0, 0});
}

}  // namespace
}  // namespace quorvane
