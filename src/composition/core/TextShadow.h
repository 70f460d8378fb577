// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QRectF>
#include <QTransform>
#include <optional>

#include "composition/core/GlyphShapes.h"
#include "composition/core/LabelValues.h"

namespace quorvane {

/// The shadow that glyphs cast on a grid of pixels (y downwards): their alpha, moved, blurred and tinted.
class TextShadow {
 public:
  /// From points to pixels by the scales of `toPixels`. None when there is no shadow to be seen: none given, a colour
  /// without alpha, an offset that is not finite or past all pictures. The blur radius is drawn up to half of the
  /// frame's width.
  static std::optional<TextShadow> make(const std::optional<LabelShadow>& shadow, const QTransform& toPixels,
                                        const QRectF& frame);

  /// Where glyphs have to be to cast shadow into `rect`.
  [[nodiscard]] QRectF sourcesOf(const QRectF& rect) const;
  /// Where glyphs in `rect` cast shadow.
  [[nodiscard]] QRectF reachOf(const QRectF& rect) const;

  /// Fills the layer (ARGB32_Premultiplied, whose top left lies at `topLeft`) with the shadow of the glyphs drawn with
  /// that alpha. Glyphs outside the layer cast theirs into it.
  void paint(QImage& layer, QPoint topLeft, const GlyphShapes& shapes, double textAlpha) const;

 private:
  QPointF _offset;
  double _sigma = 0;
  int _reach = 0;
  QColor _color;
};

}  // namespace quorvane
