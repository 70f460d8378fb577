// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/Tint.h"

#include <gtest/gtest.h>

#include <atomic>
#include <numbers>

#include "support/Bitmaps.h"

namespace quorvane {
namespace {

float hueOf(const OkLab& color) {
  return std::atan2(color.b, color.a) * 180 / std::numbers::pi_v<float>;
}

/// A blue folder: mostly its body, with a darker and a lighter part of it, white paper and grey metal, black and
/// nothing, from left to right; rows of falling alpha.
BitmapImageRep folderLike() {
  constexpr std::uint32_t colors[] = {0x5B8DE0, 0x5B8DE0, 0x5B8DE0, 0x5B8DE0, 0x3F66B0,
                                      0x8FB2EE, 0xFFFFFF, 0x8C8C8C, 0x000000};
  auto bitmap = BitmapImageRep::bitmapImageRepWithSize({9, 4});
  for (int y = 0; y < 4; ++y) {
    for (int x = 0; x < 9; ++x) {
      const int alpha = 255 - 60 * y;
      for (int i = 0; i < 3; ++i)
        bitmap.mutableRow(y)[4 * x + i] =
            static_cast<std::uint8_t>((colors[x] >> (16 - 8 * i) & 0xFF) * static_cast<unsigned>(alpha) / 255);
      bitmap.mutableRow(y)[4 * x + 3] = static_cast<std::uint8_t>(alpha);
    }
  }
  return bitmap;
}

QColor at(const BitmapImageRep& bitmap, int x) {
  const auto pixel = test::pixelAt(bitmap, x, 0);
  return {pixel[0], pixel[1], pixel[2]};
}

TEST(OkLab, HasTheValuesOfItsDefinition) {
  struct Row {
    QColor color;
    float lightness, a, b;
  };
  for (const Row& row :
       {Row{QColor(255, 0, 0), 0.62796F, 0.22486F, 0.12585F}, Row{QColor(0, 0, 255), 0.45201F, -0.03246F, -0.31153F},
        Row{QColor(255, 255, 255), 1, 0, 0}, Row{QColor(0, 0, 0), 0, 0, 0}}) {
    const OkLab lab = okLabOf(row.color);
    EXPECT_NEAR(lab.lightness, row.lightness, 1e-4) << row.color.name().toStdString();
    EXPECT_NEAR(lab.a, row.a, 1e-4);
    EXPECT_NEAR(lab.b, row.b, 1e-4);
    EXPECT_EQ(colorOf(lab), row.color);
  }
  for (int sample = 0; sample < 256; ++sample)
    EXPECT_EQ(byteOfLinear(linearOfByte(static_cast<std::uint8_t>(sample))), sample);
  const OkLab shrill = withinGamut({0.7F, 0.3F, -0.4F});
  EXPECT_EQ(shrill.lightness, 0.7F);
  EXPECT_NEAR(hueOf(shrill), hueOf({0.7F, 0.3F, -0.4F}), 0.01);
  EXPECT_LT(shrill.chroma(), 0.3F);
}

TEST(Tint, GivesTheBodyTheColourAndLeavesGreysAndAlpha) {
  const BitmapImageRep plain = folderLike();
  for (const char* name : {"#e5484d", "#f5c518", "#46a758", "#6e56cf", "#ffd1dc"}) {
    const QColor tint{QLatin1String(name)};
    const BitmapImageRep done = tinted(plain, TintMap(BodyColor::of(plain), tint));
    // The body's colour is a mean of what is near it.
    EXPECT_NEAR(at(done, 0).red(), tint.red(), 4) << name;
    EXPECT_NEAR(at(done, 0).green(), tint.green(), 4) << name;
    EXPECT_NEAR(at(done, 0).blue(), tint.blue(), 4) << name;
    const auto lightness = [&](int x) { return okLabOf(at(done, x)).lightness; };
    EXPECT_LT(lightness(4) + 0.03F, lightness(0)) << "the darker part stays darker: " << name;
    EXPECT_GT(lightness(5), lightness(0)) << name;
    EXPECT_NEAR(hueOf(okLabOf(at(done, 4))), hueOf(okLabOf(tint)), 12) << name;
    for (const int x : {6, 7, 8}) EXPECT_EQ(at(done, x), at(plain, x)) << "white, grey and black " << name;
    for (int y = 0; y < 4; ++y)
      for (int x = 0; x < 9; ++x) {
        const auto pixel = test::pixelAt(done, x, y);
        EXPECT_EQ(pixel[3], test::pixelAt(plain, x, y)[3]);
        EXPECT_LE(std::max({pixel[0], pixel[1], pixel[2]}), pixel[3]);
      }
  }
}

TEST(Tint, KeepsTheOrderOfLightnessForEveryTint) {
  BodyColor grey{{0.6F, 0, 0}, 0};
  BodyColor blue{okLabOf(QColor(0x5B, 0x8D, 0xE0)), 1};
  for (const char* name : {"#000000", "#ffffff", "#39ff14", "#1b2a4a", "#808080", "#ffff00"}) {
    for (const BodyColor& body : {grey, blue}) {
      const TintMap map(body, QColor(QLatin1String(name)));
      float last = -1;
      for (int step = 0; step <= 100; ++step) {
        OkLab color = body.color;
        color.lightness = static_cast<float>(step) / 100;
        const float lightness = map(color).lightness;
        EXPECT_GE(lightness, last) << name << " at " << step;
        last = lightness;
      }
      EXPECT_NEAR(map({0, 0, 0}).lightness, 0, 1e-5);
      EXPECT_NEAR(map({1, 0, 0}).lightness, 1, 1e-5);
      EXPECT_NEAR(map({1, 0, 0}).chroma(), 0, 1e-5);
    }
  }
  // A quarter as strong, a quarter of the way.
  const QColor red(255, 0, 0);
  const OkLab whole = TintMap(grey, red)(grey.color);
  const OkLab quarter = TintMap(grey, QColor(255, 0, 0, 64))(grey.color);
  EXPECT_NEAR(quarter.a, whole.a / 4, 0.003);
}

TEST(Tint, WaitsForWhoeverAsksForARepresentation) {
  std::atomic<int> decoded = 0;
  Image image({128, 128});
  for (const int side : {16, 256})
    image.addRepresentation(ImageRep::pending(side, side, {128, 128}, [&decoded, side] {
      ++decoded;
      return test::filledBitmap(side, side, {0x40, 0x60, 0xC0, 255});
    }));
  const Image red = tinted(image, QColor(200, 30, 30));
  EXPECT_EQ(decoded, 0);
  EXPECT_EQ(red.largestPixelSize(), (Size{256, 256}));
  EXPECT_EQ(test::pixelAt(red.rendered(16, 16), 8, 8), (std::vector<int>{200, 30, 30, 255}));
  EXPECT_EQ(decoded, 2) << "the small one, and the one that tells the body's colour";
  EXPECT_TRUE(tinted(image, QColor(200, 30, 30, 0)).isSameAs(image));
  // Whatever holds no colour at all, or no pixel.
  EXPECT_EQ(tinted(BitmapImageRep(), TintMap(BodyColor::of(BitmapImageRep()), Qt::red)).pixelsWide(), 0);
  const auto nothing = test::filledBitmap(4, 4);
  EXPECT_EQ(test::pixelAt(tinted(nothing, TintMap(BodyColor::of(nothing), Qt::red)), 1, 1), (std::vector<int>(4, 0)));
}

}  // namespace
}  // namespace quorvane
