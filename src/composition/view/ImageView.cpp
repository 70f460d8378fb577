// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/view/ImageView.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "imaging/Resampler.h"

namespace quorvane {

namespace {

constexpr double cornerRadius = 10;
constexpr double ringWidth = 2;
constexpr int iconSide = 128;
// Around the icon, in logical pixels whatever the magnification: room to drag a label past the edge.
constexpr int margin = 40;
constexpr int smallestMargin = 16;

QColor withAlpha(QColor color, double alpha) {
  color.setAlphaF(static_cast<float>(alpha));
  return color;
}

/// The whole image at that many pixels, which need not be whole.
QImage resampled(const Image& image, QSizeF pixels) {
  const int wide = static_cast<int>(std::ceil(pixels.width()));
  const int high = static_cast<int>(std::ceil(pixels.height()));
  const auto source = image.bitmapForPixels(wide, high);
  auto result = BitmapImageRep::bitmapImageRepWithSize({static_cast<float>(wide), static_cast<float>(high)});
  if (!source || result.pixelsWide() == 0) return {};
  drawResampled(*source, result, {0, 0, pixels.width(), pixels.height()}, ImageInterpolation::High);
  return result.toImage();
}

}  // namespace

ImageView::ImageView(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ImageView::setImage(std::optional<Image> image) {
  _image = std::move(image);
  update();
}

void ImageView::setMagnification(int magnification) {
  const int used = std::clamp(magnification, 1, largestMagnification);
  if (used == _magnification) return;
  _magnification = used;
  updateGeometry();
  update();
  Q_EMIT magnificationChanged(used);
}

Size ImageView::bounds() const {
  const auto scale = static_cast<float>(_magnification);
  return {static_cast<float>(width()) / scale, static_cast<float>(height()) / scale};
}

Point ImageView::_imageOrigin() const {
  if (!_image) return {};
  const Size view = bounds();
  const Size size = _image->size();
  return {(view.width - size.width) * 0.5F, (view.height - size.height) * 0.5F};
}

Point ImageView::_translatePointWrtBounds(Point point) const {
  const Point origin = _imageOrigin();
  return {point.x + origin.x, point.y + origin.y};
}

QSize ImageView::sizeHint() const {
  const int side = iconSide * _magnification + 2 * margin;
  return {side, side};
}

QSize ImageView::minimumSizeHint() const {
  const int side = iconSide * _magnification + 2 * smallestMargin;
  return {side, side};
}

PixelGrid ImageView::imageGrid(const QPainter& painter) const {
  return pixelGrid(_imageOrigin(), imageSize(), height(), _magnification, pixelsPerLogicalPixel(painter));
}

void ImageView::setHighlighted(bool highlighted) {
  if (highlighted == _highlighted) return;
  _highlighted = highlighted;
  update();
}

void ImageView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  drawRect(painter);
}

void ImageView::drawRect(QPainter& painter) {
  drawFrame(painter);
  drawPicture(painter);
}

void ImageView::drawFrame(QPainter& painter) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor accent = palette().color(QPalette::Highlight);
  const bool ring = hasFocus() || _highlighted;
  // The whole line lies within the widget.
  const double line = ring ? ringWidth : 1;
  const QRectF card = QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2);
  const double radius = cornerRadius - line / 2;
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::Base));
  painter.drawRoundedRect(card, radius, radius);
  if (_highlighted) {
    painter.setBrush(withAlpha(accent, 0.1));
    painter.drawRoundedRect(card, radius, radius);
  }
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(ring ? accent : withAlpha(palette().color(QPalette::Text), 0.16), line));
  painter.drawRoundedRect(card, radius, radius);
  painter.restore();
}

void ImageView::drawPicture(QPainter& painter) {
  if (!_image) return;
  const PixelGrid grid = imageGrid(painter);
  if (!(_drawn.image && _drawn.image->isSameAs(*_image) && _drawn.pixelSize == grid.picturePixels))
    _drawn = {_image, grid.picturePixels, resampled(*_image, grid.picturePixels)};
  painter.save();
  enterPixels(painter);
  painter.drawImage(grid.pictureTopLeft, _drawn.pixels);
  painter.restore();
}

}  // namespace quorvane
