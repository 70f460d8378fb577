// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures as other programs write them, in tests/data/imaging; the values are those of independent readers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <algorithm>
#include <set>

#include "imaging/Image.h"
#include "imaging/Orientation.h"
#include "imaging/Premultiply.h"
#include "support/Bitmaps.h"
#include "support/Corpus.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using ::testing::Contains;
using ::testing::Not;

const fs::path folder = fs::path(QUORVANE_TEST_DATA) / "imaging";

std::optional<BitmapImageRep> read(ByteView bytes, const std::string& name) {
  const auto image = Image::imageWithData(bytes);
  EXPECT_TRUE(image.ok()) << name << ": " << (image.ok() ? "" : image.error().message());
  return image.ok() ? image->bitmapRepresentation() : std::nullopt;
}

TEST(PictureFiles, ColoursOfEveryKindBecomeOurs) {
  // The first pixel. Through profiles: what Pillow gives, relative to white and with black kept.
  const std::tuple<const char*, std::vector<int>, int> rows[] = {
      {"cmyk-profile.jpg", {58, 169, 212, 255}, 2},
      {"cmyk-profile.tif", {58, 169, 212, 255}, 2},
      {"inks-plain.jpg", {24, 5, 2, 255}, 2},
      {"cmyk16.tif", {255, 0, 0, 255}, 0},
      {"cmykplanar.tif", {255, 0, 0, 255}, 0},
      {"grey-profile.jpg", {168, 168, 168, 255}, 1},
      {"grey-profile.png", {168, 168, 168, 255}, 1},
      {"grey-profile.tif", {168, 168, 168, 255}, 1},
      {"la-profile.png", {84, 84, 84, 128}, 1},
      {"primaries.png", {40, 40, 40, 255}, 0},
      {"la.tif", {50, 50, 50, 128}, 0},
      {"cmyka16.tif", {73, 36, 18, 128}, 1},
      {"g4.tif", {0, 0, 0, 255}, 0},
      {"bit.tif", {0, 0, 0, 255}, 0},
      {"grey4.tif", {51, 51, 51, 255}, 0},
      {"grey16.tif", {54, 54, 54, 255}, 1},
      {"rgb16.png", {255, 0, 0, 255}, 0},
      {"frames.gif", {255, 0, 0, 255}, 0},
      {"frames.png", {255, 0, 0, 255}, 0},
      {"frames.webp", {255, 0, 0, 255}, 0},
      {"sizes.ico", {0, 100, 0, 128}, 0},
  };
  for (const auto& [name, wanted, tolerance] : rows) {
    const auto bitmap = read(test::readFile(folder / name), name);
    ASSERT_TRUE(bitmap) << name;
    const auto found = test::pixelAt(*bitmap, 0, 0);
    for (std::size_t i = 0; i < 4; ++i) EXPECT_NEAR(found[i], wanted[i], tolerance) << name << ", channel " << i;
  }
}

TEST(PictureFiles, AllEightOrientationsAreTurnedUpright) {
  // Red, green, blue and yellow, at the left and right of the upper and lower half.
  constexpr char stored[4] = {'r', 'g', 'b', 'y'};
  constexpr int corners[8][4] = {{0, 1, 2, 3}, {1, 0, 3, 2}, {3, 2, 1, 0}, {2, 3, 0, 1},
                                 {0, 2, 1, 3}, {2, 0, 3, 1}, {3, 1, 2, 0}, {1, 3, 0, 2}};
  for (const char* name : {"turned.jpg", "turned-inks.jpg", "turned.png", "turned.webp", "turned.tif"}) {
    Bytes bytes = test::readFile(folder / name);
    // The tag's value, in either byte order.
    const Bytes little = {0x12, 1, 3, 0, 1, 0, 0, 0, 6};
    const Bytes big = {1, 0x12, 0, 3, 0, 0, 0, 1, 0, 6};
    auto value = std::ranges::search(bytes, little).end();
    if (value == bytes.end()) value = std::ranges::search(bytes, big).end();
    ASSERT_NE(value, bytes.end()) << name;
    for (std::uint8_t orientation = 0; orientation <= 9; ++orientation) {
      *(value - 1) = orientation;
      const int shown = orientation >= 1 && orientation <= 8 ? orientation - 1 : 0;
      const auto bitmap = read(bytes, name);
      ASSERT_TRUE(bitmap) << name;
      const int wide = shown >= 4 ? 16 : 32;
      ASSERT_EQ(bitmap->pixelsWide(), wide) << name << ' ' << int{orientation};
      ASSERT_EQ(bitmap->pixelsHigh(), 48 - wide) << name;
      for (int corner = 0; corner < 4; ++corner) {
        const auto pixel = test::pixelAt(*bitmap, corner % 2 == 0 ? 2 : wide - 3, corner < 2 ? 2 : 45 - wide);
        const bool isRed = pixel[0] > 128;
        const char color = isRed ? (pixel[1] > 128 ? 'y' : 'r') : pixel[1] > 128 ? 'g' : 'b';
        EXPECT_EQ(color, stored[corners[shown][corner]]) << name << ' ' << int{orientation} << ", corner " << corner;
      }
    }
  }
}

