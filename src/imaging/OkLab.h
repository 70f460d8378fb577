// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

/// The colour space Oklab (Björn Ottosson, 2020, https://bottosson.github.io/posts/oklab), in which equal steps look
/// equal and a change of lightness leaves the hue as it is.
namespace quorvane {

/// Red, green and blue of sRGB's primaries, proportional to light: 0 to 1 for what a screen can show.
struct LinearRgb {
  float red = 0;
  float green = 0;
  float blue = 0;
};

/// Lightness 0 (black) to 1 (white); a and b are 0 for greys, and their distance from there, the chroma, stays below
/// about 0.33 for what a screen can show.
struct OkLab {
  float lightness = 0;
  float a = 0;
  float b = 0;

  [[nodiscard]] float chroma() const { return std::sqrt(a * a + b * b); }
};

/// Cube root of a number from 0 to some ten, to about 1e-6 of its value. The library's own takes most of the time of a
/// conversion.
inline float cubeRoot(float x) {
  // A third of the exponent, as a guess; then two of Halley's steps.
  float root = std::bit_cast<float>(std::bit_cast<std::uint32_t>(x) / 3 + 0x2A514067U);
  for (int step = 0; step < 2; ++step) {
    const float cube = root * root * root;
    root *= (cube + 2 * x) / (2 * cube + x);
  }
  return root;
}

inline OkLab okLabOf(LinearRgb color) {
  const float l = cubeRoot(0.4122214708F * color.red + 0.5363325363F * color.green + 0.0514459929F * color.blue);
  const float m = cubeRoot(0.2119034982F * color.red + 0.6806995451F * color.green + 0.1073969566F * color.blue);
  const float s = cubeRoot(0.0883024619F * color.red + 0.2817188376F * color.green + 0.6299787005F * color.blue);
  return {0.2104542553F * l + 0.7936177850F * m - 0.0040720468F * s,
          1.9779984951F * l - 2.4285922050F * m + 0.4505937099F * s,
          0.0259040371F * l + 0.7827717662F * m - 0.8086757660F * s};
}

inline LinearRgb linearRgbOf(const OkLab& color) {
  const float l = color.lightness + 0.3963377774F * color.a + 0.2158037573F * color.b;
  const float m = color.lightness - 0.1055613458F * color.a - 0.0638541728F * color.b;
  const float s = color.lightness - 0.0894841775F * color.a - 1.2914855480F * color.b;
  const float l3 = l * l * l;
  const float m3 = m * m * m;
  const float s3 = s * s * s;
  return {4.0767416621F * l3 - 3.3077115913F * m3 + 0.2309699292F * s3,
          -1.2684380046F * l3 + 2.6097574011F * m3 - 0.3413193965F * s3,
          -0.0041960863F * l3 - 0.7034186147F * m3 + 1.7076147010F * s3};
}

/// An sRGB byte as light, 0 to 1.
float linearOfByte(std::uint8_t sample);
/// The sRGB byte nearest to that light; what lies outside 0 to 1 is cut off.
std::uint8_t byteOfLinear(float light);

/// Without alpha.
OkLab okLabOf(const QColor& color);
QColor colorOf(const OkLab& color);

/// The same lightness and hue with as much of the chroma as a screen can show.
OkLab withinGamut(const OkLab& color);

}  // namespace quorvane
