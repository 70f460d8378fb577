// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/IconComposition.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "LabelTesting.h"

namespace quorvane {
namespace {

class IconCompositionTest : public ::testing::Test {
 protected:
  IconCompositionTest() {
    _composition.setListener([this](const CompositionChange& change) { _changes.push_back(change); });
  }

  IconComposition _composition;
  std::vector<CompositionChange> _changes;
};

TEST_F(IconCompositionTest, EverySetterAsksForARedrawAndSaysWhatElse) {
  _composition.setFontSize(30);
  EXPECT_EQ(_composition.look().font, systemFont(50)) << "there was no font to change";
  _composition.setColor(QColor(Qt::red));
  _composition.setShadow(LabelShadow{});
  _composition.setLineSpacing(0.8F);
  _composition.setShearFactor(-7);
  _composition.setRotation(1e9F);
  _composition.setOpacity(3);
  _composition.moveLabelCenter(10, -5);
  EXPECT_EQ(_changes, std::vector<CompositionChange>(8));

  _composition.setFont(plainLook(20).font);
  _changes.clear();
  _composition.setLabel(QStringLiteral("A"));
  _composition.setLabel(_composition.label());  // the value that is set, again
  _composition.setFontSize(30);
  EXPECT_EQ(_changes, (std::vector<CompositionChange>{{.label = true}, {.label = true}, {.selectedFont = true}}));
  EXPECT_EQ(_composition.font().size, 30);

  // Nothing is clamped.
  const LabelLook look = _composition.look();
  EXPECT_EQ(look.shearFactor, -7);
  EXPECT_EQ(look.rotation, 1e9F);
  EXPECT_EQ(look.opacity, 3);
  EXPECT_EQ(look.labelCenter, (Point{10, -5}));

  _changes.clear();
  _composition.centerLabel();
  EXPECT_TRUE(_changes.empty());
  EXPECT_EQ(_composition.canvasLabelCenter(), (Point{64, 64}));
}

TEST_F(IconCompositionTest, AShadowIsAsLargeInTheIconAsOnTheCanvas) {
  const auto drawn = [this](float points) {
    _composition.setCurrentIcon(squareBase(points, 512));
    const auto icon = _composition.canvasIconImage();
    EXPECT_EQ(icon->size(), (Size{128, 128}));
    return icon->bitmapRepresentation()->toImage();
  };
  _composition.setFont(plainLook(30).font);
  _composition.setLabel(QStringLiteral("A"));
  _composition.setShadow(LabelShadow{.offsetX = 6, .offsetY = -6, .blurRadius = 4, .color = Qt::red});
  _composition.centerLabel();
  EXPECT_EQ(drawn(512), drawn(128));
}

TEST_F(IconCompositionTest, TheBaseIconTakesPrecedence) {
  const Image current = squareBase(32, 16);
  const Image base = squareBase(512, 8);
  _composition.setCurrentIcon(current);
  _composition.setBaseIcon(base);
  _composition.setCurrentIcon(squareBase(48, 4));
  _composition.setBaseIcon(std::nullopt);
  EXPECT_EQ(_changes, (std::vector<CompositionChange>{
                          {.displayedImage = true}, {.displayedImage = true}, {}, {.displayedImage = true}}));
  // The current icon that came while the base icon hid it; the stored one keeps its size.
  ASSERT_TRUE(_composition.displayedImage());
  EXPECT_EQ(_composition.displayedImage()->largestPixelSize(), (Size{4, 4}));
  EXPECT_EQ(_composition.displayedImage()->size(), (Size{128, 128}));
  EXPECT_EQ(_composition.currentIcon()->size(), (Size{48, 48}));

  // The label's center follows the width of what is shown.
  _composition.centerLabel();
  _composition.setBaseIcon(Image({300, 200}));
  EXPECT_EQ(_composition.labelCenter(), (Point{150, 150}));
}

TEST_F(IconCompositionTest, ResetKeepsWhatIsNotOfTheTransform) {
  _composition.setBaseIcon(squareBase(128, 8));
  _composition.setLabel(QStringLiteral("A"));
  _composition.setShearFactor(1);
  _composition.setRotation(1);
  _composition.setOpacity(0.25F);
  _changes.clear();
  _composition.reset();
  LabelLook expected;
  expected.opacity = 0.25F;
  EXPECT_EQ(_composition.look(), expected);
  EXPECT_FALSE(_composition.baseIcon());
  EXPECT_EQ(_composition.label(), QStringLiteral("A"));
  EXPECT_EQ(_changes, (std::vector<CompositionChange>{{.displayedImage = true}}));
}

}  // namespace
}  // namespace quorvane
