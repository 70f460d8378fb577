// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainter>
#include <QTransform>

#include "foundation/base/Geometry.h"

namespace quorvane {

/// Where a picture of canvas units lies on the pixels of what it is drawn on. Pictures begin at whole pixels, whatever
/// the screen's density is, or they would be blurred by half a pixel.
struct PixelGrid {
  QTransform toPixels;    ///< from canvas units of the picture (origin at its bottom left, y upwards)
  double perUnit = 0;     ///< pixels a canvas unit
  QPoint pictureTopLeft;  ///< in pixels
  QSizeF picturePixels;   ///< not always whole

  /// The pixels that show any of the picture.
  [[nodiscard]] QRect pictureRect() const { return QRectF(QPointF(pictureTopLeft), picturePixels).toAlignedRect(); }
};

/// The painter's own scale: pixels a logical pixel of the widget it was begun on.
[[nodiscard]] double pixelsPerLogicalPixel(const QPainter& painter);

/// Lets the painter of a widget draw in pixels: the widget's top left (or the pixel next to it) is the origin, one unit
/// a pixel, y downwards.
void enterPixels(QPainter& painter);

/// `origin`: bottom-left corner of the picture in view units (y upwards) of a view that is `viewHeight` logical pixels
/// high and draws `magnification` of them a unit.
[[nodiscard]] PixelGrid pixelGrid(Point origin, Size pictureSize, double viewHeight, int magnification,
                                  double pixelsPerLogicalPixel);

}  // namespace quorvane
