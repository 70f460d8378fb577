// SPDX-License-Identifier: GPL-3.0-or-later
#include "Shades.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace quorvane::baseicons {

namespace {

// Linear sRGB of an OKLab colour. The matrices are those of the colour space's definition (Ottosson, 2020).
std::array<double, 3> linearRgb(const Tone& tone) {
  const double angle = tone.hue * std::numbers::pi / 180;
  const double lightness = tone.lightness / 100;
  const double a = tone.chroma * std::cos(angle);
  const double b = tone.chroma * std::sin(angle);
  const auto cubed = [](double value) { return value * value * value; };
  const double l = cubed(lightness + 0.3963377774 * a + 0.2158037573 * b);
  const double m = cubed(lightness - 0.1055613458 * a - 0.0638541728 * b);
  const double s = cubed(lightness - 0.0894841775 * a - 1.2914855480 * b);
  return {4.0767416621 * l - 3.3077115913 * m + 0.2309699292 * s,
          -1.2684380046 * l + 2.6097574011 * m - 0.3413193965 * s,
          -0.0041960863 * l - 0.7034186147 * m + 1.7076147010 * s};
}

bool fits(const Tone& tone) {
  constexpr double slack = 1e-4;
  return std::ranges::all_of(linearRgb(tone), [](double value) { return value >= -slack && value <= 1 + slack; });
}

int encoded(double linear) {
  linear = std::clamp(linear, 0.0, 1.0);
  const double value = linear <= 0.0031308 ? 12.92 * linear : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
  return static_cast<int>(std::lround(value * 255));
}

// How many degrees the hue turns with a point of darkness: most at yellow, not at all outside orange to lime.
double turn(double hue) {
  return 0.8 * std::max(0.0, 1 - std::abs(hue - 90) / 45);
}

// Light colours are near white already: their lighter shades lie closer together, or yellow would bleach.
double room(double lightness) {
  return std::min(1.0, (100 - lightness) / 34);
}

}  // namespace

QColor toColor(const Tone& tone) {
  Tone fitting = tone;
  if (!fits(fitting)) {
    double low = 0;
    double high = tone.chroma;
    for (int step = 0; step < 20; ++step) {
      fitting.chroma = (low + high) / 2;
      (fits(fitting) ? low : high) = fitting.chroma;
    }
    fitting.chroma = low;
  }
  const auto [red, green, blue] = linearRgb(fitting);
  return QColor(encoded(red), encoded(green), encoded(blue));
}

std::optional<QColor> shade(const Tone& base, const QString& wish) {
  static const QRegularExpression form(QStringLiteral("^([-+=]?)([0-9]+(?:\\.[0-9]+)?)(?:c([0-9]+))?$"));
  const auto match = form.match(wish);
  if (!match.hasMatch()) return std::nullopt;
  const QString sign = match.captured(1);
  const double number = match.captured(2).toDouble();
  if (sign.isEmpty() && number != 0) return std::nullopt;

  Tone tone = base;
  if (sign == QLatin1String("="))
    tone.lightness = number;
  else
    tone.lightness += sign == QLatin1String("-") ? -number : number * room(base.lightness);
  tone.lightness = std::clamp(tone.lightness, 4.0, 100.0);
  const double darker = base.lightness - tone.lightness;
  if (darker > 0) tone.hue -= turn(base.hue) * std::min(darker, 16.0);
  if (!match.captured(3).isEmpty()) tone.chroma *= match.captured(3).toDouble() / 100;
  return toColor(tone);
}

}  // namespace quorvane::baseicons
