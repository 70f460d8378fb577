// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QTransform>
#include <optional>

#include "composition/core/LabelGeometry.h"
#include "composition/core/LabelValues.h"
#include "imaging/Image.h"

namespace quorvane {

/// Part of a text image, as pixels of a grid (rows downwards).
struct LabelLayer {
  QImage pixels;   ///< ARGB32_Premultiplied; null when nothing of the text shows
  QPoint topLeft;  ///< where `pixels` lies on the grid
};

/// Draws labels: a function of a look, a text and a size. It caches nothing; every call draws anew. Text needs a
/// QGuiApplication in the process, but no display.
///
/// Two products: the *text image*, a transparent picture of the text fitted into a size, sheared and turned about its
/// centre, cut off at its own edges; and the *composed icon*, a base picture with a text image of the same size blended
/// onto it, centred on the label centre. Sizes are in points. Which font size fits is decided in points as well, so it
/// is the same at every density.
///
/// Looks come from outside and may hold anything. Opacity is drawn within 0 to 1. A text whose transform is not finite,
/// or stretches it more than a thousandfold, is not drawn, nor is one centred nowhere; a shadow not placed at finite
/// values is left out. Blurs are drawn up to a radius of half the picture's width.
class LabelRenderer {
 public:
  explicit LabelRenderer(LabelLook look) : _look(std::move(look)) {}

  /// The composed icon: as large as the base, with one bitmap of no fewer than 512 pixels a side and no fewer than the
  /// base's largest representation (as far as limits::composedPixels allows). No label: the base alone.
  /// A base without an area gives an image without a bitmap.
  [[nodiscard]] Image _iconWithBase(const Image& base, const std::optional<QString>& label) const;

  /// The text image, with one bitmap of size * density pixels. nullopt exactly for no string; an empty one gives a
  /// transparent image.
  [[nodiscard]] std::optional<Image> _imageFromString(const std::optional<QString>& string, Size size,
                                                      double density = 1) const;

  /// The text image drawn straight onto a grid of pixels, as much of it as shows in `visible`: the same as the text
  /// image blended there, but sharp at any place and density. `toPixels` scales and moves points of the text image
  /// (origin at its bottom left, y upwards) to pixels, and turns y downwards. The look's opacity is left to whoever
  /// blends the layer.
  [[nodiscard]] LabelLayer layerFromString(const QString& string, Size size, const QTransform& toPixels,
                                           const QRect& visible) const;

  /// Shear, then rotation, both about `center`.
  [[nodiscard]] QTransform _transformCenteredAt(Point center) const;

  /// The look's opacity as it is drawn: within 0 to 1.
  [[nodiscard]] double drawnOpacity() const;

 private:
  LabelLook _look;
};

}  // namespace quorvane
