// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "composition/core/TextAttributes.h"
#include "composition/core/TextBlock.h"

namespace quorvane {

/// Smallest size that the fitting tries.
inline constexpr int smallestFittedSize = 10;

/// The attributes a label is drawn with, and the size they give it.
struct FittedLabel {
  TextAttributes attributes;
  Size measured;  ///< (0, 0) when nothing was measured because the starting size lay below smallestFittedSize
  bool operator==(const FittedLabel&) const = default;
};

/// The whole part of the font's size times the whole part of (width / 128): text grows by whole multiples while the
/// label centre follows the exact ratio. That is meant. No font gives 0, and so does a picture narrower than 128.
[[nodiscard]] int startingSize(const std::optional<LabelFont>& font, float width);

/// The largest size from startingSize() down to 10, in steps of one, at which the text is no wider and no higher than
/// `size`; 10 when none is. defaultTextAttributes() with a measured size of (0, 0) when it starts below 10.
/// `fitLabelPlainly` is the definition: it lays the text out anew at each size, in time proportional to the sizes
/// tried. `fitLabel` gives the same from one layout.
[[nodiscard]] FittedLabel fitLabelPlainly(const QString& text, const LabelLook& look, Size size);

/// The same, with the layout it was found with.
struct FittedBlock {
  TextBlock block;
  FittedLabel label;
};
[[nodiscard]] FittedBlock fitLabel(const QString& text, const LabelLook& look, Size size);

}  // namespace quorvane
