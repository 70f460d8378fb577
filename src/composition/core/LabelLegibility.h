// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>

#include "composition/core/LabelValues.h"
#include "imaging/Image.h"

namespace quorvane {

/// How well a label can be read on its picture. Plain functions of values, for any thread; they draw, and take some
/// milliseconds.
struct LabelLegibility {
  /// Side of the icon that is judged, in pixels: what file managers show lists of folders at.
  static constexpr double judgedPixels = 48;
  /// Fewer pixels cannot hold the strokes of an "e".
  static constexpr double leastLetterHeight = 5;
  /// WCAG 2.1, success criterion 1.4.3: least contrast of large text.
  static constexpr double leastContrast = 3;

  double letterHeight = 0;         ///< in pixels of an icon of judgedPixels; 0 without text
  std::optional<double> contrast;  ///< 1 to 21; nullopt where there is no text, or nothing of the picture around it

  [[nodiscard]] bool isTooSmall() const { return letterHeight > 0 && letterHeight < leastLetterHeight; }
  [[nodiscard]] bool isTooFaint() const { return contrast && *contrast < leastContrast; }
  bool operator==(const LabelLegibility&) const = default;

  static LabelLegibility of(const Image& base, const QString& text, const LabelLook& look);
};

/// Height of the letters of the fitted label ("x", or "H" of a text without small letters) on a picture of `size`
/// points that is drawn `pixels` wide.
[[nodiscard]] double fittedLetterHeight(const QString& text, const LabelLook& look, Size size, double pixels);

/// Contrast, as WCAG 2.1 defines it, of the label's colour (as opaque as it is drawn) to what lies close around its
/// glyphs: the picture with the label's shadow on it. The nearer and the longer the edges of the glyphs, the more a
/// pixel counts, and transparent ones do not, as nobody knows what they are shown on. The mean is the harmonic one:
/// text that is lost over half of its length is lost, however black the rest is on white.
[[nodiscard]] std::optional<double> labelContrast(const Image& base, const QString& text, const LabelLook& look);

}  // namespace quorvane
