// SPDX-License-Identifier: GPL-3.0-or-later
// How long a redraw of the canvas and an Apply take to draw: three lines with shadow, shear and rotation. The reference
// is the drawing library's own text, drawn with the same font and transform but without a shadow or a fitted size.
#include <QPainter>

#include "LabelBench.h"
#include "composition/core/LabelRenderer.h"
#include "composition/core/ShadowBlur.h"

namespace {

using namespace quorvane;
using bench::threeLines;

LabelLook look(bool withShadow) {
  LabelLook result;
  result.font = LabelFont{QStringLiteral("DejaVu Sans"), {}, 50};
  result.color = QColor(Qt::white);
  if (withShadow) result.shadow = LabelShadow{2, -2, 3.5F, QColor(0, 0, 0, 128)};
  result.lineSpacingFactor = 1;
  result.labelCenter = {64, 60};
  result.shearFactor = 0.2F;
  result.rotation = 15;
  result.opacity = 0.9F;
  return result;
}

void BM_LibraryText(benchmark::State& state) {
  const int pixels = static_cast<int>(state.range(0));
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(20);
  font.setHintingPreference(QFont::PreferNoHinting);
  for (auto _ : state) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels / 128.0, pixels / 128.0);
    painter.translate(64, 64);
    painter.rotate(-15);
    painter.shear(0, -0.2);
    painter.setFont(font);
    painter.drawText(QRectF(-64, -64, 128, 128), Qt::AlignVCenter, threeLines());
  }
}
BENCHMARK(BM_LibraryText)->Arg(128)->Arg(512)->Unit(benchmark::kMicrosecond);

/// The text image of one redraw of the canvas; the argument is its pixels a side.
void BM_TextImage(benchmark::State& state) {
  const LabelRenderer renderer(look(state.range(1) != 0));
  const double density = static_cast<double>(state.range(0)) / 128;
  for (auto _ : state) benchmark::DoNotOptimize(renderer._imageFromString(threeLines(), {128, 128}, density));
}
BENCHMARK(BM_TextImage)
    ->ArgNames({"pixels", "shadow"})
    ->Args({128, 0})
    ->Args({128, 1})
    ->Args({512, 0})
    ->Args({512, 1})
    ->Unit(benchmark::kMicrosecond);

/// The composed icon of one Apply, on a base of that many pixels a side.
void BM_Icon(benchmark::State& state) {
  const auto pixels = static_cast<float>(state.range(0));
  BitmapImageRep bitmap = BitmapImageRep::bitmapImageRepWithSize({pixels, pixels});
  bitmap.setSize({128, 128});
  const Image base = Image::imageWithBitmapImageRep(bitmap);
  const LabelRenderer renderer(look(true));
  for (auto _ : state) benchmark::DoNotOptimize(renderer._iconWithBase(base, threeLines()));
}
BENCHMARK(BM_Icon)->Arg(128)->Arg(512)->Arg(1024)->Unit(benchmark::kMicrosecond);

/// The blur alone, of a full picture; the arguments are its side and the standard deviation in tenths of a pixel.
void BM_Blur(benchmark::State& state) {
  const int side = static_cast<int>(state.range(0));
  QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
  image.fill(QColor(0, 0, 0, 200));
  const AlphaPlane plane(image);
  for (auto _ : state) {
    AlphaPlane alpha = plane;
    alpha.blur(static_cast<double>(state.range(1)) / 10);
    benchmark::DoNotOptimize(alpha);
  }
}
BENCHMARK(BM_Blur)->Args({128, 17})->Args({512, 70})->Args({512, 320})->Unit(benchmark::kMicrosecond);

}  // namespace
