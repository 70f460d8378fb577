// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/Image.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

BitmapImageRep filled(int width, int height, std::uint8_t value) {
  auto bitmap = BitmapImageRep::bitmapImageRepWithSize({float(width), float(height)});
  std::fill_n(bitmap.mutableRow(0), width * height * 4, value);
  return bitmap;
}

TEST(Image, OfABitmapIsAsLargeAsTheBitmapsSize) {
  auto bitmap = filled(8, 4, 9);
  bitmap.setSize({4, 2});
  const auto image = Image::imageWithBitmapImageRep(bitmap);
  EXPECT_EQ(image.size(), (Size{4, 2}));
  ASSERT_EQ(image.representations().size(), 1U);
  ASSERT_TRUE(image.bitmapRepresentation());
  EXPECT_EQ(image.bitmapRepresentation()->pixelsWide(), 8);
  EXPECT_EQ(image.bestRepresentation()->size(), (Size{4, 2}));
  EXPECT_FALSE(Image().bitmapRepresentation());
  EXPECT_FALSE(Image().bestRepresentation());
  EXPECT_EQ(Image().largestPixelSize(), (Size{0, 0}));
}

TEST(ImageRep, PendingPixelsAreDecodedOnceForAllCopies) {
  int calls = 0;
  const auto rep = ImageRep::pending(16, 16, {8, 8}, [&] {
    ++calls;
    return std::optional(filled(16, 16, 3));
  });
  const ImageRep copy = rep;
  EXPECT_TRUE(copy.isPending());
  EXPECT_EQ(copy.pixelsWide(), 16);
  ASSERT_TRUE(rep.bitmap());
  EXPECT_FALSE(copy.isPending());
  EXPECT_EQ(copy.bitmap()->size(), (Size{8, 8}));
  EXPECT_EQ(calls, 1);

  int failures = 0;
  const auto failing = ImageRep::pending(16, 16, {16, 16}, [&]() -> std::optional<BitmapImageRep> {
    ++failures;
    return std::nullopt;
  });
  EXPECT_FALSE(failing.bitmap());
  EXPECT_FALSE(failing.bitmap());
  EXPECT_FALSE(failing.isPending());
  EXPECT_EQ(failures, 1);
}

ImageRep failing(int pixels) {
  return ImageRep::pending(pixels, pixels, {1, 1}, [] { return std::optional<BitmapImageRep>(); });
}

TEST(Image, DrawsTheSmallestRepresentationThatSuffices) {
  Image image({128, 128});
  for (const int width : {512, 16, 128, 32}) image.addRepresentation(filled(width, width, 1));
  image.addRepresentation(failing(64));
  image.addRepresentation(filled(300, 40, 1));
  const auto chosen = [&](int wide, int high) { return image.bitmapForPixels(wide, high)->pixelsWide(); };
  EXPECT_EQ(chosen(1, 1), 16);
  EXPECT_EQ(chosen(16, 17), 32);
  EXPECT_EQ(chosen(33, 33), 300) << "the smallest area, past the one that fails";
  EXPECT_EQ(chosen(129, 100), 512);
  EXPECT_EQ(chosen(2000, 10), 512) << "none suffices: the largest";
  EXPECT_EQ(image.largestPixelSize(), (Size{512, 512}));
  EXPECT_EQ(image.bitmapRepresentation()->pixelsWide(), 512) << "the first";
}

TEST(Image, OnlyFailingRepresentationsGiveNothing) {
  Image image({4, 4});
  image.addRepresentation(failing(32));
  EXPECT_FALSE(image.bitmapForPixels(1, 1));
  EXPECT_FALSE(image.bitmapRepresentation());
  EXPECT_TRUE(image.bestRepresentation());
  const auto drawn = image.rendered(3, 3);
  EXPECT_EQ(drawn.pixelsWide(), 3);
  EXPECT_EQ(drawn.row(1)[7], 0);
}

TEST(Image, IsRenderedWholeFromTheRightRepresentation) {
  Image image({10, 10});
  image.addRepresentation(filled(4, 4, 40));
  image.addRepresentation(filled(64, 64, 80));
  EXPECT_EQ(image.rendered(4, 4).row(3)[15], 40);
  EXPECT_EQ(image.rendered(5, 2).row(1)[19], 80);
}

}  // namespace
}  // namespace quorvane
