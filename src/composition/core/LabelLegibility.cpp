// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/core/LabelLegibility.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

#include "composition/core/ComposedGrid.h"
#include "composition/core/LabelFitting.h"
#include "composition/core/LabelRenderer.h"
#include "composition/core/ShadowBlur.h"
#include "composition/core/TextBlock.h"

namespace quorvane {

namespace {

// Enough for the edges of small letters, and quick.
constexpr double judgedDensity = 2;
// How far around the glyphs the eye takes the ground from, as a standard deviation in pixels at that density.
constexpr double haloSigma = 2.5;
// With less of its surroundings on the picture than this share, a label stands on nothing that could be judged.
constexpr double leastGround = 0.05;

/// Relative luminance of an sRGB sample (WCAG 2.1).
double linear(int sample) {
  static const auto table = [] {
    std::array<double, 256> values{};
    for (std::size_t i = 0; i < values.size(); ++i) {
      const double value = static_cast<double>(i) / 255;
      values[i] = value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    }
    return values;
  }();
  return table[static_cast<std::size_t>(std::clamp(sample, 0, 255))];
}

double luminance(QRgb color) {
  return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

double contrastOf(double a, double b) {
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QRgb blended(const QColor& color, double share, QRgb ground) {
  const auto mix = [share](int over, int under) {
    return static_cast<int>(std::lround(over * share + under * (1 - share)));
  };
  return qRgb(mix(color.red(), qRed(ground)), mix(color.green(), qGreen(ground)), mix(color.blue(), qBlue(ground)));
}

bool hasSmallLetter(const QString& text) {
  return std::ranges::any_of(text, [](QChar character) { return character.isLower(); });
}

}  // namespace

double fittedLetterHeight(const QString& text, const LabelLook& look, Size size, double pixels) {
  if (text.trimmed().isEmpty() || !(size.width > 0)) return 0;
  const LabelFont font = fitLabel(text, look, size).label.attributes.font;
  return TextBlock::letterHeight(font, hasSmallLetter(text)) * pixels / size.width;
}

std::optional<double> labelContrast(const Image& base, const QString& text, const LabelLook& look) {
  const Size size = base.size();
  const ComposedGrid grid = ComposedGrid::forSize(size, judgedDensity * 128 / static_cast<double>(size.width));
  if (grid.isEmpty()) return std::nullopt;
  const QTransform toPixels = grid.toPixels(_originForCenter(scaledLabelCenter(look.labelCenter, size.width), size));
  const QRect all(0, 0, grid.pixelsWide, grid.pixelsHigh);
  const LabelRenderer renderer(look);

  LabelLook bareLook = look;
  bareLook.shadow.reset();
  bareLook.color = Qt::black;
  const LabelLayer bare = LabelRenderer(bareLook).layerFromString(text, size, toPixels, all);
  if (bare.pixels.isNull()) return std::nullopt;
  QImage glyphs(all.size(), QImage::Format_ARGB32_Premultiplied);
  glyphs.fill(Qt::transparent);
  QPainter(&glyphs).drawImage(bare.topLeft, bare.pixels);
  AlphaPlane halo(glyphs);
  halo.blur(haloSigma);

  QImage ground = base.rendered(grid.pixelsWide, grid.pixelsHigh).toImage();
  const LabelLayer layer = renderer.layerFromString(text, size, toPixels, all);
  if (QPainter painter(&ground); !layer.pixels.isNull()) {
    painter.setOpacity(renderer.drawnOpacity());
    painter.drawImage(layer.topLeft, layer.pixels);
  }

  const QColor color = look.color.value_or(QColor(Qt::black)).toRgb();
  const double share = color.alphaF() * renderer.drawnOpacity();
  double around = 0;
  double weights = 0;
  double inverses = 0;
  for (int y = 0; y < ground.height(); ++y) {
    const auto* groundRow = reinterpret_cast<const QRgb*>(ground.constScanLine(y));
    const auto* glyphRow = reinterpret_cast<const QRgb*>(glyphs.constScanLine(y));
    for (int x = 0; x < ground.width(); ++x) {
      const int near = halo.alpha(x, y);
      if (near == 0 || qAlpha(glyphRow[x]) > 0) continue;  // there is text there, not its ground
      around += near;
      const double weight = near * (qAlpha(groundRow[x]) / 255.0);
      if (weight <= 0) continue;
      const QRgb pixel = qUnpremultiply(groundRow[x]);
      weights += weight;
      inverses += weight / contrastOf(luminance(blended(color, share, pixel)), luminance(pixel));
    }
  }
  if (weights <= around * leastGround) return std::nullopt;
  return weights / inverses;
}

LabelLegibility LabelLegibility::of(const Image& base, const QString& text, const LabelLook& look) {
  LabelLegibility result;
  result.letterHeight = fittedLetterHeight(text, look, base.size(), judgedPixels);
  if (result.letterHeight > 0) result.contrast = labelContrast(base, text, look);
  return result;
}

}  // namespace quorvane
