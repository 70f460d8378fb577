// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTransform>

#include "foundation/base/Geometry.h"

/// Where a label goes. All points and transforms have y upwards; a transform maps row vectors, so that A * B applies A
/// first and B second.
namespace quorvane {

/// Side of the canvas in its own units: label centres and nominal font sizes are meant for a picture this wide.
inline constexpr float canvasSide = 128;

/// Picture width / canvas side. The width alone sets the scale of both axes.
[[nodiscard]] inline float canvasScale(float pictureWidth) {
  return pictureWidth * 0.0078125F;
}

/// The label centre of a canvas on a picture of that width.
[[nodiscard]] Point scaledLabelCenter(Point labelCenter, float pictureWidth);

/// Bottom-left corner of a box of that size centred on `center`.
[[nodiscard]] Point _originForCenter(Point center, Size size);

/// (x, y) goes to (x, y + factor * (x - center.x)): vertical lines stay vertical, horizontal ones rise to the right.
[[nodiscard]] QTransform _shearTransformByFactor(float factor, Point center);

/// Counter-clockwise for positive degrees. A quarter turn is exact; any finite angle is taken modulo a full turn.
[[nodiscard]] QTransform _rotationTransformByDegrees(float degrees, Point center);

}  // namespace quorvane
