// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>
#include <optional>

#include "foundation/base/Geometry.h"

namespace quorvane {

/// A font by its names and its nominal size in canvas units: one unit is one pixel at density 1, never a physical
/// point. The size lives here because a QFont forgets it as soon as it is given pixels.
struct LabelFont {
  QString family;
  QString style;  ///< e.g. "Bold Oblique"; empty for the family's regular one
  double size = 0;

  [[nodiscard]] LabelFont withSize(double newSize) const { return {family, style, newSize}; }
  /// Family and style, as shown to people.
  [[nodiscard]] QString displayName() const;
  bool operator==(const LabelFont&) const = default;
};

/// The desktop's general font. Its family depends on the machine: tests name a font of their own.
LabelFont systemFont(double size);

/// A shadow under the text, in points of the picture: it neither turns nor shears with the text, nor grows with the
/// font. A default one lies exactly under the text, sharp, in black at a third.
struct LabelShadow {
  float offsetX = 0;
  float offsetY = 0;     ///< upwards: negative for a shadow below
  float blurRadius = 0;  ///< twice the standard deviation of the blur
  QColor color = QColor::fromRgbF(0, 0, 0, 1.0F / 3);
  bool operator==(const LabelShadow&) const = default;
};

/// Everything about a label save its text. Nothing is clamped here; what cannot be drawn is dealt with in drawing.
struct LabelLook {
  std::optional<LabelFont> font;  ///< none: the label is drawn with defaultTextAttributes()
  std::optional<QColor> color;    ///< none: black
  std::optional<LabelShadow> shadow;
  float lineSpacingFactor = 0;  ///< cap of the line height as a multiple of the natural one; 0: no cap
  Point labelCenter;            ///< of the text image, on a canvas of 128 x 128 units
  float shearFactor = 0;        ///< a point d to the right of the centre moves up by shearFactor * d
  float rotation = 0;           ///< degrees, counter-clockwise, about the centre, after the shear
  float opacity = 1;            ///< 0 to 1
  bool operator==(const LabelLook&) const = default;
};

}  // namespace quorvane
