// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/OverlayRenderer.h"

#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>

#include "composition/core/ComposedGrid.h"
#include "composition/core/Emblems.h"
#include "composition/core/GlyphShapes.h"
#include "composition/core/LayerBlending.h"
#include "composition/core/TextBlock.h"
#include "imaging/Resampler.h"
#include "imaging/Tint.h"

namespace quorvane {

namespace {

constexpr float largestSize = 1000;
constexpr float farthest = 1e5F;
// Drawings up to this many pixels stand on whole ones, or their edges would be smeared.
constexpr double snappedPixels = 40;
// Pixels of the picture that its shade is found from.
constexpr int groundPixels = 64;
// Grounds lighter than this get a darker shade.
constexpr float lightGround = 0.5F;

QRectF snapped(const QRectF& square) {
  const double side = std::max(1.0, std::round(square.width()));
  return {std::round(square.center().x() - side / 2), std::round(square.center().y() - side / 2), side, side};
}

QImage transparent(QSize size) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  return image;
}

LabelLayer emblemLayer(const OverlayEmblem& emblem, const QRectF& square, const QRect& shown, const QColor& color) {
  QSvgRenderer drawing(emblemDrawing(emblem.name, square.width()));
  if (!drawing.isValid()) return {};
  LabelLayer layer{transparent(shown.size()), shown.topLeft()};
  QPainter painter(&layer.pixels);
  painter.setRenderHint(QPainter::Antialiasing);
  drawing.render(&painter, square.translated(-shown.topLeft()));
  // Whatever it was drawn in, its shape is what counts.
  painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
  painter.fillRect(layer.pixels.rect(), color);
  return layer;
}

LabelLayer emojiLayer(const OverlayEmoji& emoji, const QRectF& square, const QRect& shown, const QColor& color) {
  constexpr double measured = 100;
  LabelFont font = systemFont(measured);
  font.style = QStringLiteral("Bold");
  const auto runs = TextBlock(emoji.text, font).glyphs(measured, 0);
  const auto shapesThrough = [&](const QTransform& transform) {
    GlyphShapes shapes;
    constexpr double everything = 1e6;
    for (const TextBlock::Glyphs& glyphs : runs)
      shapes.add(glyphs.run, glyphs.toBlock * transform, {-everything, -everything, 2 * everything, 2 * everything});
    return shapes;
  };
  // What is drawn of it fills the square, whatever room the font gives it.
  const QTransform upright = QTransform::fromScale(1, -1);
  const QRectF bounds = shapesThrough(upright).bounds();
  if (bounds.isEmpty()) return {};
  const double scale = square.width() / std::max(bounds.width(), bounds.height());
  const QTransform placed = upright * QTransform::fromTranslate(-bounds.center().x(), -bounds.center().y()) *
                            QTransform::fromScale(scale, scale) *
                            QTransform::fromTranslate(square.center().x(), square.center().y());
  LabelLayer layer{transparent(shown.size()), shown.topLeft()};
  QColor opaque = color;
  opaque.setAlphaF(1);
  shapesThrough(placed).paint(layer.pixels, layer.topLeft, opaque);
  if (color.alpha() < 255) {
    QPainter painter(&layer.pixels);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(layer.pixels.rect(), QColor(0, 0, 0, color.alpha()));
  }
  return layer;
}

LabelLayer pictureLayer(const OverlayPicture& picture, const QRectF& square, const QRect& shown) {
  const auto bitmap = picture.image().bitmapRepresentation();
  if (!bitmap || bitmap->pixelsWide() <= 0 || bitmap->pixelsHigh() <= 0) return {};
  const QSizeF size = QSizeF(bitmap->pixelsWide(), bitmap->pixelsHigh()).scaled(square.size(), Qt::KeepAspectRatio);
  const QPointF corner = square.center() - QPointF(size.width(), size.height()) / 2 - shown.topLeft();
  auto drawn =
      BitmapImageRep::bitmapImageRepWithSize({static_cast<float>(shown.width()), static_cast<float>(shown.height())});
  drawResampled(*bitmap, drawn, {corner.x(), corner.y(), size.width(), size.height()}, ImageInterpolation::High);
  return {drawn.toImage(), shown.topLeft()};
}

}  // namespace

