// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/TextShadow.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "composition/core/ShadowBlur.h"
#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

// Past this many pixels no shadow falls into any picture that we draw.
constexpr double farthestOffset = 1e6;

/// The tint at each alpha, premultiplied.
std::array<QRgb, 256> tints(const QColor& color, double alpha) {
  const QColor rgb = color.toRgb();
  std::array<QRgb, 256> table{};
  for (std::size_t i = 0; i < table.size(); ++i) {
    const auto tintAlpha = static_cast<int>(std::lround(static_cast<double>(i) * alpha));
    table[i] = qPremultiply(qRgba(rgb.red(), rgb.green(), rgb.blue(), tintAlpha));
  }
  return table;
}

}  // namespace

std::optional<TextShadow> TextShadow::make(const std::optional<LabelShadow>& shadow, const QTransform& toPixels,
                                           const QRectF& frame) {
  if (!shadow || shadow->color.alpha() == 0) return std::nullopt;
  TextShadow result;
  // The vertical scale turns upwards into downwards.
  result._offset = {shadow->offsetX * toPixels.m11(), shadow->offsetY * toPixels.m22()};
  if (!(std::abs(result._offset.x()) < farthestOffset && std::abs(result._offset.y()) < farthestOffset)) {
    return std::nullopt;
  }
  const double density = std::sqrt(std::abs(toPixels.m11() * toPixels.m22()));
  const double radius = shadow->blurRadius > 0 ? shadow->blurRadius * density : 0;
  result._sigma = std::min({radius, frame.width() / 2, double{limits::composedPixels} / 2}) / 2;
  result._reach = AlphaPlane::blurReach(result._sigma) + 1;
  result._color = shadow->color;
  return result;
}

QRectF TextShadow::sourcesOf(const QRectF& rect) const {
  return rect.translated(-_offset).adjusted(-_reach, -_reach, _reach, _reach);
}

QRectF TextShadow::reachOf(const QRectF& rect) const {
  return rect.translated(_offset).adjusted(-_reach, -_reach, _reach, _reach);
}

void TextShadow::paint(QImage& layer, QPoint topLeft, const GlyphShapes& shapes, double textAlpha) const {
  const QRectF layerRect = QRect(topLeft, layer.size());
  const QRect target = (layerRect & reachOf(shapes.bounds())).toAlignedRect();
  if (target.isEmpty()) return;
  // The plane holds the shadow's place in the layer and, around it, all that blurs into it.
  const QRectF sources =
      shapes.bounds().translated(_offset) & QRectF(target).adjusted(-_reach, -_reach, _reach, _reach);
  const QRect plane = (QRectF(target) | sources).toAlignedRect();
  QImage text(plane.size(), QImage::Format_ARGB32_Premultiplied);
  text.fill(Qt::transparent);
  shapes.paint(text, plane.topLeft() - _offset, Qt::black);
  AlphaPlane alpha(text);
  alpha.blur(_sigma);

  const std::array<QRgb, 256> table = tints(_color, _color.alphaF() * textAlpha);
  for (int y = target.top(); y <= target.bottom(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(layer.scanLine(y - topLeft.y())) - topLeft.x();
    for (int x = target.left(); x <= target.right(); ++x)
      line[x] = table[alpha.alpha(x - plane.left(), y - plane.top())];
  }
}

}  // namespace quorvane
