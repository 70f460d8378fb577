// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QRect>
#include <QTransform>

#include "composition/core/IconOverlay.h"
#include "composition/core/LabelRenderer.h"
#include "imaging/Image.h"

namespace quorvane {

/// Draws overlays: functions of an overlay, the picture that it lies on and a grid of pixels. Vectors and characters
/// are drawn at the very pixels asked for, so that they are sharp at every size. Characters need a QGuiApplication.
///
/// Looks come from outside: an overlay that lies nowhere, or is not of a size between 0 and a thousand units, is not
/// drawn.
class OverlayRenderer {
 public:
  explicit OverlayRenderer(IconOverlay overlay) : _overlay(std::move(overlay)) {}

  /// The picture with the overlay on it, as large as before, of the pixels that LabelRenderer::_iconWithBase() takes.
  [[nodiscard]] Image iconWithBase(const Image& base) const;

  /// As much of the overlay as shows in `visible`, without its opacity. `toPixels` scales and moves points of a base of
  /// `baseWidth` points (origin at its bottom left, y upwards) to pixels and turns y downwards.
  [[nodiscard]] LabelLayer layer(float baseWidth, const QTransform& toPixels, const QRect& visible,
                                 const QColor& color) const;

  /// The overlay's own colour; else a shade of what it lies on, darker or lighter, whichever can be told from it.
  [[nodiscard]] QColor colorOn(const Image& base) const;

  /// Within 0 to 1.
  [[nodiscard]] double drawnOpacity() const;

  /// The overlay's square in pixels; empty when it cannot be drawn.
  [[nodiscard]] QRectF square(float baseWidth, const QTransform& toPixels) const;

 private:
  IconOverlay _overlay;
};

}  // namespace quorvane