TEST(PictureFiles, AreReadWholeOrAtIndexZero) {
  const auto best = Image::initWithContentsOfFile(folder / "sizes.ico", false);
  const auto first = Image::initWithContentsOfFile(folder / "sizes.ico", true);
  ASSERT_TRUE(best && first);
  EXPECT_EQ(best->sizeInfo(), "image size={32, 32}  rep size={32, 32}  pixelsWide=32");
  EXPECT_EQ(first->sizeInfo(), "image size={16, 16}  rep size={16, 16}  pixelsWide=16");
  Image scaled = *best;
  scaled.setSize({12.5, 128});
  EXPECT_EQ(scaled.sizeInfo(), "image size={12.5, 128}  rep size={32, 32}  pixelsWide=32");
  EXPECT_EQ(Image({1, 2}).sizeInfo(), "image size={1, 2}  rep size={0, 0}  pixelsWide=0");
  for (const bool usingImageIO : {false, true})
    EXPECT_FALSE(Image::initWithContentsOfFile(folder / "missing.png", usingImageIO));
  EXPECT_FALSE(Image::initWithCGImageRef(QImage()));
}

TEST(PictureFiles, TypesAreThoseThatCanBeRead) {
  for (const char* type : {"png", "jpg", "jpeg", "gif", "tif", "tiff", "jp2", "psd", "psb", "bmp", "ico"})
    EXPECT_THAT(Image::imageFileTypes(), Contains(type));
  for (const char* type : {"icns", "mng", "svgz", "txt"}) EXPECT_THAT(Image::imageFileTypes(), Not(Contains(type)));
  Image::registerReader({.fileTypes = {"dots"},
                         .canRead = [](ByteView bytes) { return bytes.size() == 3 && bytes[0] == '.'; },
                         .read =
                             [](ByteView) {
                               return Result<Image>(Image({7, 7}));
                             }});
  EXPECT_THAT(Image::imageFileTypes(), Contains("dots"));
  EXPECT_EQ(Image::imageWithData(Bytes{'.', '.', '.'})->size(), (Size{7, 7}));
}

TEST(PictureFiles, OfTheCorpusAreAsOtherReadersSeeThem) {
  const fs::path corpus = test::sharedFolder() / "corpus";
  if (!fs::exists(corpus / "images-expected.json")) GTEST_SKIP() << "no corpus";
  const Bytes text = test::readFile(corpus / "images-expected.json");
  const auto expected =
      QJsonDocument::fromJson(QByteArray(reinterpret_cast<const char*>(text.data()), qsizetype(text.size()))).object();
  // Under full transparency these hold colours, which do not survive our multiplied form; no sum can be held against
  // it.
  const std::set<std::string> differing = {"python.ico", "p_trns_single.png"};
  for (const QString& key : expected.keys()) {
    const std::string name = key.toStdString();
    auto bitmap = read(test::readFile(corpus / "images" / name), name);
    ASSERT_TRUE(bitmap) << name;
    const auto entry = expected[key].toObject();
    // Half a turn undoes itself; both others leave a JPEG file's tag alone.
    if (entry[QLatin1String("format")] == QLatin1String("JPEG"))
      bitmap = uprightBitmap(*bitmap, entry[QLatin1String("orientation")].toInt());
    // As one of the two has it: the other cuts 16 bits otherwise, or does not read the format.
    QByteArray pixels;
    for (int y = 0; y < bitmap->pixelsHigh(); ++y)
      for (int x = 0; x < bitmap->pixelsWide(); ++x) {
        const std::uint8_t* at = bitmap->row(y) + x * 4;
        for (int i = 0; i < 3; ++i) pixels.append(static_cast<char>(unpremultiplied(at[i], at[3])));
        pixels.append(static_cast<char>(at[3]));
      }
    const QString hash = QString::fromLatin1(QCryptographicHash::hash(pixels, QCryptographicHash::Sha256).toHex());
    const bool isSame = hash == entry[QLatin1String("pillow_rgba_sha256")].toString() ||
                        hash == entry[QLatin1String("imagemagick_rgba_sha256")].toString();
    EXPECT_NE(isSame, differing.contains(name)) << name;
  }
}

}  // namespace
}  // namespace quorvane
