// SPDX-License-Identifier: GPL-3.0-or-later
// Between layouts, and between our bitmaps and the drawing library's image.
#include <QColorSpace>
#include <algorithm>
#include <array>
#include <cstring>

#include "imaging/BitmapImageRep.h"
#include "imaging/ColorTransform.h"
#include "imaging/Premultiply.h"

namespace quorvane {

namespace {

/// Reads single samples of any layout as bytes.
class SampleReader {
 public:
  explicit SampleReader(const BitmapImageRep& bitmap) : _layout(bitmap.layout()) {
    const std::ptrdiff_t plane = static_cast<std::ptrdiff_t>(_layout.bytesPerRow) * _layout.pixelsHigh;
    for (int sample = 0; sample < _layout.samplesPerPixel; ++sample) {
      _planeOffset[static_cast<std::size_t>(sample)] = _layout.isPlanar ? sample * plane : 0;
      _bitOffset[static_cast<std::size_t>(sample)] = _layout.isPlanar ? 0 : sample * _layout.bitsPerSample;
    }
  }

  /// 16-bit samples lose their low byte, shallow ones are spread over 0 to 255.
  [[nodiscard]] unsigned sample(const std::uint8_t* row, int x, int index) const {
    const auto at = static_cast<std::size_t>(index);
    const std::int64_t bit = std::int64_t{x} * _layout.bitsPerPixel + _bitOffset[at];
    const std::uint8_t byte = row[_planeOffset[at] + bit / 8];
    if (_layout.bitsPerSample >= 8) return byte;
    const unsigned highest = (1U << _layout.bitsPerSample) - 1;
    // A pixel of an odd number of bits may lie across two bytes.
    const auto used = static_cast<int>(bit % 8) + _layout.bitsPerSample;
    unsigned value = byte;
    if (used > 8)
      value = (value << (used - 8)) | (row[_planeOffset[at] + bit / 8 + 1] >> (16 - used));
    else
      value >>= 8 - used;
    return (value & highest) * 255 / highest;
  }

