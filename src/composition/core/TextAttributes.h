// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "composition/core/LabelValues.h"

namespace quorvane {

/// How a string is measured and drawn.
struct TextAttributes {
  LabelFont font;
  QColor color = Qt::black;
  double maximumLineHeight = 0;  ///< cap of each line's height in points; 0 (or less, or not a number): no cap
  std::optional<LabelShadow> shadow;
  bool operator==(const TextAttributes&) const = default;
};

/// What a string is drawn with when nothing is chosen for it: system font of 12 points, black, no cap, no shadow.
[[nodiscard]] TextAttributes defaultTextAttributes();

/// Attributes from chosen values: no colour is black, no font the system font of 50 points. The line height is capped
/// at the factor times the height of "FooBar" in that font alone.
[[nodiscard]] TextAttributes _attributesForFont(const std::optional<LabelFont>& font,
                                                const std::optional<QColor>& color,
                                                const std::optional<LabelShadow>& shadow, float lineSpacingFactor);

}  // namespace quorvane
