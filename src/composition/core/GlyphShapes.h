// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QGlyphRun>
#include <QImage>
#include <QPainterPath>
#include <QTransform>
#include <vector>

namespace quorvane {

/// Glyphs ready to be drawn on a grid of pixels (y downwards): outlines and colour pictures, already transformed.
/// Outlines are filled at their exact places, never through a cache of glyph bitmaps, so that text is as sharp sheared
/// and turned as upright.
class GlyphShapes {
 public:
  /// Adds a run's glyphs, save those that surely draw nothing in `visible` (pixels).
  void add(const QGlyphRun& run, const QTransform& toPixels, const QRectF& visible);

  [[nodiscard]] bool isEmpty() const { return _outlines.empty() && _pictures.empty(); }
  /// Encloses all that is drawn, in pixels.
  [[nodiscard]] QRectF bounds() const { return _bounds; }
  /// Draws what falls into the picture (ARGB32_Premultiplied), whose top left lies at `topLeft`, with an opaque
  /// `color`; colour pictures keep their own.
  void paint(QImage& image, QPointF topLeft, const QColor& color) const;

 private:
  struct Outline {
    QPainterPath path;
    QRectF box;
  };
  struct Picture {
    QImage image;
    QTransform toPixels;
    QRectF box;
  };

  void addOutlines(const QGlyphRun& run, const QTransform& toPixels);
  void addPictures(const QGlyphRun& run, const QTransform& toPixels);

  std::vector<Outline> _outlines;
  std::vector<Picture> _pictures;
  QRectF _bounds;
};

}  // namespace quorvane
