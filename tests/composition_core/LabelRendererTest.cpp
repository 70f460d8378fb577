// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/LabelRenderer.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <cmath>

#include "LabelTesting.h"
#include "composition/core/LabelFitting.h"
#include "foundation/base/Limits.h"

namespace quorvane {
namespace {

constexpr Size canvas{128, 128};

Image textImage(const LabelLook& look, const QString& text, Size size = canvas, double density = 4) {
  const auto image = LabelRenderer(look)._imageFromString(text, size, density);
  return image.value_or(Image());
}

QImage icon(const LabelLook& look, const QString& text, const Image& base = squareBase(128, 512)) {
  return pixelsOf(LabelRenderer(look)._iconWithBase(base, text));
}

void expectRect(const QRectF& actual, double left, double bottom, double right, double top, double tolerance) {
  EXPECT_NEAR(actual.left(), left, tolerance);
  EXPECT_NEAR(actual.top(), bottom, tolerance);  // the lesser y, which is the lower edge here
  EXPECT_NEAR(actual.right(), right, tolerance);
  EXPECT_NEAR(actual.bottom(), top, tolerance);
}

TEST(LabelRenderer, TheBlockIsCentredAndItsLinesStandBelowEachOther) {
  // "H" of DejaVu Sans: ink from 0.098 to 0.654 em across and 0.729 em up; ascent 0.928, descent 0.236, advance 0.752.
  const double em = 50;
  const double left = 64 - 0.752 * em / 2 + 0.098 * em;
  const double baseline = 64 - 1.164 * em / 2 + 0.236 * em;
  const double right = left + (0.654 - 0.098) * em;
  expectRect(inkOf(textImage(plainLook(em), QStringLiteral("H"))), left, baseline, right, baseline + 0.729 * em, 0.3);

  // An empty second line moves the first one up by half a line.
  const double raised = baseline + 1.164 * em / 2;
  expectRect(inkOf(textImage(plainLook(em), QStringLiteral("H\n"))), left, raised, right, raised + 0.729 * em, 0.3);
}

TEST(LabelRenderer, BelowTenPointsTheDefaultsAreDrawnFromTheMiddle) {
  for (const auto& [fontSize, side] : {std::pair{9.0, 128.0F}, {40.0, 64.0F}}) {
    LabelLook look = plainLook(fontSize);
    look.color = Qt::red;
    look.shadow = LabelShadow{20, 20, 0, Qt::red};
    const Image image = textImage(look, QStringLiteral("H"), {side, side}, 8);
    const QRectF ink = inkOf(image);
    // The system font differs from machine to machine; its lower-left corner stands in the middle all the same.
    EXPECT_GT(ink.left(), side / 2 - 0.1);
    EXPECT_LT(ink.left(), side / 2 + 3);
    EXPECT_GT(ink.top(), side / 2);
    EXPECT_LT(ink.bottom(), side / 2 + 16);
    look.color = Qt::black;
    look.shadow.reset();
    EXPECT_EQ(pixelsOf(image), pixelsOf(textImage(look, QStringLiteral("H"), {side, side}, 8)));
  }
}

TEST(LabelRenderer, GeometryIsTheSameAtEveryDensity) {
  LabelLook look = plainLook(300);
  look.lineSpacingFactor = 0.8F;
  look.shearFactor = 0.2F;
  look.rotation = 15;
  const QString text = QStringLiteral("Projects\nArchive 2024\nthird line");
  const QRectF finest = inkOf(textImage(look, text, canvas, 8));
  for (const double density : {1.0, 1.5, 2.0, 4.0}) {
    const QRectF ink = inkOf(textImage(look, text, canvas, density));
    expectRect(ink, finest.left(), finest.top(), finest.right(), finest.bottom(), 1.1 / density);
  }
}

TEST(LabelRenderer, ShearLiftsTheRightAndRotationTurnsCounterClockwise) {
  const QString dash = QStringLiteral("———");
  LabelLook look = plainLook(40);
  const QRectF level = inkOf(textImage(look, dash));
  look.shearFactor = 1;
  const Image sheared = textImage(look, dash);
  // A thin strip goes up as it goes right: its ink is as high as it is wide.
  const QRectF ink = inkOf(sheared);
  EXPECT_NEAR(ink.height() - level.height(), level.width(), 1.5);
  const QImage pixels = pixelsOf(sheared);
  EXPECT_GT(qAlpha(pixels.pixel(96 * 4, int((128 - level.center().y() - 32) * 4))), 128);
  EXPECT_GT(qAlpha(pixels.pixel(32 * 4, int((128 - level.center().y() + 32) * 4))), 128);

  // A quarter turn of the text is a quarter turn of the picture.
  look = plainLook(24);
  const QString text = QStringLiteral("Turn\nme");
  const Image upright = textImage(look, text);
  look.rotation = 90;
  const Image turned = textImage(look, text);
  const BitmapImageRep expected = upright.bitmapRepresentation()->bitmapImageRepByRotatingCounterClockwise();
  EXPECT_LE(largestDifference(pixelsOf(turned), expected.toImage()), 8);
}

TEST(LabelRenderer, TheShadowStaysUprightUnderTheText) {
  LabelLook look = plainLook(30);
  look.color = Qt::white;
  for (const float rotation : {0.0F, 90.0F}) {
    look.rotation = rotation;
    look.shadow.reset();
    const QRectF text = inkOf(textImage(look, QStringLiteral("Hi")));
    look.shadow = LabelShadow{5, -7, 0, Qt::red};
    const Image image = textImage(look, QStringLiteral("Hi"));
    // To the lower right, by the offset, however the text is turned; and the text over it.
    expectRect(inkOf(image), text.left(), text.top() - 7, text.right() + 5, text.bottom(), 0.01);
    const QImage pixels = pixelsOf(image);
    const auto colorAt = [&](double x, double y) {
      return pixels.pixelColor(static_cast<int>(x * 4), static_cast<int>((128 - y) * 4));
    };
    if (rotation == 0) {
      EXPECT_EQ(colorAt(text.left() + 1.5, text.bottom() - 1.5), QColor(Qt::white));
      EXPECT_EQ(colorAt(text.left() + 6.5, text.top() - 6), QColor(Qt::red));
    }
  }
}

TEST(LabelRenderer, AShadowIsAsStrongAsItsTextAndColour) {
  LabelLook look = plainLook(100);
  look.shadow = LabelShadow{0, -40, 0, QColor(0, 0, 255, 128)};
  look.color = QColor(255, 0, 0, 128);
  const QImage pixels = pixelsOf(textImage(look, QString(QChar(0x2588))));
  // The block's upper part is text alone, its lower part text over shadow, below it lies shadow alone.
  const QRectF ink = inkOf(textImage(plainLook(100), QString(QChar(0x2588))));
  const int x = static_cast<int>(ink.center().x() * 4);
  const auto colorAt = [&](double y) { return pixels.pixelColor(x, static_cast<int>((128 - y) * 4)); };
  EXPECT_NEAR(colorAt(ink.bottom() - 2).alpha(), 128, 1);
  EXPECT_NEAR(colorAt(2).alpha(), 64, 1);
  const QColor both = colorAt(ink.center().y() - 10);
  EXPECT_NEAR(both.alpha(), 128 + 64 * 127 / 255, 2);
  EXPECT_GT(both.red(), both.blue());
}

TEST(LabelRenderer, OpacityBlendsAndWithoutItOrATextTheIconIsTheBase) {
  const Image base = squareBase(128, 512);
  const QImage alone = pixelsOf(base);
  const LabelLook look = plainLook(50);
  EXPECT_EQ(pixelsOf(LabelRenderer(look)._iconWithBase(base, std::nullopt)), alone);
  EXPECT_EQ(icon(look, QString()), alone);
  EXPECT_FALSE(LabelRenderer(look)._imageFromString(std::nullopt, canvas));
  EXPECT_TRUE(inkOf(textImage(look, QString()), 1).isEmpty());
  EXPECT_EQ(textImage(look, QString()).size(), canvas);
  const QColor under = alone.pixelColor(256, 256);
  const std::pair<float, float> rows[] = {{0, 1}, {-1, 1}, {NAN, 1}, {0.5F, 0.5F}, {1, 0}, {7, 0}};
  for (const auto& [opacity, left] : rows) {
    LabelLook faded = plainLook(100);
    faded.opacity = opacity;
    const QColor blended = icon(faded, QString(QChar(0x2588))).pixelColor(256, 256);
    EXPECT_NEAR(blended.red(), double(left) * under.red(), 1) << opacity;
    EXPECT_NEAR(blended.blue(), double(left) * under.blue(), 1) << opacity;
    EXPECT_EQ(blended.alpha(), 255);
  }
}

TEST(LabelRenderer, TheTextImageIsPlacedByTheLabelCenterAndCutAtItsOwnEdges) {
  // A bar as wide as the text image; half of the image lies outside of the icon.
  const QString bar(100, QChar(0x2588));
  LabelLook look = plainLook(50);
  const Image clear(canvas);
  look.labelCenter = {128, 96};
  expectRect(inkOf(LabelRenderer(look)._iconWithBase(clear, bar)), 64, 96 - 6, 128, 96 + 6, 1.5);

  // So is a text that fits nowhere, but not its shadow, 30 to the right of what is not seen.
  LabelLook cut = plainLook(50);
  expectRect(inkOf(textImage(cut, bar)), 0, 64 - 6, 128, 64 + 6, 1.5);
  cut.shadow = LabelShadow{30, -12, 0, Qt::black};
  EXPECT_EQ(pixelsOf(textImage(cut, bar)).pixelColor(2, (128 - 52) * 4), QColor(Qt::black));

  // An edge between two pixels: its pixel is half covered.
  look.labelCenter = {128.125F, 96};
  const QImage pixels = pixelsOf(LabelRenderer(look)._iconWithBase(clear, bar));
  EXPECT_EQ(qAlpha(pixels.pixel(255, 128)), 0);
  EXPECT_NEAR(qAlpha(pixels.pixel(256, 128)), 128, 1);
  EXPECT_EQ(qAlpha(pixels.pixel(257, 128)), 255);

  // A picture twice as wide has its center twice as far.
  look.labelCenter = {96, 64};
  const QRectF ink = inkOf(LabelRenderer(look)._iconWithBase(Image({256, 256}), QStringLiteral("H")));
  EXPECT_NEAR(ink.center().x(), 192, 1);
}

TEST(LabelRenderer, AnIconIsDenseEnoughForItsBaseAndForSharpText) {
  const int most = limits::composedPixels;
  const std::tuple<Size, int, int, int> rows[] = {
      {{128, 128}, 128, 512, 512}, {{128, 128}, 1024, 1024, 1024},    {{128, 128}, 0, 512, 512},
      {{300, 200}, 0, 768, 512},   {{600, 700}, 0, 600, 700},         {{1, 1}, 1, 512, 512},
      {{1, 5000}, 0, 1, most},     {{8192, 4096}, 0, most, most / 2}, {{1e-20F, 1e-20F}, 0, 512, 512}};
  for (const auto& [points, bitmap, wide, high] : rows) {
    const Image base = bitmap > 0 ? squareBase(points.width, bitmap) : Image(points);
    const Image composed = LabelRenderer(plainLook(50))._iconWithBase(base, QStringLiteral("A"));
    EXPECT_EQ(composed.size(), points);
    EXPECT_EQ(pixelsOf(composed).size(), QSize(wide, high)) << points.width << " " << bitmap;
  }
  for (const Size size : {Size{0, 0}, Size{-5, 5}, Size{NAN, 5}, Size{5, INFINITY}}) {
    EXPECT_TRUE(LabelRenderer(plainLook(50))._iconWithBase(Image(size), QStringLiteral("A")).representations().empty());
  }
}

TEST(LabelRenderer, ALayerIsTheSameTextOnAnyGrid) {
  // What a canvas draws at an odd place is what the text image has there.
  LabelLook look = plainLook(40);
  look.shadow = LabelShadow{2, -2, 3.5F, QColor(0, 0, 0, 128)};
  const QString text = QStringLiteral("Layer");
  const QImage whole = pixelsOf(textImage(look, text, canvas, 2));
  const QTransform moved(2, 0, 0, -2, 31, 256 + 17);
  const QRect visible(100, 90, 80, 90);
  const LabelLayer layer = LabelRenderer(look).layerFromString(text, canvas, moved, visible);
  ASSERT_FALSE(layer.pixels.isNull());
  const QRect rect(layer.topLeft, layer.pixels.size());
  EXPECT_TRUE(visible.contains(rect));
  EXPECT_LE(largestDifference(layer.pixels, whole.copy(rect.translated(-31, -17))), 1);
}

TEST(LabelRenderer, EmojiAreDrawnInTheirOwnColours) {
  if (!QFontDatabase::families().contains(QStringLiteral("Noto Color Emoji"))) GTEST_SKIP() << "no emoji font here";
  LabelLook look = plainLook(60);
  look.color = QColor(0, 0, 0, 128);
  look.rotation = 10;
  const QImage pixels = pixelsOf(textImage(look, QStringLiteral("😀")));
  int yellow = 0;
  for (int y = 0; y < pixels.height(); ++y) {
    for (int x = 0; x < pixels.width(); ++x) {
      const QColor color = pixels.pixelColor(x, y);
      // It fades with the text's colour.
      ASSERT_LE(color.alpha(), 129);
      if (color.alpha() > 125 && color.red() > 200 && color.green() > 150 && color.blue() < 120) ++yellow;
    }
  }
  EXPECT_GT(yellow, 10000);
}

}  // namespace
}  // namespace quorvane
