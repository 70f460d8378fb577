// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/view/PixelGrid.h"

#include <cmath>

#include "imaging/Coordinates.h"

namespace quorvane {

double pixelsPerLogicalPixel(const QPainter& painter) {
  const double scale = painter.deviceTransform().m11();
  return scale > 0 ? scale : 1;
}

void enterPixels(QPainter& painter) {
  const double scale = pixelsPerLogicalPixel(painter);
  painter.scale(1 / scale, 1 / scale);
  // At fractional densities a widget need not begin at a whole pixel.
  const QTransform device = painter.deviceTransform();
  painter.translate(std::round(device.dx()) - device.dx(), std::round(device.dy()) - device.dy());
}

PixelGrid pixelGrid(Point origin, Size pictureSize, double viewHeight, int magnification,
                    double pixelsPerLogicalPixel) {
  PixelGrid grid;
  grid.perUnit = magnification * pixelsPerLogicalPixel;
  grid.picturePixels = {pictureSize.width * grid.perUnit, pictureSize.height * grid.perUnit};
  const QTransform view =
      QTransform::fromScale(grid.perUnit, grid.perUnit) * flippedTransform(viewHeight * pixelsPerLogicalPixel);
  const QPointF topLeft = view.map(QPointF(origin.x, origin.y + pictureSize.height));
  grid.pictureTopLeft = topLeft.toPoint();
  grid.toPixels = QTransform::fromScale(grid.perUnit, grid.perUnit) * flippedTransform(grid.picturePixels.height()) *
                  QTransform::fromTranslate(grid.pictureTopLeft.x(), grid.pictureTopLeft.y());
  return grid;
}

}  // namespace quorvane
