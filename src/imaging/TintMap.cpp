// SPDX-License-Identifier: GPL-3.0-or-later
// How one colour becomes another under a tint.
#include <algorithm>
#include <cmath>

#include "imaging/Tint.h"

namespace quorvane {

namespace {

// Tints beyond these are drawn at them: shading needs room on both sides.
constexpr float darkestTint = 0.27F;
constexpr float lightestTint = 0.955F;
// Chroma, as a share of the body's, below which a pixel of a coloured picture is grey, and from which on it is not.
constexpr float greyShare = 0.06F;
constexpr float coloredShare = 0.4F;
// Cosines of how far a hue is from the body's to be left alone (115 degrees), and to be turned with it (65).
constexpr float strangeHue = -0.42F;
constexpr float relatedHue = 0.42F;
// Chroma from which on a pixel of a grey picture is a spot of colour that keeps it.
constexpr float spotChroma = 0.05F;
constexpr float plainSpotChroma = 0.12F;
// A grey body as light as this is paper, and white goes with it.
constexpr float whiteBody = 0.78F;
constexpr float plainWhiteBody = 0.9F;
// How much of a hue's distance from the body's is kept: in strong colours the same distance is more to see.
constexpr float keptHueDistance = 0.5F;
// What is stronger than the body becomes stronger by no more than this: pale bodies would end in shrill edges.
constexpr float steepestChroma = 1.2F;
// The curve's power: how late it leaves the slope at the body for black or white.
constexpr float power = 3;
// With a slope above power / (power - 1) the curve would no longer rise throughout.
constexpr float steepest = 1.4F;

float mix(float a, float b, float share) {
  return a + (b - a) * share;
}

OkLab mix(const OkLab& a, const OkLab& b, float share) {
  return {mix(a.lightness, b.lightness, share), mix(a.a, b.a, share), mix(a.b, b.b, share)};
}

float smoothStep(float from, float to, float x) {
  const float t = std::clamp((x - from) / (to - from), 0.0F, 1.0F);
  return t * t * (3 - 2 * t);
}

}  // namespace

TintMap::TintMap(const BodyColor& body, const QColor& tint)
    : _body(body), _tint(okLabOf(tint)), _strength(tint.alphaF()), _bodyChroma(body.color.chroma()) {
  _curve.from = std::clamp(body.color.lightness, 0.02F, 0.995F);
  _curve.to = std::clamp(_tint.lightness, darkestTint, lightestTint);
  const float nearWhite = smoothStep(whiteBody, plainWhiteBody, _curve.from) * (1 - body.colorfulness);
  _curve.white = mix(1, std::min(1.0F, _curve.to + 1 - _curve.from), nearWhite);
  // One step of lightness near the body stays one step.
  _curve.belowSlope = std::min(_curve.from / _curve.to, steepest);
  _curve.aboveSlope = std::min((1 - _curve.from) / std::max(_curve.white - _curve.to, 1e-3F), steepest);
}

float TintMap::Curve::operator()(float lightness) const {
  const auto bent = [](float slope, float x) { return slope * x + (1 - slope) * x * x * x; };
  static_assert(power == 3);
  if (lightness <= from) return to * (1 - bent(belowSlope, 1 - std::max(lightness, 0.0F) / from));
  return to + (white - to) * bent(aboveSlope, (std::min(lightness, 1.0F) - from) / (1 - from));
}

OkLab TintMap::coloredPart(const OkLab& color) const {
  const float chroma = color.chroma();
  if (chroma <= 1e-6F) return color;
  // The hue seen from the body's, as a complex number; its distance lessened; seen from there, the tint's.
  const float along = (color.a * _body.color.a + color.b * _body.color.b) / (chroma * _bodyChroma);
  const float across = (color.b * _body.color.a - color.a * _body.color.b) / (chroma * _bodyChroma) * keptHueDistance;
  const float related = smoothStep(strangeHue, relatedHue, along);
  const float colored = smoothStep(greyShare, coloredShare, chroma / _bodyChroma);
  const float tintChroma = _tint.chroma();
  const float ratio = tintChroma / _bodyChroma;
  const float newChroma =
      chroma <= _bodyChroma ? chroma * ratio : tintChroma + (chroma - _bodyChroma) * std::min(ratio, steepestChroma);
  const float scale =
      tintChroma > 0 ? newChroma / (std::max(std::sqrt(along * along + across * across), 0.05F) * tintChroma) : 0;
  const OkLab turned{mix(color.lightness, _curve(color.lightness), colored),
                     (_tint.a * along - _tint.b * across) * scale, (_tint.b * along + _tint.a * across) * scale};
  return mix(color, turned, related);
}

OkLab TintMap::greyPart(const OkLab& color) const {
  const float lightness = _curve(color.lightness);
  // Most colour at the tint's own lightness, none in black and white; round, as the gamut is.
  const bool isBelow = lightness <= _curve.to;
  const float away = isBelow ? 1 - lightness / _curve.to : (lightness - _curve.to) / std::max(1 - _curve.to, 1e-3F);
  const float share = 1 - away * away;
  const float spot = smoothStep(spotChroma, plainSpotChroma, color.chroma());
  return mix({lightness, _tint.a * share, _tint.b * share}, color, spot);
}

OkLab TintMap::operator()(const OkLab& color) const {
  OkLab result;
  if (_body.colorfulness >= 1)
    result = coloredPart(color);
  else if (_body.colorfulness <= 0)
    result = greyPart(color);
  else
    result = mix(greyPart(color), coloredPart(color), _body.colorfulness);
  return withinGamut(_strength >= 1 ? result : mix(color, result, _strength));
}

}  // namespace quorvane
