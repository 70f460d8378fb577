// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/OutlineClip.h"

#include <QPolygonF>

namespace quorvane {

namespace {

/// One side of the rectangle: points with sign * coordinate <= limit are inside.
struct Side {
  bool vertical;
  double sign;
  double limit;

  [[nodiscard]] double beyond(QPointF point) const { return sign * (vertical ? point.x() : point.y()) - limit; }
};

/// Sutherland and Hodgman's step: the polygon cut off at one side.
QPolygonF cutOff(const QPolygonF& polygon, const Side& side) {
  QPolygonF result;
  for (qsizetype i = 0; i < polygon.size(); ++i) {
    const QPointF from = polygon[i];
    const QPointF to = polygon[(i + 1) % polygon.size()];
    const double fromBeyond = side.beyond(from);
    const double toBeyond = side.beyond(to);
    if (fromBeyond <= 0) result += from;
    if ((fromBeyond < 0 && toBeyond > 0) || (fromBeyond > 0 && toBeyond < 0)) {
      QPointF crossing = from + (to - from) * (fromBeyond / (fromBeyond - toBeyond));
      // Exactly on the side, whatever the rounding of a far-away point did.
      (side.vertical ? crossing.rx() : crossing.ry()) = side.sign * side.limit;
      result += crossing;
    }
  }
  return result;
}

}  // namespace

QPainterPath clippedOutline(const QPainterPath& path, const QRectF& rect) {
  QPainterPath result;
  result.setFillRule(Qt::WindingFill);
  for (QPolygonF polygon : path.toSubpathPolygons()) {
    for (const Side& side : {Side{true, -1, -rect.left()}, Side{true, 1, rect.right()}, Side{false, -1, -rect.top()},
                             Side{false, 1, rect.bottom()}}) {
      polygon = cutOff(polygon, side);
    }
    if (polygon.size() < 3) continue;
    result.addPolygon(polygon);
    result.closeSubpath();
  }
  return result;
}

}  // namespace quorvane
