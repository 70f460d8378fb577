// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <QString>
#include <QTransform>
#include <optional>
#include <vector>

#include "composition/core/LabelRenderer.h"

namespace quorvane {

/// A label's layer, drawn whole, and the part of it that is more than a trace of shadow (both in pixels of one grid).
struct PlacedLabel {
  LabelLayer layer;
  QRect ink;
};

/// Draws labels on a grid of pixels and keeps what it drew while only the place changes. Places are rounded to 1/64
/// pixel, which is as fine as outlines are filled; a label moved by whole pixels is the very same layer.
class LabelCache {
 public:
  /// The whole text image of that size as LabelRenderer::layerFromString() draws it through `toPixels` (scales and
  /// moves points to pixels and turns y downwards). Nothing when there is nothing to be seen, or it lies out of all
  /// sight.
  [[nodiscard]] PlacedLabel placedLabel(const QString& text, const LabelLook& look, Size size,
                                        const QTransform& toPixels);
  /// Layers drawn so far: what the cache is judged by.
  [[nodiscard]] int drawnCount() const { return _drawnCount; }

 private:
  struct Drawn {
    QPoint fraction;  ///< in 1/64 pixels
    PlacedLabel label;
  };
  // What the kept layers are of; the look without place and opacity, which do not change them.
  struct Subject {
    QString text;
    LabelLook look;
    Size size;
    double scaleX = 0;
    double scaleY = 0;
    bool operator==(const Subject&) const = default;
  };

  std::optional<Subject> _subject;
  std::vector<Drawn> _drawn;
  int _drawnCount = 0;
};

}  // namespace quorvane
