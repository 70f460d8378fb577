// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/LabelFitting.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "LabelTesting.h"

namespace quorvane {
namespace {

constexpr Size canvas{128, 128};

TEST(LabelFitting, StartsAtWholeMultiplesOfTheWholeFontSize) {
  // A picture of 300 is 2.34 times as wide as the canvas.
  const std::tuple<double, float, int> rows[] = {
      {36, 128, 36},   {36.9, 300, 72},        {36, 127.99F, 0},
      {-20, 256, -40}, {std::nan(""), 128, 0}, {HUGE_VAL, 512, std::numeric_limits<int>::max()}};
  for (const auto& [fontSize, width, start] : rows)
    EXPECT_EQ(startingSize(plainLook(fontSize).font, width), start) << fontSize << " at " << width;
  EXPECT_EQ(startingSize(std::nullopt, 512), 0);
}

TEST(LabelFitting, TakesTheFirstSizeAtWhichBothSidesFit) {
  const QString text = QStringLiteral("Hello World");
  const double widthOfOne = TextBlock(text, *plainLook(1).font).size(1, 0).width;
  const FittedLabel label = fitLabel(text, plainLook(50), canvas).label;
  EXPECT_EQ(label.attributes.font.size, std::floor(128 / widthOfOne));
  EXPECT_LE(label.measured.width, 128);

  // High rather than wide.
  EXPECT_LT(fitLabel(QStringLiteral("i\ni\ni\ni\ni"), plainLook(50), canvas).label.attributes.font.size, 24);
  // Fits as it is.
  EXPECT_EQ(fitLabel(QStringLiteral("i"), plainLook(50), canvas).label.attributes.font.size, 50);
  // Exactly as wide as the picture fits; the least bit less does not.
  const Size exact = TextBlock(text, *plainLook(1).font).size(20, 0);
  EXPECT_EQ(fitLabel(text, plainLook(20), {128, exact.height}).label.attributes.font.size, 20);
  EXPECT_EQ(fitLabel(text, plainLook(20), {128, std::nextafter(exact.height, 0.0F)}).label.attributes.font.size, 19);
}

TEST(LabelFitting, NothingFitsOrNothingIsTried) {
  const QString wide(200, u'W');
  const FittedLabel tooWide = fitLabel(wide, plainLook(50), canvas).label;
  EXPECT_EQ(tooWide.attributes.font.size, 10);
  EXPECT_GT(tooWide.measured.width, 128);
  EXPECT_EQ(fitLabel(wide, plainLook(10), canvas).label, tooWide);

  LabelLook nine = plainLook(9);
  nine.color = Qt::red;
  nine.shadow = LabelShadow{};
  const FittedLabel untried = fitLabel(wide, nine, canvas).label;
  EXPECT_EQ(untried.attributes, defaultTextAttributes());
  EXPECT_EQ(untried.measured, Size());
  EXPECT_EQ(untried, fitLabelPlainly(wide, nine, canvas));
}

TEST(LabelFitting, OneLayoutGivesWhatThePlainLoopGives) {
  const char* const texts[] = {"Projects",
                               "Projects\nArchive 2024\nthird line",
                               "Voilà AVATAR",
                               "",
                               "مرحبا بالعالم\nabc",
                               "日本語テキスト",
                               "A😀👨‍👩‍👧‍👦\nB",
                               "é̂ͯ zalgo\n\n",
                               "a label that is wider than any picture of a folder"};
  const LabelFont fonts[] = {{QStringLiteral("DejaVu Sans"), {}, 0},
                             {QStringLiteral("DejaVu Serif"), QStringLiteral("Bold"), 0},
                             {QStringLiteral("Noto Sans"), {}, 0}};
  // Rows of font size, cap factor and picture: from no choice at all to far too large.
  struct Row {
    double fontSize;
    float lineSpacing;
    Size size;
  };
  const Row rows[] = {{10, 0, canvas},     {11, 1, canvas},     {40, 0.7F, canvas}, {90, 1, canvas},
                      {90, 0.01F, canvas}, {30, 1, {1024, 64}}, {50, -1, canvas},   {50, NAN, canvas}};
  const auto compare = [](const LabelFont& font, const QString& text, const Row& row) {
    LabelLook look = plainLook(row.fontSize);
    look.font = font.withSize(row.fontSize);
    look.lineSpacingFactor = row.lineSpacing;
    const FittedLabel fitted = fitLabel(text, look, row.size).label;
    const FittedLabel plain = fitLabelPlainly(text, look, row.size);
    // A cap that is not a number equals nothing, itself included; nothing else may differ.
    EXPECT_EQ(fitted.measured, plain.measured) << text.toStdString() << " from " << row.fontSize;
    EXPECT_EQ(fitted.attributes.font, plain.attributes.font) << text.toStdString() << " from " << row.fontSize;
  };
  for (const char* text : texts) {
    for (const LabelFont& font : fonts) {
      for (const Row& row : rows) compare(font, QString::fromUtf8(text), row);
    }
  }
  for (const Row& row : {Row{300, 1.5F, {300, 200.5F}}, Row{1200, 0.9F, canvas}}) {
    compare(fonts[0], QString::fromUtf8(texts[1]), row);
  }
}

TEST(LabelFitting, MeasuresNeverShrinkWhenTheFontGrows) {
  const LabelFont font = *plainLook(1).font;
  const TextBlock block(QStringLiteral("Projects 2024\n日本 😀\nthird"), font);
  const double natural = TextBlock::naturalLineHeight(font);
  for (const float factor : {0.0F, 0.333F, 1.0F, 1.1F}) {
    Size before;
    for (int n = 1; n < 5000; ++n) {
      const Size size = block.size(n, natural * n * factor);
      ASSERT_GE(size.width, before.width) << n;
      ASSERT_GE(size.height, before.height) << n;
      before = size;
    }
  }
}

}  // namespace
}  // namespace quorvane
