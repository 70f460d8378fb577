// SPDX-License-Identifier: GPL-3.0-or-later
// Values that no control of ours gives, but files and scripts may.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "LabelTesting.h"
#include "composition/core/LabelRenderer.h"

namespace quorvane {
namespace {

constexpr float infinite = std::numeric_limits<float>::infinity();
constexpr float huge = std::numeric_limits<float>::max();
const float odd[] = {NAN, infinite, -infinite, huge, -huge, 1e9F, 1e-40F, -0.0F, 999, 1001};

class OddLooks : public ::testing::Test {
 protected:
  /// Draws and gives back whether the base shows unchanged.
  static bool showsBaseAlone(const LabelLook& look, const QString& text = QStringLiteral("Odd\nlook")) {
    const Image base = squareBase(128, 512);
    const LabelRenderer renderer(look);
    const Image icon = renderer._iconWithBase(base, text);
    EXPECT_EQ(icon.size(), base.size());
    return largestDifference(pixelsOf(icon), pixelsOf(renderer._iconWithBase(base, std::nullopt))) == 0;
  }
  static LabelLook look() {
    LabelLook look = plainLook(40);
    look.shadow = LabelShadow{2, -2, 3.5F, Qt::red};
    look.lineSpacingFactor = 1;
    return look;
  }
};

TEST_F(OddLooks, TransformsThatAreNotFiniteDrawNothing) {
  for (const float value : odd) {
    SCOPED_TRACE(value);
    LabelLook sheared = look();
    sheared.shearFactor = value;
    EXPECT_EQ(showsBaseAlone(sheared), !(std::abs(value) <= 1000));
    LabelLook turned = look();
    turned.rotation = value;
    EXPECT_EQ(showsBaseAlone(turned), !std::isfinite(value));
  }
}

TEST_F(OddLooks, PlacesOutsideThePictureDrawNothing) {
  for (const float value : odd) {
    SCOPED_TRACE(value);
    LabelLook moved = look();
    moved.labelCenter = {value, 64};
    EXPECT_EQ(showsBaseAlone(moved), !(std::abs(value) < 200));
    moved.labelCenter = {64, value};
    EXPECT_EQ(showsBaseAlone(moved), !(std::abs(value) < 200));
  }
}

TEST_F(OddLooks, ShadowsAndSpacingNeverKeepTheTextAway) {
  for (const float value : odd) {
    SCOPED_TRACE(value);
    LabelLook shadowed = look();
    shadowed.shadow = LabelShadow{value, -2, 3, Qt::red};
    EXPECT_FALSE(showsBaseAlone(shadowed));
    shadowed.shadow = LabelShadow{2, value, 3, Qt::red};
    EXPECT_FALSE(showsBaseAlone(shadowed));
    shadowed.shadow = LabelShadow{2, -2, value, Qt::red};
    EXPECT_FALSE(showsBaseAlone(shadowed));
    LabelLook spaced = look();
    spaced.lineSpacingFactor = value;
    EXPECT_FALSE(showsBaseAlone(spaced));
    LabelLook sized = look();
    sized.font->size = static_cast<double>(value);
    EXPECT_FALSE(showsBaseAlone(sized));
  }
}

TEST_F(OddLooks, OddTextIsDrawnInBoundedTime) {
  QString lines;
  for (int i = 0; i < 10000; ++i) lines += QString::number(i) + u'\n';
  QString marks = QStringLiteral("a");
  for (int i = 0; i < 500; ++i) marks += QChar(0x0300 + i % 0x60);
  QString phrases(20000, QChar(0xFDFD));
  LabelLook squeezed = look();
  squeezed.lineSpacingFactor = 0.001F;
  squeezed.shearFactor = 900;
  for (const LabelLook& each : {look(), squeezed}) {
    for (const QString& text : {lines, marks, phrases, QString(1 << 20, u'W'), QString(3000, QChar(0xD83D)),
                                QString(QChar(0)), QString(QChar(0x202E)) + QStringLiteral("abc\t\x07")}) {
      showsBaseAlone(each, text);
    }
  }
}

}  // namespace
}  // namespace quorvane
