// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/Image.h"

#include <gtest/gtest.h>

#include "support/Bitmaps.h"

namespace quorvane {
namespace {

BitmapImageRep filled(int width, int height) {
  return test::filledBitmap(width, height, Bytes(4, 3));
}

TEST(ImageRep, PendingPixelsAreDecodedOnceForAllCopies) {
  for (const bool isGood : {true, false}) {
    int calls = 0;
    const auto rep = ImageRep::pending(16, 16, {8, 8}, [&] {
      ++calls;
      return isGood ? std::optional(filled(16, 16)) : std::nullopt;
    });
    const ImageRep copy = rep;
    EXPECT_TRUE(copy.isPending());
    EXPECT_EQ(copy.pixelsWide(), 16);
    for (int round = 0; round < 2; ++round) EXPECT_EQ(rep.bitmap().has_value(), isGood);
    EXPECT_FALSE(copy.isPending());
    EXPECT_TRUE(!isGood || copy.bitmap()->size() == (Size{8, 8}));
    EXPECT_EQ(calls, 1);
  }
}

ImageRep failing(int pixels) {
  return ImageRep::pending(pixels, pixels, {1, 1}, [] { return std::optional<BitmapImageRep>(); });
}

TEST(Image, DrawsTheSmallestRepresentationThatSuffices) {
  Image image({128, 128});
  for (const int width : {512, 16, 128, 32}) image.addRepresentation(filled(width, width));
  image.addRepresentation(failing(64));
  image.addRepresentation(filled(300, 40));
  const auto chosen = [&](int wide, int high) { return image.bitmapForPixels(wide, high)->pixelsWide(); };
  EXPECT_EQ(chosen(1, 1), 16);
  EXPECT_EQ(chosen(16, 17), 32);
  EXPECT_EQ(chosen(33, 33), 300) << "the smallest area, past the one that fails";
  EXPECT_EQ(chosen(129, 100), 512);
  EXPECT_EQ(chosen(2000, 10), 512) << "none suffices: the largest";
  EXPECT_EQ(image.largestPixelSize(), (Size{512, 512}));
  EXPECT_EQ(image.bitmapRepresentation()->pixelsWide(), 512) << "the first";

  Image none({4, 4});
  none.addRepresentation(failing(32));
  EXPECT_FALSE(none.bitmapForPixels(1, 1) || none.bitmapRepresentation());
  EXPECT_EQ(none.rendered(3, 3).row(1)[7], 0);
}

}  // namespace
}  // namespace quorvane
