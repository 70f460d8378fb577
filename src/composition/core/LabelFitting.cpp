// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/LabelFitting.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "composition/core/LabelGeometry.h"

namespace quorvane {

namespace {

constexpr int largestInt = std::numeric_limits<int>::max();

/// The whole part, towards zero; the nearest int where there is none.
int wholePart(double value) {
  if (std::isnan(value)) return 0;
  return static_cast<int>(std::clamp<double>(value, -largestInt, largestInt));
}

bool fits(Size measured, Size size) {
  return measured.width <= size.width && measured.height <= size.height;
}

}  // namespace

int startingSize(const std::optional<LabelFont>& font, float width) {
  const auto size = static_cast<std::int64_t>(wholePart(font ? font->size : 0));
  return static_cast<int>(std::clamp<std::int64_t>(size * wholePart(canvasScale(width)), -largestInt, largestInt));
}

FittedLabel fitLabelPlainly(const QString& text, const LabelLook& look, Size size) {
  FittedLabel fitted{defaultTextAttributes(), {}};
  for (int n = startingSize(look.font, size.width); n >= smallestFittedSize; --n) {
    fitted.attributes = _attributesForFont(look.font->withSize(n), look.color, look.shadow, look.lineSpacingFactor);
    fitted.measured = TextBlock(text, fitted.attributes.font).size(n, fitted.attributes.maximumLineHeight);
    if (fits(fitted.measured, size)) break;
  }
  return fitted;
}

FittedBlock fitLabel(const QString& text, const LabelLook& look, Size size) {
  const int start = startingSize(look.font, size.width);
  if (start < smallestFittedSize) {
    FittedLabel plain{defaultTextAttributes(), {}};
    TextBlock block(text, plain.attributes.font);
    return {std::move(block), std::move(plain)};
  }

  // Of a block laid out once, the measures at n are products and sums of n and constants that are not negative. Each
  // of these operations, rounding included, never gives less for a larger n, and neither does the cap of the line
  // height; so once a size is too large all larger ones are, and halving the interval finds what counting down finds.
  const LabelFont& font = *look.font;
  TextBlock block(text, font);
  const double naturalHeightOfOne = TextBlock::naturalLineHeight(font.withSize(1));
  const auto measuredAt = [&](int n) { return block.size(n, naturalHeightOfOne * n * look.lineSpacingFactor); };
  int best = smallestFittedSize;
  int tooLarge = start;
  if (fits(measuredAt(start), size)) {
    best = start;
  } else {
    while (tooLarge - best > 1) {
      const int middle = best + (tooLarge - best) / 2;
      (fits(measuredAt(middle), size) ? best : tooLarge) = middle;
    }
  }
  FittedLabel fitted{_attributesForFont(font.withSize(best), look.color, look.shadow, look.lineSpacingFactor),
                     measuredAt(best)};
  return {std::move(block), std::move(fitted)};
}

}  // namespace quorvane
