// SPDX-License-Identifier: GPL-3.0-or-later
// Values that no control of ours gives, but files and scripts may.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
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

TEST_F(OddLooks, OnlyTransformsAndPlacesThatMakeNoSenseKeepTheTextAway) {
  struct Row {
    const char* what;
    std::function<void(LabelLook&, float)> set;
    std::function<bool(float)> isDrawn = [](float) { return true; };
  };
  const Row rows[] = {
      {"shear", [](auto& l, float v) { l.shearFactor = v; }, [](float v) { return std::abs(v) <= 1000; }},
      {"rotation", [](auto& l, float v) { l.rotation = v; }, [](float v) { return std::isfinite(v); }},
      {"x", [](auto& l, float v) { l.labelCenter.x = v; }, [](float v) { return std::abs(v) < 200; }},
      {"y", [](auto& l, float v) { l.labelCenter.y = v; }, [](float v) { return std::abs(v) < 200; }},
      {"shadow's x",
       [](auto& l, float v) {
         l.shadow = LabelShadow{v, -2, 3, Qt::red};
       }},
      {"shadow's y",
       [](auto& l, float v) {
         l.shadow = LabelShadow{2, v, 3, Qt::red};
       }},
      {"shadow's blur",
       [](auto& l, float v) {
         l.shadow = LabelShadow{2, -2, v, Qt::red};
       }},
      {"line spacing", [](auto& l, float v) { l.lineSpacingFactor = v; }},
      {"font size", [](auto& l, float v) { l.font->size = static_cast<double>(v); }},
  };
  for (const auto& [what, set, isDrawn] : rows)
    for (const float value : odd) {
      LabelLook changed = look();
      set(changed, value);
      EXPECT_EQ(showsBaseAlone(changed), !isDrawn(value)) << what << " " << value;
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
