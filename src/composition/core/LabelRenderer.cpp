// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/LabelRenderer.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "composition/core/ComposedGrid.h"
#include "composition/core/GlyphShapes.h"
#include "composition/core/LabelFitting.h"
#include "composition/core/LayerBlending.h"
#include "composition/core/TextShadow.h"

namespace quorvane {

namespace {

// A text drawn larger than this is nothing but edges, and its coordinates leave the drawing library's range.
constexpr double largestStretch = 1000;

/// True for a transform (of the text, in points) that leaves something to be seen.
bool isDrawable(const QTransform& transform) {
  for (const double entry : {transform.m11(), transform.m12(), transform.m21(), transform.m22()}) {
    if (!(std::abs(entry) <= largestStretch)) return false;
  }
  return std::isfinite(transform.dx()) && std::isfinite(transform.dy());
}

bool isFinite(const QRectF& rect) {
  return std::isfinite(rect.x()) && std::isfinite(rect.y()) && std::isfinite(rect.width()) &&
         std::isfinite(rect.height());
}

/// Draws the text over what is in the layer, with the alpha of its colour. Overlapping lines do not show through each
/// other: the text is of one piece.
void paintText(QImage& layer, QPoint topLeft, const GlyphShapes& shapes, const QColor& color) {
  QColor opaque = color.toRgb();
  opaque.setAlphaF(1);
  if (color.alpha() == 255) {
    shapes.paint(layer, topLeft, opaque);
    return;
  }
  QImage text(layer.size(), layer.format());
  text.fill(Qt::transparent);
  shapes.paint(text, topLeft, opaque);
  QPainter painter(&layer);
  painter.setOpacity(color.alphaF());
  painter.drawImage(QPoint(), text);
}

/// Cuts the layer off at the frame's edges, where these run through its outermost pixels.
void trim(LabelLayer& layer, const QRectF& frame) {
  const QRectF pixels = QRect(layer.topLeft, layer.pixels.size());
  QPainter painter(&layer.pixels);
  painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
  const auto keep = [&](const QRectF& pixelsAtEdge, double outside) {
    if (outside > 0) painter.fillRect(pixelsAtEdge, QColor::fromRgbF(0, 0, 0, static_cast<float>(1 - outside)));
  };
  const auto outside = [](double edge, double frameEdge) { return std::clamp(frameEdge - edge, 0.0, 1.0); };
  const double width = pixels.width();
  const double height = pixels.height();
  keep({0, 0, 1, height}, outside(pixels.left(), frame.left()));
  keep({width - 1, 0, 1, height}, outside(-pixels.right(), -frame.right()));
  keep({0, 0, width, 1}, outside(pixels.top(), frame.top()));
  keep({0, height - 1, width, 1}, outside(-pixels.bottom(), -frame.bottom()));
}

}  // namespace

Image LabelRenderer::_iconWithBase(const Image& base, const std::optional<QString>& label) const {
  const Size size = base.size();
  const ComposedGrid grid = ComposedGrid::forBase(base);
  if (grid.isEmpty()) return Image(size);
  BitmapImageRep icon = base.rendered(grid.pixelsWide, grid.pixelsHigh);
  icon.setSize(size);
  if (label) {
    const Point origin = _originForCenter(scaledLabelCenter(_look.labelCenter, size.width), size);
    blend(layerFromString(*label, size, grid.toPixels(origin), {0, 0, grid.pixelsWide, grid.pixelsHigh}),
          drawnOpacity(), icon);
  }
  return Image::imageWithBitmapImageRep(icon);
}

std::optional<Image> LabelRenderer::_imageFromString(const std::optional<QString>& string, Size size,
                                                     double density) const {
  if (!string) return std::nullopt;
  const ComposedGrid grid = ComposedGrid::forSize(size, density);
  if (grid.isEmpty()) return Image(size);
  BitmapImageRep text = BitmapImageRep::bitmapImageRepWithSize(
      {static_cast<float>(grid.pixelsWide), static_cast<float>(grid.pixelsHigh)});
  text.setSize(size);
  blend(layerFromString(*string, size, grid.toPixels({}), {0, 0, grid.pixelsWide, grid.pixelsHigh}), 1, text);
  return Image::imageWithBitmapImageRep(text);
}

LabelLayer LabelRenderer::layerFromString(const QString& string, Size size, const QTransform& toPixels,
                                          const QRect& visible) const {
  const QRectF frame = toPixels.mapRect(QRectF(0, 0, size.width, size.height));
  if (string.isEmpty() || !isFinite(frame)) return {};
  const QRectF shown = frame & QRectF(visible);
  if (shown.isEmpty()) return {};
  const QTransform transform = _transformCenteredAt({size.width * 0.5F, size.height * 0.5F});
  if (!isDrawable(transform)) return {};

  const auto [block, label] = fitLabel(string, _look, size);
  const TextAttributes& attributes = label.attributes;
  const std::optional<TextShadow> shadow = TextShadow::make(attributes.shadow, toPixels, frame);
  const QRectF sources = shadow ? shown | shadow->sourcesOf(shown) : shown;
  const QTransform blockToPixels = QTransform::fromTranslate((size.width - label.measured.width) * 0.5F,
                                                             (size.height - label.measured.height) * 0.5F) *
                                   transform * toPixels;
  GlyphShapes shapes;
  for (const TextBlock::Glyphs& glyphs : block.glyphs(attributes.font.size, attributes.maximumLineHeight)) {
    shapes.add(glyphs.run, glyphs.toBlock * blockToPixels, sources);
  }
  if (shapes.isEmpty()) return {};

  const QRectF drawn = shadow ? shapes.bounds() | shadow->reachOf(shapes.bounds()) : shapes.bounds();
  const QRect layerRect = (drawn & shown).toAlignedRect();
  if (layerRect.isEmpty()) return {};
  LabelLayer layer{QImage(layerRect.size(), QImage::Format_ARGB32_Premultiplied), layerRect.topLeft()};
  layer.pixels.fill(Qt::transparent);
  if (shadow) shadow->paint(layer.pixels, layerRect.topLeft(), shapes, attributes.color.alphaF());
  paintText(layer.pixels, layerRect.topLeft(), shapes, attributes.color);
  trim(layer, frame);
  return layer;
}

QTransform LabelRenderer::_transformCenteredAt(Point center) const {
  return _shearTransformByFactor(_look.shearFactor, center) * _rotationTransformByDegrees(_look.rotation, center);
}

double LabelRenderer::drawnOpacity() const {
  // Written so that what is not a number is not drawn.
  return _look.opacity > 0 ? std::min(_look.opacity, 1.0F) : 0;
}

}  // namespace quorvane
