// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/view/LabelCache.h"

#include <algorithm>
#include <cmath>

namespace quorvane {

namespace {

constexpr int steps = 64;
// At a density of 1.25 a drag by logical pixels meets four fractions each way.
constexpr std::size_t mostKept = 16;
// No screen reaches this far.
constexpr double farthest = 1e6;
// Less alpha than this is the last of a shadow's blur.
constexpr int leastInk = 12;

QRect inkOf(const LabelLayer& layer) {
  int left = layer.pixels.width();
  int right = -1;
  int top = layer.pixels.height();
  int bottom = -1;
  for (int y = 0; y < layer.pixels.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(layer.pixels.constScanLine(y));
    const auto* end = row + layer.pixels.width();
    const auto isInk = [](QRgb pixel) { return qAlpha(pixel) >= leastInk; };
    const auto* first = std::find_if(row, end, isInk);
    if (first == end) continue;
    const auto last = std::find_if(std::reverse_iterator(end), std::reverse_iterator(first), isInk).base() - row - 1;
    left = std::min(left, static_cast<int>(first - row));
    right = std::max(right, static_cast<int>(last));
    top = std::min(top, y);
    bottom = y;
  }
  return right < 0 ? QRect() : QRect(QPoint(left, top), QPoint(right, bottom)).translated(layer.topLeft);
}

PlacedLabel moved(PlacedLabel label, QPoint by) {
  label.layer.topLeft += by;
  label.ink.translate(by);
  return label;
}

}  // namespace

PlacedLabel LabelCache::placedLabel(const QString& text, const LabelLook& look, Size size, const QTransform& toPixels) {
  const double x = std::round(toPixels.dx() * steps);
  const double y = std::round(toPixels.dy() * steps);
  if (!(std::abs(x) < farthest * steps && std::abs(y) < farthest * steps)) return {};
  const QPoint whole(static_cast<int>(std::floor(x / steps)), static_cast<int>(std::floor(y / steps)));
  const QPoint fraction = QPoint(static_cast<int>(x), static_cast<int>(y)) - whole * steps;

  Subject subject{text, look, size, toPixels.m11(), toPixels.m22()};
  subject.look.labelCenter = {};
  subject.look.opacity = 1;
  if (_subject != subject) {
    _subject = std::move(subject);
    _drawn.clear();
  }
  const auto found = std::ranges::find(_drawn, fraction, &Drawn::fraction);
  if (found != _drawn.end()) return moved(found->label, whole);

  if (_drawn.size() == mostKept) _drawn.erase(_drawn.begin());
  const QTransform near(toPixels.m11(), 0, 0, toPixels.m22(), static_cast<double>(fraction.x()) / steps,
                        static_cast<double>(fraction.y()) / steps);
  const QRect frame = near.mapRect(QRectF(0, 0, size.width, size.height)).toAlignedRect();
  PlacedLabel label;
  label.layer = LabelRenderer(_subject->look).layerFromString(text, size, near, frame);
  label.ink = inkOf(label.layer);
  ++_drawnCount;
  _drawn.push_back({fraction, label});
  return moved(std::move(label), whole);
}

}  // namespace quorvane
