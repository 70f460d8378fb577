// SPDX-License-Identifier: GPL-3.0-or-later
// What the canvas draws over the picture.
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

#include "composition/core/LabelRenderer.h"
#include "composition/core/OverlayRenderer.h"
#include "composition/view/FolderView.h"

namespace quorvane {

namespace {

// How much of what the applied icon cuts off is still seen here.
constexpr double cutOffShare = 0.3;
// Labels nearer than this to the ground in lightness (0 to 1) would not be seen on it.
constexpr double leastLightness = 0.25;
constexpr int invitationGap = 8;
// Where the placeholder's drawing ends, from the top, as a share of its height.
constexpr double placeholderBottom = 104.0 / 128;

bool isLostOn(const QColor& ground, const std::optional<QColor>& color) {
  return std::abs(color.value_or(QColor(Qt::black)).lightnessF() - ground.lightnessF()) < leastLightness;
}

/// The parts of `rect` outside `hole`.
std::array<QRect, 4> around(const QRect& rect, const QRect& hole) {
  const QRect cut = rect & hole;
  if (cut.isEmpty()) return {rect};
  return {QRect(rect.topLeft(), QPoint(rect.right(), cut.top() - 1)),
          QRect(QPoint(rect.left(), cut.bottom() + 1), rect.bottomRight()),
          QRect(QPoint(rect.left(), cut.top()), QPoint(cut.left() - 1, cut.bottom())),
          QRect(QPoint(cut.right() + 1, cut.top()), QPoint(rect.right(), cut.bottom()))};
}

/// The whole look in one colour, without shadow.
LabelLook silhouette(LabelLook look, const QColor& color) {
  look.color = color;
  look.shadow.reset();
  return look;
}

void drawPart(QPainter& painter, const LabelLayer& layer, const QRect& part) {
  if (!part.isEmpty()) painter.drawImage(part.topLeft(), layer.pixels, part.translated(-layer.topLeft));
}

/// The edge at which the icon is cut off: a dashed hairline just outside of it, in the colour of text.
void drawEdge(QPainter& painter, const QRect& picture, const QColor& text, double pixelsPerLogical) {
  QColor color = text;
  color.setAlphaF(0.45F);
  const double line = std::max(1.0, std::round(pixelsPerLogical));
  QPen pen(color, line);
  pen.setDashPattern({3, 3});
  pen.setCapStyle(Qt::FlatCap);
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(picture).adjusted(-line / 2, -line / 2, line / 2, line / 2));
}

}  // namespace

void FolderView::drawRect(QPainter& painter) {
  ImageView::drawRect(painter);
  if (_showsPlaceholder) drawInvitation(painter);
  _drawnDensity = pixelsPerLogicalPixel(painter);
  drawOverlay(painter);
  drawLabel(painter);
  drawOverlayFrame(painter);
}

void FolderView::drawOverlay(QPainter& painter) {
  if (!hasOverlay() || !image()) {
    _drawnOverlay.reset();
    return;
  }
  const IconOverlay& overlay = *_composition.overlay();
  const OverlayRenderer renderer(overlay);
  const PixelGrid grid = imageGrid(painter);
  const QRect picture = grid.pictureRect();
  const bool isKnown = _drawnOverlay && _drawnOverlay->overlay == overlay && _drawnOverlay->toPixels == grid.toPixels &&
                       _drawnOverlay->ground.isSameAs(*image());
  if (!isKnown) {
    // A label's room beyond the picture is enough for an overlay's.
    const QRect room = QRectF(0, 0, width() * _drawnDensity, height() * _drawnDensity).toAlignedRect();
    const QColor color = overlay.takesColor() ? renderer.colorOn(*image()) : QColor();
    _drawnOverlay = {overlay, *image(), grid.toPixels,
                     renderer.layer(imageSize().width, grid.toPixels, room | picture, color)};
  }
  const LabelLayer& layer = _drawnOverlay->layer;

  painter.save();
  enterPixels(painter);
  if (!layer.pixels.isNull()) {
    const QRect whole(layer.topLeft, layer.pixels.size());
    painter.setOpacity(renderer.drawnOpacity());
    drawPart(painter, layer, whole & picture);
    painter.setOpacity(renderer.drawnOpacity() * cutOffShare);
    for (const QRect& part : around(whole, picture)) drawPart(painter, layer, part);
    painter.setOpacity(1);
    if (!picture.contains(whole)) drawEdge(painter, picture, palette().color(QPalette::Text), _drawnDensity);
  }
  painter.restore();
}

