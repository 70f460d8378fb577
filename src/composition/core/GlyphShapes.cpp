// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/GlyphShapes.h"

#include <QPainter>
#include <QRawFont>
#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "composition/core/GlyphOutlines.h"
#include "composition/core/OutlineClip.h"

namespace quorvane {

namespace {

// How far from its position a glyph may draw, in ems. The widest known ones (a phrase in one glyph) take 8.
constexpr double glyphReach = 16;

// Pixels an em that colour pictures are taken at: the bitmaps of the usual font lie at this size, unscaled.
constexpr double pictureSize = 128;

// How far outside the picture an outline may reach before it is clipped.
constexpr double safeDistance = 2048;

// Edges of outlines times the rows they cover, which is what filling takes time by: 8 million take about a second. A
// long label on the largest picture has half of that; a thousand squeezed lines under a steep shear a hundred times as
// much.
constexpr double mostEdgeRows = 8e6;
// The same for colour pictures, whose time goes with their pixels: six times the largest picture.
constexpr double mostPicturePixels = 1e8;

/// The longest side of a unit square after the transform.
double largestScale(const QTransform& transform) {
  return std::hypot(transform.m11(), transform.m12()) + std::hypot(transform.m21(), transform.m22());
}

/// The run without the glyphs that are out of reach: a label of a thousand lines has but a few in the picture.
QGlyphRun visiblePart(const QGlyphRun& run, const QTransform& toPixels, const QRectF& visible) {
  const double reach = glyphReach * run.rawFont().pixelSize() * largestScale(toPixels);
  const QRectF reachable = visible.adjusted(-reach, -reach, reach, reach);
  QList<quint32> indexes;
  QList<QPointF> positions;
  const QList<quint32> allIndexes = run.glyphIndexes();
  const QList<QPointF> allPositions = run.positions();
  for (qsizetype i = 0; i < allIndexes.size(); ++i) {
    if (!reachable.contains(toPixels.map(allPositions[i]))) continue;
    indexes.append(allIndexes[i]);
    positions.append(allPositions[i]);
  }
  QGlyphRun part;
  part.setRawFont(run.rawFont());
  part.setGlyphIndexes(indexes);
  part.setPositions(positions);
  return part;
}

/// A colour glyph at a size fit for drawing.
struct GlyphPicture {
  QImage image;
  QTransform toGlyph;  ///< from the image's pixels to the run's coordinates, from the glyph's position

  /// `toPixels` is from the run's coordinates; only its scales matter.
  GlyphPicture(const QRawFont& runFont, quint32 glyph, const QTransform& toPixels);
};

GlyphPicture::GlyphPicture(const QRawFont& runFont, quint32 glyph, const QTransform& toPixels) {
  QRawFont font = runFont;
  font.setPixelSize(pictureSize);
  const QRectF box = font.boundingRect(glyph);
  if (box.isEmpty()) return;  // a space
  // A pixel of room round it keeps the edges smooth when it is turned.
  const QRectF place = QRectF(box.toAlignedRect().adjusted(-1, -1, 1, 1));
  image = QImage(place.size().toSize(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QGlyphRun single;
  single.setRawFont(font);
  single.setGlyphIndexes({glyph});
  single.setPositions({QPointF()});
  {
    QPainter painter(&image);
    painter.drawGlyphRun(-place.topLeft(), single);
  }
  const double scale = runFont.pixelSize() / pictureSize;
  toGlyph = QTransform::fromTranslate(place.x(), place.y()) * QTransform::fromScale(scale, scale);

  // Shrunk by averaging: what the painter does when it shrinks by more than half is to skip pixels.
  const QTransform drawn = toGlyph * toPixels;
  const double drawnWidth = std::hypot(drawn.m11(), drawn.m12()) * image.width();
  const double drawnHeight = std::hypot(drawn.m21(), drawn.m22()) * image.height();
  const QSize shrunk(static_cast<int>(std::clamp<double>(std::ceil(drawnWidth), 1, image.width())),
                     static_cast<int>(std::clamp<double>(std::ceil(drawnHeight), 1, image.height())));
  if (shrunk == image.size()) return;
  toGlyph = QTransform::fromScale(static_cast<double>(image.width()) / shrunk.width(),
                                  static_cast<double>(image.height()) / shrunk.height()) *
            toGlyph;
  image = image.scaled(shrunk, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

void GlyphShapes::add(const QGlyphRun& run, const QTransform& toPixels, const QRectF& visible) {
  const QGlyphRun part = visiblePart(run, toPixels, visible);
  if (part.isEmpty()) return;
  const std::size_t before = _outlines.size();
  addOutlines(part, toPixels);
  // Emoji fonts have bitmaps and no outlines at all.
  if (_outlines.size() == before) addPictures(part, toPixels);
}

void GlyphShapes::addOutlines(const QGlyphRun& run, const QTransform& toPixels) {
  for (const QPainterPath& outline : glyphOutlines(run)) {
    QPainterPath path = toPixels.map(outline);
    const QRectF box = path.controlPointRect();
    _bounds |= box;
    _outlines.push_back({std::move(path), box});
  }
}

void GlyphShapes::addPictures(const QGlyphRun& run, const QTransform& toPixels) {
  const QRawFont font = run.rawFont();
  const QList<quint32> indexes = run.glyphIndexes();
  const QList<QPointF> positions = run.positions();
  std::unordered_map<quint32, GlyphPicture> pictures;
  for (qsizetype i = 0; i < indexes.size(); ++i) {
    const GlyphPicture& picture = pictures.try_emplace(indexes[i], font, indexes[i], toPixels).first->second;
    if (picture.image.isNull()) continue;
    const QTransform transform =
        picture.toGlyph * QTransform::fromTranslate(positions[i].x(), positions[i].y()) * toPixels;
    const QRectF box = transform.mapRect(QRectF(QPointF(), QSizeF(picture.image.size())));
    _bounds |= box;
    _pictures.push_back({picture.image, transform, box});
  }
}

void GlyphShapes::paint(QImage& image, QPointF topLeft, const QColor& color) const {
  const QRectF target(topLeft, QSizeF(image.size()));
  const QRectF safe = target.adjusted(-safeDistance, -safeDistance, safeDistance, safeDistance);
  QPainter painter(&image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  const QTransform toImage = QTransform::fromTranslate(-topLeft.x(), -topLeft.y());
  painter.setTransform(toImage);
  double edgeRowsLeft = mostEdgeRows;
  for (const Outline& outline : _outlines) {
    const QRectF covered = outline.box & target;
    if (covered.isEmpty()) continue;
    edgeRowsLeft -= outline.path.elementCount() * covered.height();
    if (edgeRowsLeft < 0) break;
    painter.fillPath(safe.contains(outline.box) ? outline.path : clippedOutline(outline.path, safe), color);
  }
  double picturePixelsLeft = mostPicturePixels;
  for (const Picture& picture : _pictures) {
    const QRectF covered = picture.box & target;
    if (covered.isEmpty()) continue;
    picturePixelsLeft -= covered.width() * covered.height();
    if (picturePixelsLeft < 0) break;
    painter.setTransform(picture.toPixels * toImage);
    painter.drawImage(QPointF(), picture.image);
  }
}

}  // namespace quorvane
