// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>

#include "foundation/base/Bytes.h"

namespace quorvane {

/// What the colour samples of a pixel mean.
enum class ColorModel {
  Grey,       ///< 0 is black
  Rgb,        ///< red, green, blue
  LinearRgb,  ///< the same, proportional to light unless a profile says otherwise
  Lab,        ///< lightness 0 to the highest value; a and b around the middle
  Cmyk,       ///< 0 is full ink, the highest value none: as layered pictures and most JPEG files hold it
};

/// How pixels of a file lie in a row: interleaved samples of the machine's byte order.
struct PixelFormat {
  ColorModel model = ColorModel::Rgb;
  int bitsPerSample = 8;  ///< 8 or 16
  bool hasAlpha = false;  ///< one sample more, behind the colours, not multiplied into them

  [[nodiscard]] int colors() const { return model == ColorModel::Grey ? 1 : model == ColorModel::Cmyk ? 4 : 3; }
  [[nodiscard]] int samples() const { return colors() + (hasAlpha ? 1 : 0); }
};

/// Turns pixels of a file into ours: 8-bit RGBA in sRGB, not premultiplied (alpha 255 where there is none). Colours are
/// converted relative to white, with black kept black.
class ColorTransform {
 public:
  /// `profile` is the ICC profile that the file carries, or empty. One that is broken, over limits::profileBytes or of
  /// another colour model counts as none: then grey and RGB are taken for sRGB's, and inks for plain filters of light.
  ColorTransform(const PixelFormat& format, ByteView profile);
  ~ColorTransform();
  ColorTransform(ColorTransform&&) noexcept;
  ColorTransform& operator=(ColorTransform&&) noexcept;

  /// `pixels` of them, from samples() values each to four bytes each. Not from several threads at once.
  void convert(const void* from, std::uint8_t* to, int pixels) const;

 private:
  struct Engine;
  PixelFormat _format;
  std::unique_ptr<Engine> _engine;  ///< null when no profile is needed
};

}  // namespace quorvane
