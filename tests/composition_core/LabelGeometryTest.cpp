// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/LabelGeometry.h"

#include <gtest/gtest.h>

#include "LabelTesting.h"
#include "composition/core/LabelRenderer.h"

namespace quorvane {
namespace {

void expectMapped(const QTransform& transform, QPointF from, QPointF to) {
  const QPointF mapped = transform.map(from);
  EXPECT_NEAR(mapped.x(), to.x(), 1e-9);
  EXPECT_NEAR(mapped.y(), to.y(), 1e-9);
}

TEST(LabelGeometry, TransformsTurnAboutTheCenterWithYUpwards) {
  const Point center{64, 64};
  const QTransform shear = _shearTransformByFactor(1, center);
  expectMapped(shear, {96, 64}, {96, 96});
  expectMapped(shear, {32, 64}, {32, 32});
  expectMapped(shear, {64, 10}, {64, 10});
  const QTransform quarter = _rotationTransformByDegrees(90, center);
  expectMapped(quarter, {96, 64}, {64, 96});
  expectMapped(_rotationTransformByDegrees(-90, center), {96, 64}, {64, 32});
  expectMapped(_rotationTransformByDegrees(360 * 1000 + 90, center), {96, 64}, {64, 96});

  // The shear acts first: the other way round (96, 64) would stay on the vertical axis.
  LabelLook look;
  look.shearFactor = 1;
  look.rotation = 90;
  expectMapped(LabelRenderer(look)._transformCenteredAt(center), {96, 64}, {32, 96});
}

}  // namespace
}  // namespace quorvane
