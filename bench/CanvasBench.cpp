// SPDX-License-Identifier: GPL-3.0-or-later
// How long the canvas takes to draw itself while a label of three lines with shadow is dragged, magnified twice on a
// screen of twice the density (512 pixels a picture). Each step counts by itself: a drag stutters by its worst step.
// The reference draws the label anew each time, on the picture alone.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPainter>
#include <algorithm>
#include <ctime>
#include <vector>

#include "FolderPicture.h"
#include "composition/view/FolderView.h"

namespace {

using namespace quorvane;

constexpr int density = 2;
constexpr int steps = 1000;

/// Milliseconds of the processor: on a busy machine the clock on the wall would tell what others do.
double timed(const auto& work) {
  const std::clock_t start = std::clock();
  work();
  return static_cast<double>(std::clock() - start) * 1000 / CLOCKS_PER_SEC;
}

double medianOf(std::vector<double>& times) {
  std::ranges::nth_element(times, times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2));
  return times[times.size() / 2];
}

void BM_Drag(benchmark::State& state) {
  FolderView view;
  view.setMagnification(2);
  view.resize(420, 420);
  BitmapImageRep picture = bench::folderBitmap(512);
  picture.setSize({128, 128});
  view.setCurrentIcon(Image::imageWithBitmapImageRep(picture));
  view.setLabel(QStringLiteral("Projects\nArchive 2024\nthird line"));
  view.setFont(LabelFont{QStringLiteral("DejaVu Sans"), {}, 50});
  view.setColor(QColor(Qt::white));
  view.setShadow(LabelShadow{2, -2, 3.5F, QColor(0, 0, 0, 128)});
  view.setCanvasLabelCenter({64, 60});
  QImage screen(view.size() * density, QImage::Format_ARGB32_Premultiplied);
  screen.setDevicePixelRatio(density);
  const auto draw = [&] { view.render(&screen, {}, {}, QWidget::DrawChildren); };

  QImage plain(512, 512, QImage::Format_ARGB32_Premultiplied);
  const QImage base = picture.toImage();
  const auto drawAnew = [&] {
    QPainter painter(&plain);
    painter.drawImage(0, 0, base);
    const LabelLook look = view.composition().look();
    const LabelLayer layer = LabelRenderer(look).layerFromString(
        *view.label(), {128, 128}, QTransform(4, 0, 0, -4, look.labelCenter.x, look.labelCenter.y + 400), plain.rect());
    painter.drawImage(layer.topLeft, layer.pixels);
  };

  std::vector<double> times;
  std::vector<double> referenceTimes;
  const double first = timed(draw);
  view.mouseDown({0, 0});
  for ([[maybe_unused]] const auto& iteration : state) {
    times.clear();
    referenceTimes.clear();
    for (int step = 1; step <= steps; ++step) {
      view.mouseDragged({static_cast<float>(step % 80), static_cast<float>(step % 70)});
      times.push_back(timed(draw));
      if (step % 20 == 0) referenceTimes.push_back(timed(drawAnew));
    }
  }
  view.mouseUp();
  state.counters["first_ms"] = first;
  state.counters["worst_ms"] = *std::ranges::max_element(times);
  state.counters["median_ms"] = medianOf(times);
  state.counters["of_drawing_anew"] = medianOf(times) / medianOf(referenceTimes);
}
BENCHMARK(BM_Drag)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
