// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QFile>
#include <limits>

#include "LabelTesting.h"
#include "composition/core/Emblems.h"
#include "composition/core/IconComposition.h"
#include "composition/core/OverlayRenderer.h"
#include "foundation/base/Limits.h"
#include "imaging/OkLab.h"
#include "imaging/PngCodec.h"
#include "support/Bitmaps.h"

namespace quorvane {
namespace {

OverlayPicture redPicture(int width, int height) {
  return *OverlayPicture::fromImage(
      Image::imageWithBitmapImageRep(test::filledBitmap(width, height, {200, 0, 0, 255})));
}

Image transparentBase() {
  Image base = Image::imageWithBitmapImageRep(test::filledBitmap(512, 512));
  base.setScalesWhenResized(true);
  base.setSize({128, 128});
  return base;
}

TEST(Emblems, AllDrawSomethingInBothSizes) {
  EXPECT_GE(emblems().size(), 60U);
  for (const Emblem& emblem : emblems()) {
    IconOverlay overlay;
    overlay.drawing = OverlayEmblem{emblem.name};
    for (const float side : {16.0F, 64.0F}) {
      overlay.size = side;
      const LabelLayer layer =
          OverlayRenderer(overlay).layer(128, QTransform(1, 0, 0, -1, 0, 128), {0, 0, 128, 128}, Qt::red);
      ASSERT_FALSE(layer.pixels.isNull()) << emblem.name.toStdString();
      EXPECT_NEAR(layer.pixels.width(), side, 1);
    }
    EXPECT_TRUE(emblem.matches(emblem.title.toUpper()));
  }
  EXPECT_TRUE(emblemDrawing(QStringLiteral("../pictures/folder"), 64).isEmpty());
}

TEST(Overlay, StandsWhereItIsPutAndFillsItsSquare) {
  struct Row {
    OverlayDrawing drawing;
    QRectF ink;
  };
  for (const Row& row : {Row{redPicture(40, 20), {10, 85, 20, 10}}, Row{redPicture(8, 16), {15, 80, 10, 20}},
                         Row{OverlayEmoji{QStringLiteral("I")}, {17, 80, 6, 20}}}) {
    IconOverlay overlay{.drawing = row.drawing, .center = {20, 90}, .size = 20, .opacity = 1, .color = Qt::red};
    for (const float points : {128.0F, 256.0F}) {
      Image base = transparentBase();
      base.setSize({points, points});
      const float scale = points / 128;
      const QRectF ink = inkOf(OverlayRenderer(overlay).iconWithBase(base));
      EXPECT_NEAR(ink.center().x() / scale, row.ink.center().x(), 0.5);
      EXPECT_NEAR(ink.center().y() / scale, row.ink.center().y(), 0.5);
      EXPECT_NEAR(ink.height() / scale, row.ink.height(), 0.5);
      EXPECT_NEAR(ink.width() / scale, row.ink.width(), 3);
    }
  }
}

TEST(Overlay, LiesUnderTheLabelAndOverTheTint) {
  IconComposition composition;
  Image blue = Image::imageWithBitmapImageRep(test::filledBitmap(128, 128, {40, 80, 200, 255}));
  composition.setCurrentIcon(blue);
  composition.setTint(QColor(20, 160, 60));
  IconOverlay overlay{.drawing = redPicture(32, 32), .center = {64, 64}, .size = 64, .opacity = 0.5F, .color = {}};
  composition.setOverlay(overlay);
  composition.setLabel(QStringLiteral("█"));
  composition.setFont(plainLook(40).font);
  composition.setColor(QColor(Qt::white));
  composition.centerLabel();
  const QImage icon = pixelsOf(*composition.iconImage());
  EXPECT_EQ(icon.pixelColor(10, 10), QColor(20, 160, 60));
  EXPECT_EQ(icon.pixelColor(256, 256), QColor(Qt::white));
  EXPECT_NEAR(icon.pixelColor(256, 140).red(), 110, 2);
  EXPECT_TRUE(composition.displayedImage()->isSameAs(*composition.displayedImage()));
  EXPECT_TRUE(composition.currentIcon()->isSameAs(blue)) << "the picture itself stays";

  composition.setLabel(std::nullopt);
  composition.setTint(std::nullopt);
  composition.setOverlay(std::nullopt);
  EXPECT_EQ(pixelsOf(*composition.iconImage()).pixelColor(256, 256), QColor(40, 80, 200));
}

TEST(Overlay, ItsShadeCanBeToldFromWhatItLiesOn) {
  for (const Bytes& ground : {Bytes{255, 255, 255, 255}, Bytes{0, 0, 0, 255}, Bytes{90, 140, 220, 255},
                              Bytes{128, 128, 128, 255}, Bytes{250, 210, 40, 255}, Bytes(4)}) {
    const Image base = Image::imageWithBitmapImageRep(test::filledBitmap(128, 128, ground));
    IconOverlay overlay;
    overlay.drawing = OverlayEmblem{QStringLiteral("star")};
    const float shade = okLabOf(OverlayRenderer(overlay).colorOn(base)).lightness;
    EXPECT_GT(std::abs(shade - okLabOf(QColor(ground[0], ground[1], ground[2])).lightness), 0.18F) << int(ground[0]);
    overlay.color = QColor(1, 2, 3);
    EXPECT_EQ(OverlayRenderer(overlay).colorOn(base), QColor(1, 2, 3));
  }
}

TEST(Overlay, OddValuesDrawNothing) {
  constexpr float nan = std::numeric_limits<float>::quiet_NaN();
  const Image base = transparentBase();
  const IconOverlay sound{.drawing = redPicture(8, 8), .center = {64, 64}, .size = 40, .opacity = 1, .color = {}};
  std::vector<IconOverlay> odd(8, sound);
  odd[0].size = nan;
  odd[1].size = -5;
  odd[2].size = 1e30F;
  odd[3].center.x = nan;
  odd[4].center.y = 1e30F;
  odd[5].opacity = nan;
  odd[6].drawing = OverlayEmblem{QStringLiteral("no-such-emblem")};
  odd[7].drawing = std::monostate();
  for (const IconOverlay& overlay : odd) EXPECT_TRUE(inkOf(OverlayRenderer(overlay).iconWithBase(base), 1).isEmpty());
  EXPECT_FALSE(inkOf(OverlayRenderer(sound).iconWithBase(base)).isEmpty());

  EXPECT_FALSE(OverlayPicture::fromPng(Bytes(100)).ok());
  EXPECT_FALSE(OverlayPicture::fromPng(Bytes(limits::overlayBytes + 1)).ok());
  EXPECT_FALSE(OverlayPicture::fromPng(*encodePng(test::filledBitmap(limits::overlayPixels + 1, 4))).ok());
  EXPECT_EQ(redPicture(2000, 1000).image().largestPixelSize(), (Size{512, 256}));
  for (const char* text : {"", "ab", " ", "\t", "\x01"})
    EXPECT_FALSE(overlayEmoji(QString::fromUtf8(text)).ok()) << text;
  for (const char* text : {"A", "🎉", "👩‍👩‍👧", "🇩🇪", "é"})
    EXPECT_TRUE(overlayEmoji(QString::fromUtf8(text)).ok()) << text;
}

}  // namespace
}  // namespace quorvane
