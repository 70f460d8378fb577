// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/IconFamilyInternals.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "foundation/base/Log.h"
#include "iconfamily/format/ColorTables.h"
#include "imaging/Resampler.h"

namespace quorvane::internals {

namespace {

enum class Layout { Bits1, Gray8, Rgb24, Rgba32, Other };

Layout layoutOf(const BitmapImageRep& bitmap) {
  const BitmapLayout& layout = bitmap.layout();
  const auto is = [&](int bits, int samples, int pixelBits) {
    return layout.bitsPerSample == bits && layout.samplesPerPixel == samples && layout.bitsPerPixel == pixelBits;
  };
  if (is(1, 1, 1)) return Layout::Bits1;
  if (is(8, 1, 8)) return Layout::Gray8;
  if (is(8, 3, 24)) return Layout::Rgb24;
  if (is(8, 4, 32)) return Layout::Rgba32;
  return Layout::Other;
}

bool isSquareOf(const BitmapImageRep& bitmap, int n) {
  return bitmap.pixelsWide() == n && bitmap.pixelsHigh() == n;
}

/// The checks that the producers share, with their messages; `producer` is the operation's published name.
bool isReadable(const BitmapImageRep& bitmap, int n, const char* producer, bool logsDepth) {
  if (!isSquareOf(bitmap, n)) return false;
  const std::string prefix = std::string(producer) + "FromBitmapImageRep:requiredPixelSize: returning NULL due to ";
  if (bitmap.isPlanar()) {
    logMessage("iconfamily", prefix + "isPlanar == YES");
    return false;
  }
  if (logsDepth && bitmap.bitsPerSample() != 8) {
    logMessage("iconfamily", prefix + "bitsPerSample == " + std::to_string(bitmap.bitsPerSample()));
    return false;
  }
  return true;
}

std::size_t squareOf(int n) {
  return static_cast<std::size_t>(n) * static_cast<std::size_t>(n);
}

}  // namespace

std::optional<Image> resampleImage(const Image& image, int toIconWidth, ImageInterpolation interpolation) {
  // Measured in pixels: of an image with several representations, the one that serves this width best.
  const auto source = image.bitmapForPixels(toIconWidth, toIconWidth);
  if (!source || source->pixelsWide() < 1 || source->pixelsHigh() < 1) return std::nullopt;
  const auto width = static_cast<float>(source->pixelsWide());
  const auto height = static_cast<float>(source->pixelsHigh());
  const auto square = static_cast<float>(toIconWidth);

  // The products and quotients in single precision, the rounding in double.
  float newWidth = square;
  float newHeight = square;
  if (width >= height) {
    const float exact = height * square / width;
    newHeight = static_cast<float>(std::floor(static_cast<double>(exact) + 0.5));
  } else {
    const float exact = width * square / height;
    newWidth = static_cast<float>(std::floor(static_cast<double>(exact) + 0.5));
  }

  BitmapImageRep result = BitmapImageRep::bitmapImageRepWithSize({square, square});
  const PixelRect target{
      .x = (square - newWidth) * 0.5, .y = (square - newHeight) * 0.5, .width = newWidth, .height = newHeight};
  // An extreme aspect can round to no height at all; then nothing is drawn.
  if (target.width > 0 && target.height > 0) drawResampled(source->toStandard(), result, target, interpolation);
  return Image::imageWithBitmapImageRep(result);
}

std::optional<Bytes> get32BitDataFromBitmapImageRep(const BitmapImageRep& bitmapImageRep, int requiredPixelSize) {
  const int n = requiredPixelSize;
  if (!isReadable(bitmapImageRep, n, "get32BitData", false)) return std::nullopt;
  const Layout layout = layoutOf(bitmapImageRep);
  if (layout != Layout::Rgb24 && layout != Layout::Rgba32) return std::nullopt;

  Bytes argb(4 * squareOf(n));
  std::uint8_t* to = argb.data();
  for (int y = 0; y < n; ++y) {
    const std::uint8_t* from = bitmapImageRep.row(y);
    for (int x = 0; x < n; ++x, to += 4) {
      if (layout == Layout::Rgb24) {
        to[0] = 255;
        std::copy_n(from, 3, to + 1);
        from += 3;
        continue;
      }
      const std::uint8_t alpha = from[3];
      to[0] = alpha;
      if (alpha == 255) {
        std::copy_n(from, 3, to + 1);
      } else if (alpha != 0) {
        // Truncated, and cut to the low 8 bits, not clamped: a colour above its alpha wraps around. That is meant.
        const float factor = 255.0F / static_cast<float>(alpha);
        for (int i = 0; i < 3; ++i)
          to[i + 1] = static_cast<std::uint8_t>(static_cast<unsigned>(static_cast<float>(from[i]) * factor) & 0xFFU);
      }
      from += 4;
    }
  }
  return argb;
}

std::optional<Bytes> get8BitDataFromBitmapImageRep(const BitmapImageRep& bitmapImageRep, int requiredPixelSize) {
  const int n = requiredPixelSize;
  if (!isReadable(bitmapImageRep, n, "get8BitData", true)) return std::nullopt;
  const Layout layout = layoutOf(bitmapImageRep);
  if (layout != Layout::Rgb24 && layout != Layout::Rgba32) return std::nullopt;

  Bytes indexes;
  indexes.reserve(squareOf(n));
  const int step = layout == Layout::Rgb24 ? 3 : 4;
  for (int y = 0; y < n; ++y) {
    const std::uint8_t* from = bitmapImageRep.row(y);
    for (int x = 0; x < n; ++x, from += step) {
      // The samples as stored: premultiplied colour is not undone, alpha plays no part.
      indexes.push_back(nearestSystemColor(static_cast<float>(from[0]) / 255.0F, static_cast<float>(from[1]) / 255.0F,
                                           static_cast<float>(from[2]) / 255.0F));
    }
  }
  return indexes;
}

std::optional<Bytes> get8BitMaskFromBitmapImageRep(const BitmapImageRep& bitmapImageRep, int requiredPixelSize) {
  const int n = requiredPixelSize;
  if (!isReadable(bitmapImageRep, n, "get8BitMask", true)) return std::nullopt;
  const Layout layout = layoutOf(bitmapImageRep);
  if (layout == Layout::Rgb24) return Bytes(squareOf(n), 255);
  if (layout != Layout::Gray8 && layout != Layout::Rgba32) return std::nullopt;

  Bytes mask;
  mask.reserve(squareOf(n));
  for (int y = 0; y < n; ++y) {
    const std::uint8_t* from = bitmapImageRep.row(y);
    for (int x = 0; x < n; ++x) mask.push_back(layout == Layout::Gray8 ? from[x] : from[4 * x + 3]);
  }
  return mask;
}

std::optional<Bytes> get1BitMaskFromBitmapImageRep(const BitmapImageRep& bitmapImageRep, int requiredPixelSize) {
  const int n = requiredPixelSize;
  if (!isReadable(bitmapImageRep, n, "get1BitMask", false)) return std::nullopt;
  const Layout layout = layoutOf(bitmapImageRep);
  if (layout == Layout::Other || n % 8 != 0) return std::nullopt;
  const std::size_t half = squareOf(n) / 8;
  if (layout == Layout::Rgb24) return Bytes(2 * half, 0xFF);

  Bytes bits;
  bits.reserve(2 * half);
  for (int y = 0; y < n; ++y) {
    const std::uint8_t* from = bitmapImageRep.row(y);
    if (layout == Layout::Bits1) {
      bits.insert(bits.end(), from, from + n / 8);
      continue;
    }
    const int step = layout == Layout::Gray8 ? 1 : 4;
    for (int x = 0; x < n; x += 8) {
      unsigned byte = 0;
      // The first sample of a pixel: in RGBA that is red, not alpha. Opaque pixels without red are left out, as meant.
      for (int i = 0; i < 8; ++i) byte = byte << 1 | (from[step * (x + i)] != 0 ? 1U : 0U);
      bits.push_back(static_cast<std::uint8_t>(byte));
    }
  }
  bits.resize(half);
  bits.resize(2 * half);
  std::copy_n(bits.begin(), half, bits.begin() + static_cast<std::ptrdiff_t>(half));
  return bits;
}

}  // namespace quorvane::internals
