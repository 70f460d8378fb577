// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/Image.h"

#include <QString>
#include <algorithm>
#include <mutex>

#include "imaging/Resampler.h"

namespace quorvane {

struct ImageRep::State {
  int pixelsWide = 0;
  int pixelsHigh = 0;
  Size size;
  mutable std::mutex mutex;  // copies of an image may be drawn by several threads
  Decoder decoder;           // empty once the outcome stands
  std::optional<BitmapImageRep> bitmap;
};

ImageRep::ImageRep(BitmapImageRep bitmap) : _state(std::make_shared<State>()) {
  _state->pixelsWide = bitmap.pixelsWide();
  _state->pixelsHigh = bitmap.pixelsHigh();
  _state->size = bitmap.size();
  _state->bitmap = std::move(bitmap);
}

ImageRep ImageRep::pending(int pixelsWide, int pixelsHigh, Size size, Decoder decoder) {
  ImageRep rep{BitmapImageRep()};
  rep._state->pixelsWide = pixelsWide;
  rep._state->pixelsHigh = pixelsHigh;
  rep._state->size = size;
  rep._state->bitmap.reset();
  rep._state->decoder = std::move(decoder);
  return rep;
}

int ImageRep::pixelsWide() const {
  return _state->pixelsWide;
}
int ImageRep::pixelsHigh() const {
  return _state->pixelsHigh;
}
Size ImageRep::size() const {
  return _state->size;
}

bool ImageRep::isPending() const {
  const std::lock_guard lock(_state->mutex);
  return static_cast<bool>(_state->decoder);
}

std::optional<BitmapImageRep> ImageRep::bitmap() const {
  const std::lock_guard lock(_state->mutex);
  if (_state->decoder) {
    // What the decoder holds (a whole file's bytes, often) is let go with it.
    const Decoder decoder = std::exchange(_state->decoder, nullptr);
    _state->bitmap = decoder();
    if (_state->bitmap) _state->bitmap->setSize(_state->size);
  }
  return _state->bitmap;
}

Image Image::imageWithBitmapImageRep(const BitmapImageRep& bitmap) {
  Image image(bitmap.size());
  image.addRepresentation(bitmap);
  return image;
}

std::optional<BitmapImageRep> Image::bitmapRepresentation() const {
  for (const ImageRep& rep : _representations)
    if (auto bitmap = rep.bitmap()) return bitmap;
  return std::nullopt;
}

bool Image::isSameAs(const Image& other) const {
  return _size == other._size && _scalesWhenResized == other._scalesWhenResized &&
         std::ranges::equal(_representations, other._representations,
                            [](const ImageRep& a, const ImageRep& b) { return a.isSameAs(b); });
}

std::optional<ImageRep> Image::bestRepresentation() const {
  if (_representations.empty()) return std::nullopt;
  return _representations.front();
}

std::optional<BitmapImageRep> Image::bitmapForPixels(int wide, int high) const {
  const auto area = [](const ImageRep& rep) { return std::int64_t{rep.pixelsWide()} * rep.pixelsHigh(); };
  const auto suffices = [&](const ImageRep& rep) { return rep.pixelsWide() >= wide && rep.pixelsHigh() >= high; };
  std::vector<ImageRep> candidates = _representations;
  std::stable_sort(candidates.begin(), candidates.end(), [&](const ImageRep& a, const ImageRep& b) {
    if (suffices(a) != suffices(b)) return suffices(a);
    return suffices(a) ? area(a) < area(b) : area(a) > area(b);
  });
  for (const ImageRep& rep : candidates)
    if (auto bitmap = rep.bitmap()) return bitmap;
  return std::nullopt;
}

Size Image::largestPixelSize() const {
  Size largest;
  for (const ImageRep& rep : _representations) {
    const Size size{static_cast<float>(rep.pixelsWide()), static_cast<float>(rep.pixelsHigh())};
    if (size.width * size.height > largest.width * largest.height) largest = size;
  }
  return largest;
}

std::string Image::sizeInfo() const {
  const auto number = [](float value) { return QString::number(value); };
  const auto text = [&](Size size) { return QStringLiteral("{%1, %2}").arg(number(size.width), number(size.height)); };
  const BitmapImageRep bitmap = bitmapRepresentation().value_or(BitmapImageRep());
  return QStringLiteral("image size=%1  rep size=%2  pixelsWide=%3")
      .arg(text(_size), text(bitmap.size()))
      .arg(bitmap.pixelsWide())
      .toStdString();
}

BitmapImageRep Image::rendered(int pixelsWide, int pixelsHigh, ImageInterpolation interpolation) const {
  auto result =
      BitmapImageRep::bitmapImageRepWithSize({static_cast<float>(pixelsWide), static_cast<float>(pixelsHigh)});
  if (const auto bitmap = bitmapForPixels(pixelsWide, pixelsHigh))
    drawResampled(*bitmap, result, {0, 0, static_cast<double>(pixelsWide), static_cast<double>(pixelsHigh)},
                  interpolation);
  return result;
}

}  // namespace quorvane
