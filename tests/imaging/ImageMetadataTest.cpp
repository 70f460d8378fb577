// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/ImageMetadata.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>
#include <thread>

#include "imaging/Image.h"
#include "imaging/TiffDirectories.h"
#include "support/Bitmaps.h"
#include "support/TemporaryFolder.h"

namespace quorvane {
namespace {

const std::pair<std::string, std::string> said[] = {{"Exif.Image.Artist", "Ada"},
                                                    {"Exif.Photo.ExposureTime", "1/125"},
                                                    {"Exif.GPSInfo.GPSLatitudeRef", "N"},
                                                    {"Exif.Image.Orientation", "6"},
                                                    {"Exif.Photo.ColorSpace", "65535"},
                                                    {"Iptc.Application2.Caption", "A caption"},
                                                    {"Xmp.dc.title", "lang=\"x-default\" A title"},
                                                    {"Xmp.tiff.Orientation", "6"}};

ImageMetadata sample() {
  ImageMetadata metadata;
  for (const auto& [key, value] : said) EXPECT_TRUE(metadata.setValue(key, value).ok()) << key;
  return metadata;
}

Image picture() {
  return Image::imageWithBitmapImageRep(test::filledBitmap(6, 4, {100, 50, 20, 200}));
}

std::vector<std::pair<std::string, Bytes>> encoded() {
  return {{"JPEG", picture().JPEGRepresentation(90).value()},
          {"TIFF", picture().TIFFRepresentation().value()},
          {"PNG", picture().PNGRepresentation().value()}};
}

QImage pixelsOf(const Bytes& data) {
  return QImage::fromData(data.data(), static_cast<int>(data.size()));
}

TEST(ImageMetadata, CombiningCarriesEverythingAndLeavesThePixels) {
  for (const auto& [name, data] : encoded()) {
    SCOPED_TRACE(name);
    const CombinedData combined = Image::combineData(data, sample());
    EXPECT_FALSE(combined.missing) << combined.missing->message();
    EXPECT_EQ(pixelsOf(combined.data), pixelsOf(data));
    const auto read = ImageMetadata::metadataOfData(combined.data);
    ASSERT_TRUE(read.ok());
    for (const auto& [key, value] : said) EXPECT_EQ(read.value().value(key), value) << key;
    EXPECT_EQ(read.value().orientation(), 6) << "as it stands: only the caller knows";
    EXPECT_EQ(read.value().value("Exif.Photo.PixelXDimension"), "6");
    EXPECT_FALSE(read.value().value("Exif.Image.ImageWidth")) << "describes the pixels, not the picture";

    // What the file says stays unless the metadata say otherwise.
    ImageMetadata more;
    ASSERT_TRUE(more.setValue("Exif.Image.Artist", "Bea").ok() && more.setValue("Xmp.dc.source", "here").ok());
    const Bytes before = combined.data;
    const auto both = ImageMetadata::metadataOfData(Image::combineData(combined.data, more).data);
    EXPECT_EQ(combined.data, before);
    EXPECT_EQ(both.value().value("Exif.Image.Artist"), "Bea");
    EXPECT_EQ(both.value().value("Xmp.dc.source"), "here");
    EXPECT_EQ(both.value().value("Iptc.Application2.Caption"), "A caption");
  }
}

TEST(ImageMetadata, WrittenPicturesAreNeitherTurnedTwiceNorOfAnotherColourSpace) {
  const test::TemporaryFolder folder;
  Image several = picture();
  for (int side = 8; side < 16; ++side) several.addRepresentation(test::filledBitmap(side, side));
  ASSERT_TRUE(picture().writeToJPEGFile(folder / "a.jpg", 100, Kibibytes{4}, sample()).ok());
  std::uint64_t length = 0;
  ASSERT_TRUE(picture().writeToJPEGFile(folder / "b.jpg", 80, ByteCount{}, &length, sample()).ok());
  EXPECT_EQ(length, test::readFile(folder / "b.jpg").size()) << "with the metadata";
  ASSERT_TRUE(several.writeToTIFFFile(folder / "a.tif", sample()).ok());
  for (const char* name : {"a.jpg", "b.jpg", "a.tif"}) {
    const auto read = ImageMetadata::metadataOfFile(folder / name);
    ASSERT_TRUE(read.ok()) << read.error().message();
    EXPECT_EQ(read.value().orientation(), 1);
    EXPECT_EQ(read.value().value("Xmp.tiff.Orientation"), "1");
    EXPECT_EQ(read.value().value("Exif.Photo.ColorSpace"), "1");
    EXPECT_EQ(read.value().value("Exif.Image.Artist"), "Ada");
    EXPECT_EQ(Image::imageWithContentsOfFile(folder / name).value().largestPixelSize(), (Size{6, 4}));
  }
}

TEST(ImageMetadata, WhatCannotBeCarriedLeavesAWholePictureAndSaysSo) {
  const Bytes gif = picture().GIFRepresentation().value();
  const Bytes text = test::bytesOf("no picture");
  for (const Bytes& data : {gif, text, Bytes()}) {
    const CombinedData combined = Image::combineData(data, sample());
    EXPECT_EQ(combined.data, data);
    EXPECT_TRUE(combined.missing);
    EXPECT_FALSE(ImageMetadata::metadataOfData(data).ok());
    EXPECT_FALSE(Image::combineData(data, {}).missing) << "there is nothing to carry";
  }
  // More than a segment of a JPEG holds: the other kinds still come along.
  ImageMetadata large = sample();
  ASSERT_TRUE(large.setValue("Xmp.dc.source", std::string(70'000, 'x')).ok());
  const CombinedData jpeg = Image::combineData(encoded()[0].second, large);
  EXPECT_TRUE(jpeg.missing);
  EXPECT_EQ(ImageMetadata::metadataOfData(jpeg.data).value().value("Exif.Image.Artist"), "Ada");
  ImageMetadata longText = sample();
  ASSERT_TRUE(longText.setValue("Exif.Photo.UserComment", std::string(70'000, 'x')).ok());
  const CombinedData cut = Image::combineData(encoded()[0].second, longText);
  EXPECT_TRUE(cut.missing) << "the library leaves long values out without a word";
  EXPECT_EQ(ImageMetadata::metadataOfData(cut.data).value().value("Exif.Image.Artist"), "Ada");
  EXPECT_FALSE(Image::combineData(encoded()[1].second, large).missing) << "a TIFF has room";
  // As cameras have them; JPEG and PNG take them, a TIFF everything but them.
  ImageMetadata camera = sample();
  ASSERT_TRUE(camera.setValue("Exif.Image.Make", "Canon").ok() && camera.setValue("Exif.Canon.OwnerName", "Me").ok());
  for (const auto& [name, data] : encoded()) {
    const CombinedData combined = Image::combineData(data, camera);
    EXPECT_EQ(combined.missing.has_value(), name == "TIFF");
    const ImageMetadata found = ImageMetadata::metadataOfData(combined.data).value();
    EXPECT_EQ(found.value("Exif.Photo.ExposureTime"), "1/125") << name;
    EXPECT_EQ(found.value("Exif.Canon.OwnerName").has_value(), name != "TIFF") << name;
  }
  // Metadata into many pages would lose some of them.
  Image many = picture();
  for (int side = 8; side < 16; ++side) many.addRepresentation(test::filledBitmap(side, side));
  const Bytes pages = many.TIFFRepresentation().value();
  EXPECT_EQ(Image::combineData(pages, sample()).data, pages);
}

TEST(ImageMetadata, PropertiesAreSetByNameAndRemoved) {
  ImageMetadata metadata = sample();
  const ImageMetadata copy = metadata;
  for (const char* key : {"Exif.Image.Nonsense", "Exif", "", "Iptc.Application2.Nonsense", "Xmp.none.x",
                          "Exif.Image.ImageWidth", "Xmp.tiff.ImageWidth"}) {
    EXPECT_FALSE(metadata.setValue(key, "1").ok()) << key;
    EXPECT_FALSE(metadata.value(key)) << key;
  }
  EXPECT_EQ(metadata.groups().size(), 6U);
  EXPECT_EQ(metadata.groups()[1].name, "Exif.Image");
  EXPECT_THAT(metadata.groups()[1].properties,
              ::testing::Contains(ImageMetadata::Property{"Exif.Image.Artist", "Ada"}));
  for (const auto& [key, value] : said) metadata.remove(key);
  metadata.remove("Nonsense");
  EXPECT_TRUE(metadata.isEmpty());
  EXPECT_EQ(metadata.orientation(), 1);
  EXPECT_FALSE(copy.isEmpty()) << "copies are their own";
  for (const auto& [value, orientation] : {std::pair{"8", 8}, {"9", 1}, {"0", 1}}) {
    ASSERT_TRUE(metadata.setValue("Exif.Image.Orientation", value).ok());
    EXPECT_EQ(metadata.orientation(), orientation);
  }
}

/// A little-endian TIFF: one directory with these entries (tag, type, count, value), then that many bytes.
Bytes tiffOf(const std::vector<std::array<std::uint32_t, 4>>& entries, std::size_t bytes) {
  Bytes tiff{'I',
             'I',
             42,
             0,
             8,
             0,
             0,
             0,
             static_cast<std::uint8_t>(entries.size()),
             static_cast<std::uint8_t>(entries.size() >> 8)};
  const auto put = [&tiff](std::uint32_t value, int length) {
    for (int i = 0; i < length; ++i) tiff.push_back(static_cast<std::uint8_t>(value >> 8 * i));
  };
  for (const auto& [tag, type, count, value] : entries) {
    put(tag, 2);
    put(type, 2);
    put(count, 4);
    put(value, 4);
  }
  put(0, 4);
  tiff.resize(tiff.size() + bytes);
  return tiff;
}

TEST(ImageMetadata, HostileFilesAreRefusedOrReadWithoutHarm) {
  const std::vector<std::array<std::uint32_t, 4>> same(250, {0x010E, 1, 1 << 20, 64});
  EXPECT_EQ(ImageMetadata::metadataOfData(tiffOf(same, 1 << 20)).error().kind(), ErrorKind::TooLarge);
  // A hundred directories in a chain of sub-directories, and one that contains itself.
  Bytes chain = tiffOf({}, 100 * 20);
  for (std::size_t i = 0; i < 100; ++i)
    chain[10 + i * 6] = static_cast<std::uint8_t>(14 + i * 6),
                   chain[11 + i * 6] = static_cast<std::uint8_t>((14 + i * 6) >> 8);
  EXPECT_EQ(checkTiffDirectories(chain).error().kind(), ErrorKind::TooLarge);
  EXPECT_TRUE(checkTiffDirectories(tiffOf({{0x8769, 4, 1, 8}}, 0)).ok());
  // A camera maker's block is left out, whatever it holds; nothing is put into such a file.
  Bytes maker = tiffOf({{0x010E, 2, 4, 'a' | 'b' << 8 | 'c' << 16}, {0x8769, 4, 1, 38}}, 100);
  const Bytes inner = tiffOf({{0x927C, 7, 90, 40}}, 0);
  std::copy(inner.begin() + 8, inner.end(), maker.begin() + 38);
  EXPECT_EQ(checkTiffDirectories(maker).value().size(), 1U);
  const auto read = ImageMetadata::metadataOfData(maker);
  ASSERT_TRUE(read.ok()) << read.error().message();
  EXPECT_EQ(read.value().value("Exif.Image.ImageDescription"), "abc");
  EXPECT_FALSE(read.value().value("Exif.Photo.MakerNote"));
  EXPECT_EQ(Image::combineData(maker, sample()).data, maker);

  testing::internal::CaptureStderr();
  for (const auto& [name, data] : encoded()) {
    const Bytes whole = Image::combineData(data, sample()).data;
    for (std::size_t at = 0; at < whole.size(); ++at) {
      const Bytes part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(at));
      Bytes damaged = whole;
      damaged[at] ^= 0xC1;
      for (const Bytes& bytes : {part, damaged}) {
        const auto metadata = ImageMetadata::metadataOfData(bytes);
        EXPECT_LE(metadata.ok() ? metadata.value().groups().size() : 0, 20U);
        if (at % 16 != 0) continue;
        EXPECT_EQ(Image::combineData(bytes, sample()).data.empty(), bytes.empty());
      }
    }
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "the library says nothing";
}

TEST(ImageMetadata, SeveralThreadsMayUseIt) {
  const Bytes jpeg = Image::combineData(encoded()[0].second, sample()).data;
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i)
    threads.emplace_back([&jpeg] {
      for (int round = 0; round < 50; ++round)
        EXPECT_EQ(ImageMetadata::metadataOfData(jpeg).value().forRenderedPixels().orientation(), 1);
    });
  for (std::thread& thread : threads) thread.join();
}

}  // namespace
}  // namespace quorvane
