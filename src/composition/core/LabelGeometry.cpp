// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/LabelGeometry.h"

#include <cmath>

namespace quorvane {

namespace {

QTransform about(const QTransform& transform, Point center) {
  return QTransform::fromTranslate(-center.x, -center.y) * transform * QTransform::fromTranslate(center.x, center.y);
}

}  // namespace

Point scaledLabelCenter(Point labelCenter, float pictureWidth) {
  const float scale = canvasScale(pictureWidth);
  return {labelCenter.x * scale, labelCenter.y * scale};
}

Point _originForCenter(Point center, Size size) {
  return {center.x - size.width * 0.5F, center.y - size.height * 0.5F};
}

QTransform _shearTransformByFactor(float factor, Point center) {
  return about(QTransform(1, factor, 0, 1, 0, 0), center);
}

QTransform _rotationTransformByDegrees(float degrees, Point center) {
  // The remainder is exact; without it the sine of a huge angle would be noise.
  return about(QTransform().rotate(std::fmod(static_cast<double>(degrees), 360.0)), center);
}

}  // namespace quorvane