 private:
  BitmapLayout _layout;
  std::array<std::ptrdiff_t, 4> _planeOffset{};
  std::array<int, 4> _bitOffset{};
};

void premultiplyRow(const std::uint8_t* from, std::uint8_t* to, int width) {
  for (int x = 0; x < width; ++x, from += 4, to += 4) {
    const unsigned alpha = from[3];
    to[0] = premultiplied(from[0], alpha);
    to[1] = premultiplied(from[1], alpha);
    to[2] = premultiplied(from[2], alpha);
    to[3] = from[3];
  }
}

/// The general way, pixel by pixel, into 8-bit RGBA premultiplied.
void convertRow(const SampleReader& reader, const BitmapLayout& layout, const std::uint8_t* from, std::uint8_t* to) {
  const bool isColor = layout.samplesPerPixel >= 3;
  const int first = layout.alphaFirst ? 1 : 0;
  const int alphaIndex = layout.alphaFirst ? 0 : layout.samplesPerPixel - 1;
  for (int x = 0; x < layout.pixelsWide; ++x, to += 4) {
    const unsigned alpha = layout.hasAlpha ? reader.sample(from, x, alphaIndex) : 255;
    for (int channel = 0; channel < 3; ++channel) {
      const unsigned color = reader.sample(from, x, isColor ? first + channel : first);
      to[channel] =
          layout.hasAlpha && !layout.isPremultiplied ? premultiplied(color, alpha) : static_cast<std::uint8_t>(color);
    }
    to[3] = static_cast<std::uint8_t>(alpha);
  }
}

/// Through the profile that the picture carries. `picture` is RGBA8888 or RGBA64, `bitmap` standard and of its size.
void convertRows(const QImage& picture, const QByteArray& profile, BitmapImageRep& bitmap) {
  const auto bytes = ByteView(reinterpret_cast<const std::uint8_t*>(profile.constData()), profile.size());
  // Grey pictures come as colours too; their profile, whose space stands behind 16 bytes, knows but the one sample.
  const bool isGrey = profile.mid(16, 4) == "GRAY";
  const bool isDeep = picture.format() == QImage::Format_RGBA64;
  const PixelFormat format{isGrey ? ColorModel::Grey : ColorModel::Rgb, isDeep ? 16 : 8, true};
  const ColorTransform transform(format, bytes);
  const auto sampleBytes = static_cast<std::size_t>(format.bitsPerSample / 8);
  const int width = picture.width();
  Bytes grey(isGrey ? static_cast<std::size_t>(width) * 2 * sampleBytes : 0);
  Bytes row(static_cast<std::size_t>(width) * 4);
  for (int y = 0; y < picture.height(); ++y) {
    const std::uint8_t* from = picture.constScanLine(y);
    for (std::size_t x = 0; isGrey && x < static_cast<std::size_t>(width); ++x) {
      std::memcpy(grey.data() + x * 2 * sampleBytes, from + x * 4 * sampleBytes, sampleBytes);
      std::memcpy(grey.data() + (x * 2 + 1) * sampleBytes, from + (x * 4 + 3) * sampleBytes, sampleBytes);
    }
    transform.convert(isGrey ? grey.data() : from, row.data(), width);
    premultiplyRow(row.data(), bitmap.mutableRow(y), width);
  }
}

}  // namespace

BitmapImageRep BitmapImageRep::toStandard() const {
  if (isStandard()) return *this;
  auto standard = bitmapImageRepWithLayout(BitmapLayout::rgba(_layout.pixelsWide, _layout.pixelsHigh));
  if (!standard) return {};
  standard->_size = _size;

  BitmapLayout notPremultiplied = BitmapLayout::rgba(_layout.pixelsWide, _layout.pixelsHigh);
  notPremultiplied.bytesPerRow = _layout.bytesPerRow;
  notPremultiplied.isPremultiplied = false;
  const bool onlyMultiply = _layout == notPremultiplied;
  const SampleReader reader(*this);
  std::uint8_t* to = standard->mutableRow(0);
  for (int y = 0; y < _layout.pixelsHigh; ++y, to += standard->_layout.bytesPerRow) {
    if (onlyMultiply)
      premultiplyRow(row(y), to, _layout.pixelsWide);
    else
      convertRow(reader, _layout, row(y), to);
  }
  return std::move(*standard);
}

QImage BitmapImageRep::toImage() const {
  if (_layout.pixelsWide == 0) return {};
  if (!isStandard()) return toStandard().toImage();
  const QImage view(_pixels->data(), _layout.pixelsWide, _layout.pixelsHigh, _layout.bytesPerRow,
                    QImage::Format_RGBA8888_Premultiplied);
  return view.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

std::optional<BitmapImageRep> BitmapImageRep::bitmapImageRepWithCGImageRef(const QImage& image) {
  if (image.isNull()) return std::nullopt;
  auto bitmap = bitmapImageRepWithLayout(BitmapLayout::rgba(image.width(), image.height()));
  if (!bitmap) return std::nullopt;

  const QColorSpace space = image.colorSpace();
  const QByteArray profile = space == QColorSpace(QColorSpace::SRgb) ? QByteArray() : space.iccProfile();
  QImage picture = image;
  if (!profile.isEmpty()) {
    // Palettes and grey levels are converted as plain colours, deep samples without losing their depth first.
    picture.convertTo(image.depth() > 32 ? QImage::Format_RGBA64 : QImage::Format_RGBA8888);
    if (picture.isNull()) return std::nullopt;
    convertRows(picture, profile, *bitmap);
    return bitmap;
  }
  picture.convertTo(QImage::Format_RGBA8888_Premultiplied);
  if (picture.isNull()) return std::nullopt;
  std::uint8_t* to = bitmap->mutableRow(0);
  for (int y = 0; y < picture.height(); ++y, to += bitmap->_layout.bytesPerRow)
    std::memcpy(to, picture.constScanLine(y), static_cast<std::size_t>(picture.width()) * 4);
  return bitmap;
}

}  // namespace quorvane