void FolderView::drawOverlayFrame(QPainter& painter) const {
  if (!_overlaySelected || !_drawnOverlay || !(hasFocus() || _overlayDrag)) return;
  painter.save();
  enterPixels(painter);
  const double line = std::max(1.0, std::round(_drawnDensity));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::Highlight), 1.5 * line));
  painter.setBrush(Qt::NoBrush);
  const QRectF square = OverlayRenderer(_drawnOverlay->overlay).square(imageSize().width, _drawnOverlay->toPixels);
  painter.drawRoundedRect(square.adjusted(-line, -line, line, line), 4 * line, 4 * line);
  painter.restore();
}

void FolderView::drawLabel(QPainter& painter) {
  _drawnLabel = {};
  if (!label() || label()->isEmpty()) return;
  const LabelLook look = _composition.look();
  const PixelGrid grid = imageGrid(painter);
  const double pixelsPerLogical = pixelsPerLogicalPixel(painter);
  const Point origin = _originForCenter(look.labelCenter, imageSize());
  const QTransform toPixels = QTransform::fromTranslate(origin.x, origin.y) * grid.toPixels;
  const PlacedLabel placed = _labels.placedLabel(*label(), look, imageSize(), toPixels);

  _drawnLabel = placed.layer;

  painter.save();
  enterPixels(painter);
  const QRect picture = grid.pictureRect();
  const QRect layer(placed.layer.topLeft, placed.layer.pixels.size());
  if (!placed.layer.pixels.isNull()) {
    const double opacity = LabelRenderer(look).drawnOpacity();
    painter.setOpacity(opacity);
    drawPart(painter, placed.layer, layer & picture);
    painter.setOpacity(1);
  }
  const bool passesEdge = !placed.ink.isEmpty() && !picture.contains(placed.ink);
  if (passesEdge) {
    // A white label would be lost on a white ground: its silhouette in the colour of text is not.
    LabelLayer cutOff = placed.layer;
    if (isLostOn(palette().color(QPalette::Base), look.color))
      cutOff =
          _silhouettes.placedLabel(*label(), silhouette(look, palette().color(QPalette::Text)), imageSize(), toPixels)
              .layer;
    painter.setOpacity(LabelRenderer(look).drawnOpacity() * cutOffShare);
    const QRect whole(cutOff.topLeft, cutOff.pixels.size());
    for (const QRect& part : around(whole, picture)) drawPart(painter, cutOff, part);
    painter.setOpacity(1);
  }
  if (hasMovableLabel() && (passesEdge || _dragging || _keysOrigin))
    drawEdge(painter, picture, palette().color(QPalette::Text), pixelsPerLogical);
  painter.restore();
}

void FolderView::drawInvitation(QPainter& painter) const {
  // Under the placeholder, where there is room for it at the language's length and the font's size.
  const double picture = static_cast<double>(imageSize().height) * magnification();
  const double top = (height() - picture) / 2 + picture * placeholderBottom + invitationGap * magnification();
  const QRectF room(invitationGap * 4, top, width() - invitationGap * 8, height() - top - invitationGap * 2);
  const QString text = tr("Drop a folder here");
  const QRectF needed = painter.boundingRect(room, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text);
  if (!room.contains(needed)) return;
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(room, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text);
}

}  // namespace quorvane
