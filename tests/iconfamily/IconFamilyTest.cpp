// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/IconFamily.h"

#include <gtest/gtest.h>

#include "iconfamily/ElementTypes.h"
#include "iconfamily/format/IcnsContainer.h"
#include "support/Bitmaps.h"
#include "support/TemporaryFolder.h"

namespace quorvane {
namespace {

Image filledImage(int pixels, const Bytes& pixel) {
  return Image::imageWithBitmapImageRep(test::filledBitmap(pixels, pixels, pixel));
}

TEST(IconFamily, DecodesAlphaFirstWithTheMaskOrOpaque) {
  auto family = *IconFamily::iconFamilyWithThumbnailsOfImage(filledImage(512, {64, 0, 0, 128}));
  for (const FourCharCode type :
       {FourCharCode("ic09"), FourCharCode("ic08"), FourCharCode("it32"), FourCharCode("il32"), FourCharCode("is32")}) {
    const auto bitmap = family.bitmapImageRepWithAlphaForIconFamilyElement(type);
    ASSERT_TRUE(bitmap) << type.toString();
    EXPECT_TRUE(bitmap->layout().alphaFirst);
    const std::uint8_t* row = bitmap->row(bitmap->pixelsHigh() - 1);
    EXPECT_EQ(Bytes(row, row + 4), (Bytes{128, 127, 0, 0})) << type.toString();
  }
  // Without the mask element the colour is opaque.
  Bytes withoutMask;
  ASSERT_TRUE(setIcnsElement(withoutMask, "is32", *icnsElement(family.bytes(), "is32")).ok());
  const auto opaque = IconFamily::initWithData(withoutMask).bitmapImageRepWithAlphaForIconFamilyElement("is32");
  EXPECT_EQ(opaque->row(0)[0], 255);
}

TEST(IconFamily, StoringRefusesOtherTypesAndSizesAndKeepsTheFamily) {
  IconFamily family = IconFamily::iconFamily();
  const auto small = *filledImage(16, {1, 2, 3, 255}).bitmapRepresentation();
  EXPECT_FALSE(family.setIconFamilyElement("ih32", small));
  EXPECT_FALSE(family.setIconFamilyElement("il32", small));
  EXPECT_TRUE(family.bytes().empty());
  EXPECT_TRUE(family.setIconFamilyElement("is32", small));
  EXPECT_TRUE(icnsElements(family.bytes()).ok());
}

TEST(IconFamily, ImageHasOneRepresentationASizeDecodedWhenNeededPastDamagedOnes) {
  auto family = *IconFamily::iconFamilyWithThumbnailsOfImage(filledImage(512, {0, 90, 0, 255}));
  Bytes bytes = family.data();
  ASSERT_TRUE(setIcnsElement(bytes, "ic07", Bytes{'b', 'a', 'd'}).ok());
  const auto image = IconFamily::initWithData(bytes).imageWithAllReps();
  ASSERT_TRUE(image);
  EXPECT_EQ(image->size(), (Size{128, 128}));
  std::vector<int> widths;
  for (const ImageRep& rep : image->representations()) {
    widths.push_back(rep.pixelsWide());
    EXPECT_TRUE(rep.isPending());
  }
  EXPECT_EQ(widths, (std::vector<int>{512, 256, 128, 32, 16}));
  // 'ic07' comes before 'it32' but is damaged.
  EXPECT_TRUE(image->representations()[2].bitmap());
  EXPECT_FALSE(image->representations()[2].isPending());
  EXPECT_FALSE(IconFamily::initWithData(Bytes{1, 2, 3}).imageWithAllReps());
  EXPECT_FALSE(IconFamily::iconFamily().imageWithAllReps());
}

TEST(IconFamily, FilesGoThereAndBackAndOddOnesAreRefused) {
  test::TemporaryFolder folder;
  const auto family = *IconFamily::iconFamilyWithThumbnailsOfImage(filledImage(32, {1, 2, 3, 255}));
  ASSERT_TRUE(family.writeToFile(folder / "a.icns").ok());
  EXPECT_EQ(*IconFamily::iconFamilyWithContentsOfFile(folder / "a.icns"), family);
  test::writeFile(folder / "text.icns", std::string("hello"));
  std::filesystem::create_symlink(folder / "victim", folder / "link.icns");
  for (const char* name : {"missing.icns", "text.icns", "."})
    EXPECT_FALSE(IconFamily::iconFamilyWithContentsOfFile(folder / name)) << name;
  EXPECT_FALSE(family.writeToFile(folder / "link.icns").ok());
  EXPECT_FALSE(std::filesystem::exists(folder / "victim"));
  EXPECT_FALSE(std::filesystem::exists(folder / "missing.icns"));
}

}  // namespace
}  // namespace quorvane
