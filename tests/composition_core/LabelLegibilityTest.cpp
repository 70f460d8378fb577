// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/LabelLegibility.h"

#include <gtest/gtest.h>

#include "LabelTesting.h"
#include "support/Bitmaps.h"

namespace quorvane {
namespace {

Image plainPicture(const Bytes& rgba) {
  BitmapImageRep bitmap = test::filledBitmap(256, 256, rgba);
  bitmap.setSize({128, 128});
  return Image::imageWithBitmapImageRep(bitmap);
}

TEST(LabelLegibility, LettersAreMeasuredAsTheyAreFitted) {
  // DejaVu Sans: "x" is 0.547 em high, "H" 0.729 em; an icon of 48 pixels has 0.375 pixels a point.
  const auto height = [](const QString& text, double font) {
    return fittedLetterHeight(text, plainLook(font), {128, 128}, 48);
  };
  EXPECT_NEAR(height(QStringLiteral("Axe"), 20), 0.547 * 20 * 0.375, 0.05);
  EXPECT_NEAR(height(QStringLiteral("AXE"), 20), 0.729 * 20 * 0.375, 0.05);
  // The same in points of a larger picture, and smaller where the label has to shrink to fit.
  EXPECT_NEAR(fittedLetterHeight(QStringLiteral("Axe"), plainLook(20), {512, 512}, 48), 0.547 * 20 * 0.375, 0.05);
  EXPECT_LT(height(QStringLiteral("Axe and many more words"), 60), 5);
  EXPECT_EQ(height(QStringLiteral(" \n"), 20), 0);

  const Image picture = plainPicture({255, 255, 255, 255});
  EXPECT_TRUE(LabelLegibility::of(picture, QStringLiteral("axe"), plainLook(20)).isTooSmall());
  EXPECT_FALSE(LabelLegibility::of(picture, QStringLiteral("axe"), plainLook(28)).isTooSmall());
  EXPECT_EQ(LabelLegibility::of(picture, QString(), plainLook(28)), LabelLegibility());
}

TEST(LabelLegibility, ContrastIsThatToTheSurroundings) {
  LabelLook white = plainLook(40);
  white.color = Qt::white;
  LabelLook faded = white;
  faded.opacity = 0.2F;
  LabelLook shaded = white;
  shaded.shadow = LabelShadow{0, 0, 8, Qt::black};
  const Image black = plainPicture({0, 0, 0, 255});
  const Image grey = plainPicture({200, 200, 200, 255});
  const auto contrast = [](const Image& picture, const LabelLook& look) {
    return labelContrast(picture, QStringLiteral("Text"), look).value_or(0);
  };
  EXPECT_NEAR(contrast(black, white), 21, 0.1);
  EXPECT_NEAR(contrast(black, faded), (0.0331 + 0.05) / 0.05, 0.05);  // #333333 on black
  EXPECT_NEAR(contrast(grey, white), 1.05 / (0.5776 + 0.05), 0.02);
  EXPECT_GT(contrast(grey, shaded), 3);
  EXPECT_TRUE(LabelLegibility::of(grey, QStringLiteral("Text"), white).isTooFaint());
  EXPECT_FALSE(LabelLegibility::of(grey, QStringLiteral("Text"), shaded).isTooFaint());

  // Lost on half of its ground: lost. And where there is no ground nothing is said.
  BitmapImageRep halves = test::filledBitmap(256, 256, {255, 255, 255, 255});
  for (int y = 0; y < 256; ++y) std::fill_n(halves.mutableRow(y), 128 * 4, std::uint8_t{0});
  for (int y = 0; y < 256; ++y)
    for (int x = 0; x < 128; ++x) halves.mutableRow(y)[x * 4 + 3] = 255;
  halves.setSize({128, 128});
  EXPECT_LT(contrast(Image::imageWithBitmapImageRep(halves), white), 3);
  EXPECT_EQ(labelContrast(plainPicture({0, 0, 0, 0}), QStringLiteral("Text"), white), std::nullopt);
}

}  // namespace
}  // namespace quorvane
