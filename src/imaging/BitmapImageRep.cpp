// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/BitmapImageRep.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstring>

#include "foundation/base/Limits.h"
#include "imaging/Coordinates.h"

namespace quorvane {

namespace {

bool isSampleDepth(int bits) {
  return bits == 1 || bits == 2 || bits == 4 || bits == 8 || bits == 16;
}

/// The layout with every "as many as needed" filled in; nullopt when it contradicts itself or is over the limits.
std::optional<BitmapLayout> completed(BitmapLayout layout) {
  if (layout.pixelsWide < 1 || layout.pixelsHigh < 1 || layout.pixelsWide > limits::picturePixels ||
      layout.pixelsHigh > limits::picturePixels ||
      std::int64_t{layout.pixelsWide} * layout.pixelsHigh > limits::pictureArea)
    return std::nullopt;
  if (!isSampleDepth(layout.bitsPerSample) || layout.samplesPerPixel < 1 || layout.samplesPerPixel > 4)
    return std::nullopt;
  if (layout.hasAlpha != (layout.samplesPerPixel % 2 == 0) || (layout.alphaFirst && !layout.hasAlpha))
    return std::nullopt;

  const int needed = layout.isPlanar ? layout.bitsPerSample : layout.bitsPerSample * layout.samplesPerPixel;
  if (layout.bitsPerPixel == 0) layout.bitsPerPixel = needed;
  if (layout.bitsPerPixel < needed || layout.bitsPerPixel > 64) return std::nullopt;
  if (layout.isPlanar && layout.bitsPerPixel != needed) return std::nullopt;
  if (layout.bitsPerSample >= 8 && layout.bitsPerPixel % 8 != 0) return std::nullopt;

  const std::int64_t rowBits = std::int64_t{layout.pixelsWide} * layout.bitsPerPixel;
  const auto rowBytes = static_cast<int>((rowBits + 7) / 8);
  if (layout.bytesPerRow == 0) layout.bytesPerRow = rowBytes;
  // Room to align rows, not to smuggle an allocation past the limits.
  if (layout.bytesPerRow < rowBytes || layout.bytesPerRow > rowBytes + 4096) return std::nullopt;
  return layout;
}

std::size_t byteCount(const BitmapLayout& layout) {
  const std::size_t plane = static_cast<std::size_t>(layout.bytesPerRow) * static_cast<std::size_t>(layout.pixelsHigh);
  return layout.isPlanar ? plane * static_cast<std::size_t>(layout.samplesPerPixel) : plane;
}

/// Cut to whole pixels; 0 for what is no size at all (also NaN) or cannot be one.
int wholePixels(float length) {
  return length >= 1 && length < static_cast<float>(limits::picturePixels) + 1 ? static_cast<int>(length) : 0;
}

}  // namespace

/// The painter works on a copy in the format that the drawing library is fastest in; unlockFocus() brings it back.
struct BitmapImageRep::Focus {
  QImage image;
  QPainter painter;
  int depth = 0;
};

BitmapImageRep::BitmapImageRep() : _pixels(std::make_shared<Bytes>()) {}
BitmapImageRep::BitmapImageRep(const BitmapImageRep& other)
    : _layout(other._layout), _size(other._size), _pixels(other._pixels) {}
BitmapImageRep::BitmapImageRep(BitmapImageRep&& other) noexcept = default;
BitmapImageRep& BitmapImageRep::operator=(BitmapImageRep&& other) noexcept = default;
BitmapImageRep::~BitmapImageRep() = default;

BitmapImageRep& BitmapImageRep::operator=(const BitmapImageRep& other) {
  if (this != &other) *this = BitmapImageRep(other);
  return *this;
}

std::optional<BitmapImageRep> BitmapImageRep::bitmapImageRepWithLayout(const BitmapLayout& layout) {
  const auto whole = completed(layout);
  if (!whole) return std::nullopt;
  return bitmapImageRepWithLayout(*whole, Bytes(byteCount(*whole)));
}

std::optional<BitmapImageRep> BitmapImageRep::bitmapImageRepWithLayout(const BitmapLayout& layout, Bytes pixels) {
  const auto whole = completed(layout);
  if (!whole || pixels.size() < byteCount(*whole)) return std::nullopt;
  pixels.resize(byteCount(*whole));
  BitmapImageRep bitmap;
  bitmap._layout = *whole;
  bitmap._size = {static_cast<float>(whole->pixelsWide), static_cast<float>(whole->pixelsHigh)};
  bitmap._pixels = std::make_shared<Bytes>(std::move(pixels));
  return bitmap;
}

BitmapImageRep BitmapImageRep::bitmapImageRepWithSize(Size size) {
  auto bitmap = bitmapImageRepWithLayout(BitmapLayout::rgba(wholePixels(size.width), wholePixels(size.height)));
  return bitmap ? std::move(*bitmap) : BitmapImageRep();
}

bool BitmapImageRep::isStandard() const {
  BitmapLayout wanted = BitmapLayout::rgba(_layout.pixelsWide, _layout.pixelsHigh);
  wanted.bytesPerRow = _layout.bytesPerRow;
  return _layout == wanted && _layout.bytesPerRow % 4 == 0;
}

ByteView BitmapImageRep::bitmapData() const {
  return _pixels ? ByteView(*_pixels) : ByteView();
}

const std::uint8_t* BitmapImageRep::row(int y) const {
  return _pixels->data() + static_cast<std::ptrdiff_t>(y) * _layout.bytesPerRow;
}

std::uint8_t* BitmapImageRep::mutableRow(int y) {
  if (_pixels.use_count() > 1) _pixels = std::make_shared<Bytes>(*_pixels);
  return _pixels->data() + static_cast<std::ptrdiff_t>(y) * _layout.bytesPerRow;
}

QPainter& BitmapImageRep::lockFocus() {
  if (!_focus) {
    if (!isStandard()) *this = toStandard();
    _focus = std::make_unique<Focus>();
    _focus->image = toImage();
    // A painter needs something to paint on, also when nothing of it is kept.
    if (_focus->image.isNull()) {
      _focus->image = QImage(1, 1, QImage::Format_ARGB32_Premultiplied);
      _focus->image.fill(Qt::transparent);
    }
    _focus->painter.begin(&_focus->image);
  }
  QPainter& painter = _focus->painter;
  painter.save();
  ++_focus->depth;
  painter.setTransform(flippedTransform(_layout.pixelsHigh));
  painter.setClipping(false);
  painter.setOpacity(1);
  painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  painter.setPen(QPen());
  painter.setBrush(QBrush());
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
  return painter;
}

void BitmapImageRep::unlockFocus() {
  if (!_focus) return;
  _focus->painter.restore();
  if (--_focus->depth > 0) return;
  _focus->painter.end();
  const QImage drawn = std::move(_focus->image).convertToFormat(QImage::Format_RGBA8888_Premultiplied);
  _focus.reset();
  for (int y = 0; y < _layout.pixelsHigh; ++y)
    std::memcpy(mutableRow(y), drawn.constScanLine(y), static_cast<std::size_t>(_layout.pixelsWide) * 4);
}

}  // namespace quorvane