QRectF OverlayRenderer::square(float baseWidth, const QTransform& toPixels) const {
  const float scale = canvasScale(baseWidth);
  const bool isSomewhere = std::abs(_overlay.center.x) <= farthest && std::abs(_overlay.center.y) <= farthest;
  if (!isSomewhere || !(_overlay.size > 0 && _overlay.size <= largestSize) || !(scale > 0)) return {};
  const double side = static_cast<double>(_overlay.size * scale);
  const QPointF center(_overlay.center.x * scale, _overlay.center.y * scale);
  const QRectF square = toPixels.mapRect(QRectF(center - QPointF(side, side) / 2, QSizeF(side, side)));
  return square.width() <= snappedPixels ? snapped(square) : square;
}

LabelLayer OverlayRenderer::layer(float baseWidth, const QTransform& toPixels, const QRect& visible,
                                  const QColor& color) const {
  const QRectF box = square(baseWidth, toPixels);
  const QRect shown = (box & QRectF(visible)).toAlignedRect() & visible;
  if (box.isEmpty() || shown.isEmpty()) return {};
  if (const auto* emblem = std::get_if<OverlayEmblem>(&_overlay.drawing))
    return emblemLayer(*emblem, box, shown, color);
  if (const auto* emoji = std::get_if<OverlayEmoji>(&_overlay.drawing)) return emojiLayer(*emoji, box, shown, color);
  if (const auto* picture = std::get_if<OverlayPicture>(&_overlay.drawing)) return pictureLayer(*picture, box, shown);
  return {};
}

QColor OverlayRenderer::colorOn(const Image& base) const {
  if (_overlay.color) return _overlay.color->toRgb();
  const BitmapImageRep ground = base.rendered(groundPixels, groundPixels);
  const Size size = base.size();
  const ComposedGrid grid = ComposedGrid::forSize(size, groundPixels / static_cast<double>(std::max(size.width, 1.0F)));
  const QRectF box = grid.isEmpty() ? QRectF() : square(size.width, grid.toPixels({}));
  const QRect under = box.toAlignedRect() & QRect(0, 0, groundPixels, groundPixels);
  BitmapImageRep below =
      BitmapImageRep::bitmapImageRepWithSize({static_cast<float>(under.width()), static_cast<float>(under.height())});
  if (!under.isEmpty())
    drawResampled(ground, below, {-under.x() * 1.0, -under.y() * 1.0, groundPixels, groundPixels},
                  ImageInterpolation::None);
  const auto isSeen = [](const BitmapImageRep& bitmap) {
    const ByteView bytes = bitmap.bitmapData();
    for (std::size_t at = 3; at < bytes.size(); at += 4)
      if (bytes[at] > 0) return true;
    return false;
  };
  OkLab color = BodyColor::of(isSeen(below) ? below : ground).color;
  const float lightness = color.lightness;
  color.lightness = lightness > lightGround ? lightness * 0.62F : lightness + (1 - lightness) * 0.5F;
  // In the dark the same chroma looks stronger.
  if (lightness > lightGround) color = {color.lightness, color.a * 0.8F, color.b * 0.8F};
  return colorOf(color);
}

double OverlayRenderer::drawnOpacity() const {
  // Written so that what is not a number is not drawn.
  return _overlay.opacity > 0 ? std::min(_overlay.opacity, 1.0F) : 0;
}

Image OverlayRenderer::iconWithBase(const Image& base) const {
  const Size size = base.size();
  const ComposedGrid grid = ComposedGrid::forBase(base);
  if (grid.isEmpty()) return Image(size);
  BitmapImageRep icon = base.rendered(grid.pixelsWide, grid.pixelsHigh);
  icon.setSize(size);
  const QColor color = _overlay.takesColor() ? colorOn(base) : QColor();
  blend(layer(size.width, grid.toPixels({}), {0, 0, grid.pixelsWide, grid.pixelsHigh}, color), drawnOpacity(), icon);
  return Image::imageWithBitmapImageRep(icon);
}

}  // namespace quorvane
